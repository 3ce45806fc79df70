// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What runs as root should be little, and known.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <memory>
#include <regex>
#include <string>
#include <vector>

namespace zt {
namespace {

// The libraries that the loader would bring in, by their names.
std::vector<std::string> librariesOf(const std::string &program) {
    const std::string command = "LD_TRACE_LOADED_OBJECTS=1 '" + program + "'";
    const std::unique_ptr<FILE, int (*)(FILE *)> output(::popen(command.c_str(), "re"), ::pclose);
    std::vector<std::string> names;
    std::array<char, 4096> text = {};
    while (output && std::fgets(text.data(), static_cast<int>(text.size()), output.get())) {
        const std::string line = text.data();
        const std::string name = line.substr(1, line.find(' ') - 1);
        names.push_back(name.substr(name.rfind('/') + 1));
    }
    return names;
}

TEST(TrainLibrariesTest, theToolLoadsTheLibrariesOfCAndCxxAlone) {
    const std::vector<std::string> names = librariesOf(TRAIN);
    EXPECT_THAT(names, ::testing::Contains("libc.so.6"));
    // Those of a checked build come with the compiler.
    const std::regex known("(linux-vdso|ld-linux-x86-64|libc|libm|libgcc_s|libstdc\\+\\+|libasan|"
                           "libubsan|libtsan)\\.so\\.[0-9]+");
    for (const std::string &name : names)
        EXPECT_TRUE(std::regex_match(name, known)) << name;
}

} // namespace
} // namespace zt

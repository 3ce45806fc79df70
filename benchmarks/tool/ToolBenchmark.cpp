// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the privileged tool costs, beside a program that does nothing.

#include "benchmarks/BenchLine.h"
#include "benchmarks/Median.h"
#include "benchmarks/tool/MeasuredProcess.h"

#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace {

constexpr int warmUps = 20;
constexpr int runs = 301;

constexpr const char *nothing = "/bin/true";
const std::vector<std::string> version = {"--version"};

double milliseconds(std::chrono::nanoseconds time) {
    return std::chrono::duration<double, std::milli>(time).count();
}

double megabytes(std::size_t bytes) {
    return static_cast<double>(bytes) / (1024 * 1024);
}

// The libraries that the loader brings in, each by its name.
std::vector<std::string> librariesOf(const std::string &program) {
    const std::string command = "LD_TRACE_LOADED_OBJECTS=1 '" + program + "'";
    std::vector<std::string> names;
    const std::unique_ptr<FILE, int (*)(FILE *)> output(::popen(command.c_str(), "re"), ::pclose);
    std::array<char, 4096> text = {};
    while (output && std::fgets(text.data(), static_cast<int>(text.size()), output.get())) {
        const std::string line = text.data();
        // What the kernel itself brings into every process has no file.
        if (line.find('/') == std::string::npos)
            continue;
        const std::string name = line.substr(1, line.find(' ') - 1);
        names.push_back(name.substr(name.rfind('/') + 1));
    }
    return names;
}

bool measureStart() {
    std::vector<double> empty;
    std::vector<double> tool;
    // In turn, so that what else the machine does touches both alike.
    for (int run = -warmUps; run < runs; ++run) {
        const auto emptyTime = zt::timeOf(nothing, {});
        const auto toolTime = zt::timeOf(TRAIN, version);
        if (!emptyTime || !toolTime)
            return false;
        if (run < 0)
            continue;
        empty.push_back(milliseconds(*emptyTime));
        tool.push_back(milliseconds(*toolTime));
    }
    zt::printBenchLine("tool.start", "true_ms", zt::median(empty));
    zt::printBenchLine("tool.start", "train_ms", zt::median(tool));
    zt::printBenchLine("tool.start", "ratio_to_true", zt::median(tool) / zt::median(empty));
    return true;
}

// A product of some thousand files that only this process and its children see.
bool makeProduct() {
    if (::geteuid() != 0 || ::unshare(CLONE_NEWNS) != 0 ||
        ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        ::mount("tmpfs", "/mnt", "tmpfs", 0, "mode=755") != 0 ||
        ::mount("tmpfs", "/run", "tmpfs", 0, "mode=755") != 0)
        return false;
    const std::string content(20'000, 'x');
    for (int i = 0; i < 3000; ++i) {
        const std::string folder = "/mnt/medium/Product.app/Contents/" + std::to_string(i % 50);
        std::filesystem::create_directories(folder);
        std::ofstream(folder + '/' + std::to_string(i)) << content;
    }
    std::ofstream("/mnt/medium/Product.app/Contents/Info.plist") << "<plist/>";
    return ::mkdir("/mnt/Applications", 0755) == 0;
}

bool measureMemory() {
    const auto empty = zt::residentMemoryOf(nothing, {});
    std::optional<std::size_t> tool;
    // The program itself may lie in what is hidden then.
    const std::string program = "/mnt/train";
    std::ifstream original(TRAIN, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(original),
                            std::istreambuf_iterator<char>()};
    if (makeProduct()) {
        std::ofstream(program, std::ios::binary) << bytes;
        ::chmod(program.c_str(), 0755);
        std::puts("# memory: while 3000 files of 20 kB each are installed");
        tool = zt::residentMemoryOf(program,
                                    {"/mnt/medium/Product.app", "/mnt/Applications/Product.app"});
    } else {
        std::puts("# memory: only started, for without root nothing can be installed");
        tool = zt::residentMemoryOf(TRAIN, version);
    }
    if (!empty || !tool)
        return false;
    zt::printBenchLine("tool.memory", "true_rss_mb", megabytes(*empty));
    zt::printBenchLine("tool.memory", "rss_mb", megabytes(*tool));
    zt::printBenchLine("tool.memory", "ratio_to_true",
                       static_cast<double>(*tool) / static_cast<double>(*empty));
    return true;
}

} // namespace

int main() {
    if (!measureStart()) {
        std::fputs("The tool could not be started.\n", stderr);
        return EXIT_FAILURE;
    }
    if (!measureMemory()) {
        std::fputs("The tool could not install.\n", stderr);
        return EXIT_FAILURE;
    }
    const std::vector<std::string> libraries = librariesOf(TRAIN);
    std::printf("# libraries:");
    for (const std::string &name : libraries)
        std::printf(" %s", name.c_str());
    std::puts("");
    zt::printBenchLine("tool.libraries", "count", static_cast<double>(libraries.size()));
    return EXIT_SUCCESS;
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Runs an entry function of the fuzz targets over its seeds, without libFuzzer.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace {

std::vector<std::filesystem::path> seeds() {
    std::vector<std::filesystem::path> files;
    for (const auto &entry : std::filesystem::directory_iterator(VELMORA_CORPUS_FOLDER))
        files.push_back(entry.path());
    std::ranges::sort(files);
    return files;
}

std::vector<std::uint8_t> contentOf(const std::filesystem::path &path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

TEST(CorpusTest, everySeedIsHandled) {
    const auto files = seeds();
    ASSERT_FALSE(files.empty());
    for (const auto &file : files) {
        SCOPED_TRACE(file);
        const std::vector<std::uint8_t> content = contentOf(file);
        ASSERT_FALSE(content.empty());
        EXPECT_EQ(LLVMFuzzerTestOneInput(content.data(), content.size()), 0);
    }
}

TEST(CorpusTest, everyBeginningOfASeedIsHandled) {
    for (const auto &file : seeds()) {
        SCOPED_TRACE(file);
        const std::vector<std::uint8_t> content = contentOf(file);
        for (std::size_t size = 0; size < content.size(); ++size) {
            // A copy of just this size: reading past its end is seen.
            const std::vector<std::uint8_t> beginning(content.begin(),
                                                      content.begin() + std::ptrdiff_t(size));
            EXPECT_EQ(LLVMFuzzerTestOneInput(beginning.data(), size), 0) << size;
        }
    }
}

// Each seed with one bit after the other turned over; every eleventh is plenty.
TEST(CorpusTest, aWrongBitOfASeedIsHandled) {
    for (const auto &file : seeds()) {
        SCOPED_TRACE(file);
        std::vector<std::uint8_t> content = contentOf(file);
        for (std::size_t bit = 0; bit < content.size() * 8; bit += 11) {
            const auto mask = static_cast<std::uint8_t>(1U << bit % 8);
            content[bit / 8] ^= mask;
            EXPECT_EQ(LLVMFuzzerTestOneInput(content.data(), content.size()), 0) << bit;
            content[bit / 8] ^= mask;
        }
    }
}

} // namespace

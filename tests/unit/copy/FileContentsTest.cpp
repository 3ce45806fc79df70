// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/FileContents.h"
#include "tests/unit/copy/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>

namespace zt {
namespace {

using testing::TemporaryFolder;

TEST(FileContentsTest, aFileIsReadWhole) {
    const TemporaryFolder folder;
    const std::string content(200'000, 'x');
    const Result<std::string> read = readSmallFile(folder.makeFile("f", content), 1'000'000);
    ASSERT_TRUE(read);
    EXPECT_EQ(*read, content);
}

TEST(FileContentsTest, aFileThatJustFitsIsRead) {
    const TemporaryFolder folder;
    const Result<std::string> read = readSmallFile(folder.makeFile("f", "12345"), 5);
    ASSERT_TRUE(read);
    EXPECT_EQ(*read, "12345");
}

TEST(FileContentsTest, aFileOneByteTooLargeIsRefused) {
    const TemporaryFolder folder;
    const Result<std::string> read = readSmallFile(folder.makeFile("f", "123456"), 5);
    ASSERT_FALSE(read);
    EXPECT_EQ(read.error().code, EFBIG);
}

TEST(FileContentsTest, aFileThatClaimsNoSizeIsRead) {
    const Result<std::string> read = readSmallFile("/proc/self/status", 1'000'000);
    ASSERT_TRUE(read);
    EXPECT_THAT(*read, ::testing::HasSubstr("Pid:"));
}

TEST(FileContentsTest, aMissingFileIsAnErrorThatNamesIt) {
    const Result<std::string> read = readSmallFile("/nowhere/at/all", 10);
    ASSERT_FALSE(read);
    EXPECT_EQ(read.error().text(), "open /nowhere/at/all: No such file or directory");
}

} // namespace
} // namespace zt

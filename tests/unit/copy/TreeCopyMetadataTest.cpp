// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/SystemCalls.h"
#include "Platform/posix/TreeCopy.h"
#include "tests/unit/copy/ChildProcess.h"
#include "tests/unit/copy/TemporaryFolder.h"
#include "tests/unit/copy/TreeDescription.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace zt {
namespace {

using testing::dataSegments;
using testing::describeTree;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::itemExists;
using testing::TemporaryFolder;

class TreeCopyMetadataTest : public ::testing::Test {
protected:
    Result<void> copy() {
        return copyTree({.source = {AT_FDCWD, m_world.path("source"), m_world.path("source")},
                         .target = {AT_FDCWD, m_world.path("target"), m_world.path("target")},
                         .stop = {},
                         .progress = {},
                         .note = [this](std::string_view note) {
                             const std::lock_guard lock(m_mutex);
                             m_notes.emplace_back(note);
                         }});
    }

    struct stat statusOfCopy(const std::string &name) const {
        const std::optional<struct stat> status =
            statusAt(AT_FDCWD, m_world.path("target/" + name).c_str());
        EXPECT_TRUE(status) << name;
        return status.value_or(m_none);
    }

    void expectAlike() const {
        EXPECT_EQ(describeTree(m_world.path("source")), describeTree(m_world.path("target")));
    }

    TemporaryFolder m_world;
    std::mutex m_mutex;
    std::vector<std::string> m_notes;
    struct stat m_none = {};
};

class TreeCopyModeTest : public TreeCopyMetadataTest,
                         public ::testing::WithParamInterface<mode_t> {};

TEST_P(TreeCopyModeTest, theModeOfFilesAndFoldersIsKept) {
    // Only root copies what nobody may read or search.
    const bool isRoot = ::geteuid() == 0;
    const mode_t fileMode = isRoot ? GetParam() : GetParam() | 0400U;
    const mode_t folderMode = isRoot ? GetParam() : GetParam() | 0500U;
    m_world.makeFile("source/folder/inside", "x");
    m_world.makeFile("source/file", "x");
    ASSERT_EQ(::chmod(m_world.path("source/file").c_str(), fileMode), 0);
    ASSERT_EQ(::chmod(m_world.path("source/folder").c_str(), folderMode), 0);
    ASSERT_TRUE(copy());
    EXPECT_EQ(statusOfCopy("file").st_mode & 07777U, fileMode);
    EXPECT_EQ(statusOfCopy("folder").st_mode & 07777U, folderMode);
}

INSTANTIATE_TEST_SUITE_P(Modes, TreeCopyModeTest,
                         ::testing::Values(0, 0400, 0444, 0500, 0555, 0600, 0644, 0666, 0755, 0777,
                                           01777, 02755, 04755, 06711));

TEST_F(TreeCopyMetadataTest, theMaskForNewFilesHasNoSay) {
    m_world.makeFile("source/file", "x", 0666);
    const std::string error = testing::inChildProcess([&]() -> std::string {
        ::umask(077);
        const Result<void> copied = copy();
        return copied ? "" : copied.error().text();
    });
    EXPECT_EQ(error, "");
    expectAlike();
}

TEST_F(TreeCopyMetadataTest, timesAreKeptToTheNanosecond) {
    m_world.makeFile("source/folder/file", "x");
    m_world.makeLink("source/link", "nowhere");
    const std::array<timespec, 2> times = {timespec{1'000'000'001, 123'456'789},
                                           timespec{1'111'111'111, 987'654'321}};
    for (const char *name : {"source/folder/file", "source/link", "source/folder", "source"}) {
        ASSERT_EQ(
            ::utimensat(AT_FDCWD, m_world.path(name).c_str(), times.data(), AT_SYMLINK_NOFOLLOW),
            0);
    }
    ASSERT_TRUE(copy());
    for (const char *name : {"folder/file", "link", "folder", "."}) {
        const struct stat status = statusOfCopy(name);
        EXPECT_EQ(status.st_mtim.tv_sec, 1'111'111'111) << name;
        EXPECT_EQ(status.st_mtim.tv_nsec, 987'654'321) << name;
    }
    EXPECT_EQ(statusOfCopy("folder/file").st_atim.tv_nsec, 123'456'789);
}

TEST_F(TreeCopyMetadataTest, namesOfOneFileAreOneFileInTheCopy) {
    m_world.makeFile("source/a/first", "shared");
    m_world.makeFolder("source/b");
    for (const char *name : {"source/b/second", "source/third"})
        std::filesystem::create_hard_link(m_world.path("source/a/first"), m_world.path(name));
    // A name outside the tree counts as a link too, but is not copied.
    std::filesystem::create_hard_link(m_world.path("source/a/first"), m_world.path("outside"));
    ASSERT_TRUE(copy());
    const struct stat first = statusOfCopy("a/first");
    EXPECT_EQ(first.st_nlink, 3U);
    EXPECT_EQ(statusOfCopy("b/second").st_ino, first.st_ino);
    EXPECT_EQ(statusOfCopy("third").st_ino, first.st_ino);
    EXPECT_FALSE(itemExists(m_world.path("target.links")));
}

TEST_F(TreeCopyMetadataTest, aThousandNamesOfOneFileAreOneFileInTheCopy) {
    m_world.makeFile("source/0/file", "shared");
    for (int i = 1; i < 1000; ++i) {
        const std::string name = "source/" + std::to_string(i % 10) + '/' + std::to_string(i);
        m_world.makeFolder("source/" + std::to_string(i % 10));
        std::filesystem::create_hard_link(m_world.path("source/0/file"), m_world.path(name));
    }
    ASSERT_TRUE(copy());
    EXPECT_EQ(statusOfCopy("0/file").st_nlink, 1000U);
    expectAlike();
}

TEST_F(TreeCopyMetadataTest, namesOfOneLinkAreOneLinkInTheCopy) {
    m_world.makeLink("source/first", "nowhere");
    ASSERT_EQ(::linkat(AT_FDCWD, m_world.path("source/first").c_str(), AT_FDCWD,
                       m_world.path("source/second").c_str(), 0),
              0);
    ASSERT_TRUE(copy());
    EXPECT_EQ(statusOfCopy("first").st_ino, statusOfCopy("second").st_ino);
}

TEST_F(TreeCopyMetadataTest, attributesOfFilesAndFoldersAreKept) {
    const std::string file = m_world.makeFile("source/folder/file", "x", 0444);
    const std::string folder = m_world.path("source/folder");
    const std::string binary("\0\1\xFF", 3);
    if (::setxattr(folder.c_str(), "user.binary", binary.data(), binary.size(), 0) != 0)
        GTEST_SKIP() << "no attributes on this file system";
    const std::string large(3000, 'v');
    ::chmod(file.c_str(), 0644);
    ASSERT_EQ(::setxattr(file.c_str(), "user.large", large.data(), large.size(), 0), 0);
    ASSERT_EQ(::setxattr(file.c_str(), "user.empty", "", 0, 0), 0);
    ::chmod(file.c_str(), 0444);
    ASSERT_TRUE(copy());
    expectAlike();
}

TEST_F(TreeCopyMetadataTest, attributesOfAReadOnlyFileAreKeptForAnOrdinaryUser) {
    ASSERT_EQ(::chmod(m_world.path().c_str(), 0777), 0);
    const std::string file = m_world.makeFile("source/file", "x");
    if (::setxattr(file.c_str(), "user.note", "1", 1, 0) != 0)
        GTEST_SKIP() << "no attributes on this file system";
    ASSERT_EQ(::chmod(file.c_str(), 0444), 0);
    const std::string error = testing::asOrdinaryUser([&]() -> std::string {
        const Result<void> copied = copy();
        return copied ? "" : copied.error().text();
    });
    EXPECT_EQ(error, "");
    std::array<char, 4> value = {};
    EXPECT_EQ(::getxattr(m_world.path("target/file").c_str(), "user.note", value.data(), 4), 1);
    EXPECT_EQ(statusOfCopy("file").st_mode & 07777U, 0444U);
}

// An access list as the kernel stores it: the owner rwx, user 12345 r-x, the group r--, the mask
// r-x, others nothing.
std::string accessList() {
    const std::array<std::uint16_t, 10> tagsAndRights = {1, 7, 2, 5, 4, 4, 16, 5, 32, 0};
    std::string list("\2\0\0\0", 4);
    for (std::size_t i = 0; i < tagsAndRights.size(); i += 2) {
        const std::uint32_t id = tagsAndRights[i] == 2 ? 12345 : 0xFFFFFFFF;
        std::array<char, 8> entry = {};
        std::memcpy(entry.data(), &tagsAndRights[i], 4);
        std::memcpy(entry.data() + 4, &id, 4);
        list.append(entry.data(), entry.size());
    }
    return list;
}

TEST_F(TreeCopyMetadataTest, accessListsAreKept) {
    const std::string list = accessList();
    const std::string file = m_world.makeFile("source/folder/file", "x", 0640);
    const std::string folder = m_world.path("source/folder");
    if (::setxattr(file.c_str(), "system.posix_acl_access", list.data(), list.size(), 0) != 0)
        GTEST_SKIP() << "no access lists on this file system";
    ASSERT_EQ(::setxattr(folder.c_str(), "system.posix_acl_default", list.data(), list.size(), 0),
              0);
    m_world.makeFile("source/folder/later", "gets the default list");
    ASSERT_TRUE(copy());
    expectAlike();
    EXPECT_THAT(m_notes, ElementsAre());
}

TEST_F(TreeCopyMetadataTest, holesStayHoles) {
    constexpr off_t megabyte = 1'000'000;
    const std::string file = m_world.makeFile("source/sparse");
    {
        const UniqueFd sparse = openAt(AT_FDCWD, file.c_str(), O_WRONLY);
        ASSERT_EQ(::pwrite(sparse.get(), "begin", 5, 4 * megabyte), 5);
        ASSERT_EQ(::pwrite(sparse.get(), "end", 3, 9 * megabyte), 3);
        ASSERT_EQ(::ftruncate(sparse.get(), 20 * megabyte), 0);
    }
    m_world.makeFile("source/nothing");
    std::filesystem::resize_file(m_world.path("source/nothing"), 3 * megabyte);
    m_world.makeFile("source/small");
    std::filesystem::resize_file(m_world.path("source/small"), 10'000);
    ASSERT_TRUE(copy());
    expectAlike();
    EXPECT_LT(statusOfCopy("sparse").st_blocks, 100);
    EXPECT_EQ(statusOfCopy("nothing").st_blocks, 0);
}

TEST_F(TreeCopyMetadataTest, aHugeFileOfHolesTakesNoSpace) {
    m_world.makeFile("source");
    std::filesystem::resize_file(m_world.path("source"), 10'000'000'000);
    ASSERT_TRUE(copy());
    EXPECT_EQ(dataSegments(m_world.path("target")), "of 10000000000");
}

TEST_F(TreeCopyMetadataTest, rootKeepsOwnersAndSetUserIdBits) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root gives files away";
    m_world.makeFile("source/folder/file", "x");
    m_world.makeLink("source/link", "nowhere");
    for (const char *name : {"source/folder/file", "source/folder", "source/link"})
        ASSERT_EQ(::lchown(m_world.path(name).c_str(), 1234, 5678), 0);
    ASSERT_EQ(::chmod(m_world.path("source/folder/file").c_str(), 06755), 0);
    ASSERT_TRUE(copy());
    expectAlike();
}

TEST_F(TreeCopyMetadataTest, anotherUsersSetUserIdBitIsDropped) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can make another user's file";
    m_world.makeFile("source/file", "x");
    ASSERT_EQ(::chmod(m_world.path("source/file").c_str(), 06755), 0);
    ASSERT_EQ(::chmod(m_world.path().c_str(), 0777), 0);
    const std::string error = testing::asOrdinaryUser([&]() -> std::string {
        const Result<void> copied = copy();
        return copied ? "" : copied.error().text();
    });
    EXPECT_EQ(error, "");
    EXPECT_EQ(statusOfCopy("file").st_mode & 07777U, 0755U);
    EXPECT_EQ(statusOfCopy("file").st_uid, testing::ordinaryUser());
}

TEST_F(TreeCopyMetadataTest, capabilitiesOfAProgramAreKeptByRoot) {
    const std::string file = m_world.makeFile("source/program", "x", 0755);
    // Revision 2, effective: cap_net_raw permitted.
    const std::string capability("\1\0\0\2\0\x20\0\0\0\0\0\0\0\0\0\0\0\0\0\0", 20);
    if (::setxattr(file.c_str(), "security.capability", capability.data(), capability.size(), 0) !=
        0)
        GTEST_SKIP() << "only root gives capabilities";
    ASSERT_TRUE(copy());
    expectAlike();
}

} // namespace
} // namespace zt

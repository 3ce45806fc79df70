// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Copies that are made for everybody, out of what somebody else may read.

#include "Platform/posix/SystemCalls.h"
#include "Platform/posix/TreeCopy.h"
#include "tests/unit/copy/ChildProcess.h"
#include "tests/unit/copy/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace zt {
namespace {

using testing::contentOf;
using testing::itemExists;
using testing::TemporaryFolder;

class TreeCopyRightsTest : public ::testing::Test {
protected:
    TreeCopyRequest request() const {
        return {.source = {AT_FDCWD, m_world.path("source"), m_world.path("source")},
                .target = {AT_FDCWD, m_world.path("target"), m_world.path("target")},
                .rights = CopiedRights::ReadingAndRunning};
    }

    struct stat statusOfCopy(const std::string &name) const {
        const std::optional<struct stat> status =
            statusAt(AT_FDCWD, m_world.path("target/" + name).c_str());
        EXPECT_TRUE(status) << name;
        return status.value_or(m_none);
    }

    // The names of the attributes that the copy has.
    std::string attributesOfCopy(const std::string &name) const {
        std::string names(4096, '\0');
        const ssize_t size =
            ::llistxattr(m_world.path("target/" + name).c_str(), names.data(), names.size());
        names.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
        return names;
    }

    TemporaryFolder m_world;
    struct stat m_none = {};
};

struct ModeRow {
    const char *reason;
    mode_t original;
    mode_t copy;
};

void PrintTo(const ModeRow &row, std::ostream *stream) {
    *stream << row.reason;
}

class FileModeTest : public TreeCopyRightsTest, public ::testing::WithParamInterface<ModeRow> {};

TEST_P(FileModeTest, aFileCanBeReadAndRunByWhomItsOriginalCan) {
    if (::geteuid() != 0 && (GetParam().original & S_IRUSR) == 0)
        GTEST_SKIP() << "only root reads what nobody may read";
    m_world.makeFile("source/file", "x", GetParam().original);
    const Result<void> copied = copyTree(request());
    ASSERT_TRUE(copied) << copied.error().text();
    EXPECT_EQ(statusOfCopy("file").st_mode & 07777U, GetParam().copy);
}

INSTANTIATE_TEST_SUITE_P(
    Modes, FileModeTest,
    ::testing::Values(ModeRow{"plain", 0644, 0644}, ModeRow{"program", 0755, 0755},
                      ModeRow{"readOnly", 0444, 0644}, ModeRow{"forItsOwnerAlone", 0600, 0600},
                      ModeRow{"forNobody", 0, 0600}, ModeRow{"forItsGroupToWrite", 0664, 0644},
                      ModeRow{"forAllToWrite", 0777, 0755},
                      ModeRow{"runButNotReadByOthers", 0711, 0711},
                      ModeRow{"setUserId", 04755, 0755}, ModeRow{"setGroupId", 02755, 0755},
                      ModeRow{"both", 06777, 0755}, ModeRow{"sticky", 01644, 0644}));

class FolderModeTest : public TreeCopyRightsTest, public ::testing::WithParamInterface<ModeRow> {};

TEST_P(FolderModeTest, aFolderCanBeSearchedByWhomItsOriginalCan) {
    if (::geteuid() != 0 && (GetParam().original & 0500U) != 0500U)
        GTEST_SKIP() << "only root searches what nobody may search";
    m_world.makeFile("source/folder/file");
    ASSERT_EQ(::chmod(m_world.path("source/folder").c_str(), GetParam().original), 0);
    const Result<void> copied = copyTree(request());
    ASSERT_TRUE(copied) << copied.error().text();
    EXPECT_EQ(statusOfCopy("folder").st_mode & 07777U, GetParam().copy);
    ASSERT_EQ(::chmod(m_world.path("source/folder").c_str(), 0700), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Modes, FolderModeTest,
    ::testing::Values(ModeRow{"plain", 0755, 0755}, ModeRow{"readOnly", 0555, 0755},
                      ModeRow{"forItsOwnerAlone", 0700, 0700}, ModeRow{"forNobody", 0, 0700},
                      ModeRow{"forAllToWrite", 0777, 0755}, ModeRow{"stickyForAll", 01777, 0755},
                      ModeRow{"setGroupId", 02775, 0755},
                      ModeRow{"listedByNobodyElse", 0711, 0711}));

TEST_F(TreeCopyRightsTest, theMaskForNewFilesHasNoSay) {
    m_world.makeFile("source/file", "x", 0755);
    const std::string error = testing::inChildProcess([&]() -> std::string {
        ::umask(077);
        const Result<void> copied = copyTree(request());
        return copied ? "" : copied.error().text();
    });
    EXPECT_EQ(error, "");
    EXPECT_EQ(statusOfCopy("file").st_mode & 07777U, 0755U);
}

TEST_F(TreeCopyRightsTest, onlyTheUsersOwnAttributesComeAlong) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root gives capabilities";
    const std::string file = m_world.makeFile("source/program", "x", 0755);
    const std::string capability("\1\0\0\2\0\x20\0\0\0\0\0\0\0\0\0\0\0\0\0\0", 20);
    ASSERT_EQ(::setxattr(file.c_str(), "security.capability", capability.data(), 20, 0), 0);
    ASSERT_EQ(::setxattr(file.c_str(), "trusted.note", "1", 1, 0), 0);
    ASSERT_EQ(::setxattr(file.c_str(), "user.note", "1", 1, 0), 0);
    ASSERT_TRUE(copyTree(request()));
    EXPECT_EQ(attributesOfCopy("program"), std::string("user.note\0", 10));
}

TEST_F(TreeCopyRightsTest, accessListsStayBehind) {
    m_world.makeFile("source/folder/file", "x", 0644);
    if (!testing::runQuietly("setfacl -R -m u:12345:rwx,d:u:12345:rwx " +
                             m_world.path("source/folder")))
        GTEST_SKIP() << "no access lists on this file system";
    ASSERT_TRUE(copyTree(request()));
    for (const char *name : {"folder", "folder/file"}) {
        EXPECT_EQ(attributesOfCopy(name), "") << name;
        EXPECT_EQ(statusOfCopy(name).st_mode & 0022U, 0U) << name;
    }
}

TEST_F(TreeCopyRightsTest, theCopyBelongsToItsWriter) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can make another user's file";
    m_world.makeFile("source/folder/file", "x");
    m_world.makeLink("source/link", "nowhere");
    for (const char *name : {"source/folder/file", "source/folder", "source/link", "source"})
        ASSERT_EQ(::lchown(m_world.path(name).c_str(), 1234, 5678), 0);
    // A folder that hands its group down.
    ASSERT_EQ(::chown(m_world.path().c_str(), 0, 5678), 0);
    ASSERT_EQ(::chmod(m_world.path().c_str(), 02755), 0);
    ASSERT_TRUE(copyTree(request()));
    for (const char *name : {".", "folder", "folder/file", "link"}) {
        EXPECT_EQ(statusOfCopy(name).st_uid, 0U) << name;
        EXPECT_EQ(statusOfCopy(name).st_gid, 0U) << name;
    }
}

// Copies as root what an ordinary user may read.
class ReadAsTest : public TreeCopyRightsTest {
protected:
    static constexpr FileSystemIdentity reader = {65534, 65534};

    void SetUp() override {
        if (::geteuid() != 0)
            GTEST_SKIP() << "only root acts as somebody else";
        ASSERT_EQ(::chmod(m_world.path().c_str(), 0755), 0);
    }

    Result<void> copy() const {
        TreeCopyRequest request = this->request();
        request.readAs = reader;
        return copyTree(request);
    }

    std::string secret() const { return m_world.makeFile("secret", "of root", 0600); }
};

TEST_F(ReadAsTest, whatTheReaderMayReadIsCopiedForTheWriter) {
    const std::string file = m_world.makeFile("source/folder/file", "x", 0600);
    ASSERT_EQ(::chown(file.c_str(), reader.user, reader.group), 0);
    m_world.makeLink("source/link", secret());
    std::filesystem::create_hard_link(file, m_world.path("source/same"));
    const Result<void> copied = copy();
    ASSERT_TRUE(copied) << copied.error().text();
    EXPECT_EQ(contentOf(m_world.path("target/folder/file")), "x");
    EXPECT_EQ(statusOfCopy("folder/file").st_ino, statusOfCopy("same").st_ino);
    EXPECT_EQ(statusOfCopy("folder/file").st_uid, 0U);
    EXPECT_EQ(std::filesystem::read_symlink(m_world.path("target/link")), secret());
    EXPECT_FALSE(itemExists(m_world.path("target.links")));
}

TEST_F(ReadAsTest, aFileThatTheReaderMayNotReadEndsTheCopy) {
    m_world.makeFile("source/file", "x");
    std::filesystem::create_hard_link(secret(), m_world.path("source/innocent"));
    const Result<void> copied = copy();
    ASSERT_FALSE(copied);
    EXPECT_EQ(copied.error().code, EACCES);
    EXPECT_EQ(copied.error().object, m_world.path("source/innocent"));
    EXPECT_FALSE(itemExists(m_world.path("target/innocent")));
}

TEST_F(ReadAsTest, aFolderThatTheReaderMayNotListEndsTheCopy) {
    m_world.makeFile("source/folder/file", "x");
    ASSERT_EQ(::chmod(m_world.path("source/folder").c_str(), 0711), 0);
    const Result<void> copied = copy();
    ASSERT_FALSE(copied);
    EXPECT_EQ(copied.error().code, EACCES);
    EXPECT_FALSE(itemExists(m_world.path("target/folder/file")));
}

TEST_F(ReadAsTest, theSizesAreAddedUpAsTheReaderToo) {
    m_world.makeFile("source/folder/file", "x");
    ASSERT_EQ(::chmod(m_world.path("source/folder").c_str(), 0711), 0);
    TreeCopyRequest request = this->request();
    request.readAs = reader;
    request.progress = [](const CopyProgress &) {};
    EXPECT_FALSE(copyTree(request));
    EXPECT_FALSE(itemExists(m_world.path("target")));
}

// With few descriptors, folders of the copy are closed and opened again, which only the writer may.
TEST_F(ReadAsTest, aDeepAndWideTreeIsCopiedWithFewDescriptors) {
    std::string name = "source";
    for (int depth = 0; depth < 60; ++depth) {
        for (const char *sibling : {"/a", "/b", "/c"})
            m_world.makeFile(name + sibling + "/file", name);
        name += "/deeper";
    }
    const std::string error = testing::inChildProcess([&]() -> std::string {
        const rlimit few = {64, 64};
        if (::setrlimit(RLIMIT_NOFILE, &few) != 0)
            return "cannot set the limit";
        const Result<void> copied = copy();
        return copied ? "" : copied.error().text();
    });
    EXPECT_EQ(error, "");
    EXPECT_TRUE(
        testing::runQuietly("diff -r " + m_world.path("source") + ' ' + m_world.path("target")));
}

TEST_F(ReadAsTest, theThreadIsItselfAgainAfterwards) {
    m_world.makeFile("source/file");
    const FileSystemIdentity before = FileSystemIdentity::current();
    ASSERT_TRUE(copy());
    EXPECT_EQ(FileSystemIdentity::current(), before);
    EXPECT_EQ(contentOf(secret()), "of root");
}

using ActingAsTest = ReadAsTest;

TEST_F(ActingAsTest, anotherIdentityHasNoneOfThePowersOfRoot) {
    const std::string path = secret();
    {
        const ActingAs nobody(reader);
        EXPECT_EQ(FileSystemIdentity::current(), reader);
        EXPECT_FALSE(openAt(AT_FDCWD, path.c_str(), O_RDONLY));
        EXPECT_NE(::chmod(path.c_str(), 0644), 0);
        EXPECT_NE(::chown(path.c_str(), reader.user, reader.group), 0);
    }
    EXPECT_TRUE(openAt(AT_FDCWD, path.c_str(), O_RDONLY));
}

TEST_F(ActingAsTest, scopesNest) {
    {
        const ActingAs nobody(reader);
        {
            const ActingAs root(FileSystemIdentity{0, 0});
            EXPECT_TRUE(openAt(AT_FDCWD, secret().c_str(), O_RDONLY));
        }
        EXPECT_EQ(FileSystemIdentity::current(), reader);
    }
    EXPECT_EQ(FileSystemIdentity::current(), (FileSystemIdentity{0, 0}));
}

TEST(ActingAsWithoutPrivilegesTest, aProcessThatCannotChangeEnds) {
    const std::string outcome = testing::asOrdinaryUser([] {
        const rlimit none = {0, 0};
        ::setrlimit(RLIMIT_CORE, &none);
        const ActingAs root(FileSystemIdentity{0, 0});
        return std::string("it went on");
    });
    EXPECT_THAT(outcome, ::testing::StartsWith("the child process ended with status"));
}

} // namespace
} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/train/TrustedFolder.h"

#include <gtest/gtest.h>

#include <ostream>

namespace zt {
namespace {

struct FolderRow {
    const char *reason;
    uid_t user;
    gid_t group;
    mode_t mode;
    const char *reasonNotToTrust;
};

void PrintTo(const FolderRow &row, std::ostream *stream) {
    *stream << row.reason;
}

constexpr const char *trusted = "";
constexpr const char *ofAnother = "it belongs to another user than root";
constexpr const char *forItsGroup = "its group, or somebody by its access list, may write to it";
constexpr const char *forAll = "everybody may write to it";

class FolderTrustTest : public ::testing::TestWithParam<FolderRow> {};

TEST_P(FolderTrustTest, onlyWhatRootAloneCanChangeIsTrusted) {
    struct stat status = {};
    status.st_uid = GetParam().user;
    status.st_gid = GetParam().group;
    status.st_mode = S_IFDIR | GetParam().mode;
    EXPECT_EQ(reasonNotToTrust(status), GetParam().reasonNotToTrust);
}

INSTANTIATE_TEST_SUITE_P(
    Folders, FolderTrustTest,
    ::testing::Values(FolderRow{"usual", 0, 0, 0755, trusted},
                      FolderRow{"private", 0, 0, 0700, trusted},
                      FolderRow{"anotherGroupThatOnlyReads", 0, 50, 0755, trusted},
                      FolderRow{"handsDownItsGroup", 0, 50, 02755, trusted},
                      FolderRow{"anotherUser", 1000, 0, 0755, ofAnother},
                      FolderRow{"anotherUserWhoMayNotWriteNow", 1000, 0, 0555, ofAnother},
                      FolderRow{"groupMayWrite", 0, 50, 02775, forItsGroup},
                      FolderRow{"groupOfRootMayWrite", 0, 0, 0775, forItsGroup},
                      FolderRow{"othersMayWrite", 0, 0, 0757, forAll},
                      FolderRow{"othersMayWriteSticky", 0, 0, 01757, forAll}));

struct SystemFolderRow {
    const char *path;
    bool belongsToTheSystem;
};

void PrintTo(const SystemFolderRow &row, std::ostream *stream) {
    *stream << row.path;
}

class SystemFolderTest : public ::testing::TestWithParam<SystemFolderRow> {};

TEST_P(SystemFolderTest, theSystemsOwnFoldersAreTold) {
    EXPECT_EQ(belongsToTheSystem(GetParam().path), GetParam().belongsToTheSystem);
}

INSTANTIATE_TEST_SUITE_P(
    Paths, SystemFolderTest,
    ::testing::Values(SystemFolderRow{"/", true}, SystemFolderRow{"/etc", true},
                      SystemFolderRow{"/etc/systemd/system", true}, SystemFolderRow{"/usr", true},
                      SystemFolderRow{"/usr/bin", true}, SystemFolderRow{"/usr/localized", true},
                      SystemFolderRow{"/var/lib", true}, SystemFolderRow{"/root", true},
                      SystemFolderRow{"/usr/local", false},
                      SystemFolderRow{"/usr/local/Applications", false},
                      SystemFolderRow{"/Applications", false}, SystemFolderRow{"/opt", false},
                      SystemFolderRow{"/etcetera", false}, SystemFolderRow{"/Volumes/etc", false}));

TEST(TrustedFolderTest, theFolderOfAllFoldersIsOpened) {
    const Result<UniqueFd> root = openTrustedFolder("/");
    ASSERT_TRUE(root) << root.error().text();
    EXPECT_TRUE(*root);
}

TEST(TrustedFolderTest, aFolderThatEverybodyMayWriteToIsNot) {
    struct stat status = {};
    if (::stat("/tmp", &status) != 0 || (status.st_mode & S_IWOTH) == 0)
        GTEST_SKIP() << "/tmp is not for everybody here";
    const Result<UniqueFd> temporary = openTrustedFolder("/tmp");
    ASSERT_FALSE(temporary);
    EXPECT_EQ(temporary.error().code, EPERM);
    EXPECT_EQ(temporary.error().object, "/tmp");
}

} // namespace
} // namespace zt

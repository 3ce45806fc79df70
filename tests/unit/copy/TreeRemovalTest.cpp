// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/TreeRemoval.h"
#include "Platform/posix/SystemCalls.h"
#include "tests/unit/copy/ChildProcess.h"
#include "tests/unit/copy/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>

namespace zt {
namespace {

using testing::itemExists;
using testing::TemporaryFolder;

TEST(TreeRemovalTest, aMissingItemCountsAsRemoved) {
    const TemporaryFolder folder;
    EXPECT_TRUE(removeTree(AT_FDCWD, folder.path("missing").c_str()));
}

TEST(TreeRemovalTest, aMissingParentIsAnError) {
    const TemporaryFolder folder;
    const std::string file = folder.makeFile("file");
    EXPECT_FALSE(removeTree(AT_FDCWD, (file + "/below").c_str()));
}

TEST(TreeRemovalTest, aFolderGoesWithAllThatIsInIt) {
    const TemporaryFolder folder;
    folder.makeFile("tree/a/b/file", "x");
    folder.makeFolder("tree/empty");
    folder.makeFile("tree/.hidden");
    ASSERT_TRUE(removeTree(AT_FDCWD, folder.path("tree").c_str()));
    EXPECT_FALSE(itemExists(folder.path("tree")));
}

TEST(TreeRemovalTest, aLinkGoesAndItsTargetStays) {
    const TemporaryFolder folder;
    folder.makeFile("target/file");
    folder.makeLink("tree/link", folder.path("target"));
    folder.makeLink("top", folder.path("target"));
    ASSERT_TRUE(removeTree(AT_FDCWD, folder.path("tree").c_str()));
    ASSERT_TRUE(removeTree(AT_FDCWD, folder.path("top").c_str()));
    EXPECT_TRUE(itemExists(folder.path("target/file")));
}

TEST(TreeRemovalTest, aFolderThatDeniesAccessGoesToo) {
    const TemporaryFolder folder;
    folder.makeFile("tree/closed/file");
    folder.makeFile("tree/readOnly/file");
    ASSERT_EQ(::chmod(folder.path("tree/closed").c_str(), 0), 0);
    ASSERT_EQ(::chmod(folder.path("tree/readOnly").c_str(), 0555), 0);
    ASSERT_TRUE(removeTree(AT_FDCWD, folder.path("tree").c_str()));
    EXPECT_FALSE(itemExists(folder.path("tree")));
}

TEST(TreeRemovalTest, aMountedVolumeKeepsItsContent) {
    const TemporaryFolder folder;
    folder.makeFolder("tree/mounted");
    folder.makeFile("other/file", "kept");
    const std::string outcome = testing::withPrivateMounts([&]() -> std::string {
        const std::string mounted = folder.path("tree/mounted");
        // Seen through a second mount of the same file system, which no device number tells.
        if (::mount(folder.path("other").c_str(), mounted.c_str(), nullptr, MS_BIND, nullptr) != 0)
            return testing::cannotMount;
        const Result<void> around = removeTree(AT_FDCWD, folder.path("tree").c_str());
        const Result<void> itself = removeTree(AT_FDCWD, mounted.c_str());
        return !around && !itself && around.error().code == EBUSY ? "" : "it was removed";
    });
    if (outcome == testing::cannotMount)
        GTEST_SKIP() << outcome;
    EXPECT_EQ(outcome, "");
    EXPECT_EQ(testing::contentOf(folder.path("other/file")), "kept");
}

TEST(TreeRemovalTest, aTreeOnAnotherVolumeThanTheWorkingFolderIsRemoved) {
    const TemporaryFolder folder(testing::fastTemporaryParent());
    folder.makeFile("tree/a/file");
    ASSERT_TRUE(removeTree(AT_FDCWD, folder.path("tree").c_str()));
    EXPECT_FALSE(itemExists(folder.path("tree")));
}

TEST(TreeRemovalTest, aFolderOfManyEntriesIsEmptied) {
    const TemporaryFolder folder;
    const UniqueFd tree(::open(folder.makeFolder("tree").c_str(), O_RDONLY | O_CLOEXEC));
    for (int i = 0; i < 3000; ++i)
        ASSERT_TRUE(openAt(tree.get(), std::to_string(i).c_str(), O_WRONLY | O_CREAT, 0644));
    ASSERT_TRUE(removeTree(AT_FDCWD, folder.path("tree").c_str()));
    EXPECT_FALSE(itemExists(folder.path("tree")));
}

TEST(TreeRemovalTest, aTreeDeeperThanAnyPathIsRemoved) {
    const TemporaryFolder folder;
    const std::string name(100, 'd');
    UniqueFd current(::open(folder.makeFolder("tree").c_str(), O_RDONLY | O_CLOEXEC));
    for (int depth = 0; depth < 300; ++depth) {
        ASSERT_EQ(::mkdirat(current.get(), name.c_str(), 0755), 0);
        ASSERT_TRUE(openAt(current.get(), "file", O_WRONLY | O_CREAT, 0644));
        current = openAt(current.get(), name.c_str(), O_RDONLY | O_DIRECTORY);
        ASSERT_TRUE(current);
    }
    ASSERT_TRUE(removeTree(AT_FDCWD, folder.path("tree").c_str()));
    EXPECT_FALSE(itemExists(folder.path("tree")));
}

} // namespace
} // namespace zt

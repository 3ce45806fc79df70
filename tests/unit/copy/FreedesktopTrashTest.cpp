// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/FreedesktopTrash.h"

#include "tests/unit/copy/ScopedEnvironment.h"
#include "tests/unit/copy/TemporaryFolder.h"
#include "tests/unit/copy/TreeDescription.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <ctime>
#include <optional>
#include <string>

namespace zt {
namespace {

using testing::contentOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::itemExists;
using testing::namesIn;
using testing::ScopedEnvironment;
using testing::TemporaryFolder;

// A home folder and a second "volume", both in one temporary folder: which volume an item lies on
// is told by the path.
class FreedesktopTrashTest : public ::testing::Test {
protected:
    FreedesktopTrash makeTrash() const {
        FreedesktopTrash::Roots roots;
        roots.dataHome = m_world.path("home/.local/share");
        roots.user = ::geteuid();
        roots.topDirectoryOf = [world = m_world.path()](const std::string &folder) {
            const std::string volume = world + "/volume";
            return folder.starts_with(volume) ? volume : world;
        };
        return FreedesktopTrash(roots);
    }

    std::string privateTrash() const {
        return m_world.path("volume/.Trash-" + std::to_string(::geteuid()));
    }

    TemporaryFolder m_world;
    std::string m_homeTrash = m_world.path("home/.local/share/Trash");
};

TEST_F(FreedesktopTrashTest, anItemOfTheHomeVolumeGoesToTheHomeTrash) {
    m_world.makeFile("Applications/Product.app/Contents/file", "old");
    const Result<std::string> moved =
        makeTrash().moveToTrash(m_world.path("Applications/Product.app"));
    ASSERT_TRUE(moved) << moved.error().text();
    EXPECT_EQ(*moved, m_homeTrash + "/files/Product.app");
    EXPECT_FALSE(itemExists(m_world.path("Applications/Product.app")));
    EXPECT_EQ(contentOf(*moved + "/Contents/file"), "old");
    EXPECT_THAT(contentOf(m_homeTrash + "/info/Product.app.trashinfo"),
                HasSubstr("Path=" + m_world.path("Applications/Product.app") + "\n"));
}

TEST_F(FreedesktopTrashTest, theHomeTrashIsMadeForTheUserAlone) {
    ASSERT_TRUE(makeTrash().moveToTrash(m_world.makeFile("file")));
    for (const char *name : {"", "/files", "/info"}) {
        struct stat status = {};
        ASSERT_EQ(::stat((m_homeTrash + name).c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777U, 0700U) << name;
    }
}

TEST_F(FreedesktopTrashTest, theRecordTellsWhenTheItemWasDeleted) {
    const auto now = [] {
        const std::time_t time = std::time(nullptr);
        std::array<char, 32> text = {};
        std::tm local = {};
        std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S", ::localtime_r(&time, &local));
        return std::string(text.data());
    };
    const std::string before = now();
    ASSERT_TRUE(makeTrash().moveToTrash(m_world.makeFile("file")));
    const std::string after = now();
    const std::string record = contentOf(m_homeTrash + "/info/file.trashinfo");
    const std::string date = record.substr(record.find("DeletionDate=") + 13, before.size());
    EXPECT_LE(before, date);
    EXPECT_LE(date, after);
}

TEST_F(FreedesktopTrashTest, aSecondItemOfTheSameNameGetsAnotherName) {
    FreedesktopTrash trash = makeTrash();
    for (const char *content : {"first", "second", "third"}) {
        m_world.makeFile("Product.app/which", content);
        ASSERT_TRUE(trash.moveToTrash(m_world.path("Product.app")));
    }
    const std::string files = m_homeTrash + "/files";
    EXPECT_THAT(namesIn(files), ElementsAre("Product.2.app", "Product.3.app", "Product.app"));
    EXPECT_EQ(contentOf(files + "/Product.app/which"), "first");
    EXPECT_EQ(contentOf(files + "/Product.2.app/which"), "second");
    EXPECT_EQ(contentOf(files + "/Product.3.app/which"), "third");
}

TEST_F(FreedesktopTrashTest, aFileWithoutRecordIsNotOverwritten) {
    m_world.makeFile("home/.local/share/Trash/files/file", "orphan");
    const Result<std::string> moved = makeTrash().moveToTrash(m_world.makeFile("file", "new"));
    ASSERT_TRUE(moved);
    EXPECT_EQ(*moved, m_homeTrash + "/files/file.2");
    EXPECT_EQ(contentOf(m_homeTrash + "/files/file"), "orphan");
    EXPECT_THAT(namesIn(m_homeTrash + "/info"), ElementsAre("file.2.trashinfo"));
}

TEST_F(FreedesktopTrashTest, aLinkItselfIsMovedAndNotItsTarget) {
    m_world.makeFile("target/file", "kept");
    const Result<std::string> moved =
        makeTrash().moveToTrash(m_world.makeLink("link.app", m_world.path("target")));
    ASSERT_TRUE(moved);
    struct stat status = {};
    ASSERT_EQ(::lstat(moved->c_str(), &status), 0);
    EXPECT_TRUE(S_ISLNK(status.st_mode));
    EXPECT_EQ(contentOf(m_world.path("target/file")), "kept");
}

TEST_F(FreedesktopTrashTest, aDanglingLinkIsMovedToo) {
    EXPECT_TRUE(makeTrash().moveToTrash(m_world.makeLink("link.app", "nowhere")));
}

TEST_F(FreedesktopTrashTest, aLinkOnTheWayIsNotPartOfTheOrigin) {
    m_world.makeFile("real/file");
    m_world.makeLink("alias", "real");
    ASSERT_TRUE(makeTrash().moveToTrash(m_world.path("alias/file")));
    EXPECT_THAT(contentOf(m_homeTrash + "/info/file.trashinfo"),
                HasSubstr("Path=" + m_world.path("real/file") + "\n"));
}

TEST_F(FreedesktopTrashTest, trailingSlashesAreNoPartOfTheName) {
    m_world.makeFile("Product.app/file");
    const Result<std::string> moved = makeTrash().moveToTrash(m_world.path("Product.app///"));
    ASSERT_TRUE(moved);
    EXPECT_EQ(*moved, m_homeTrash + "/files/Product.app");
}

TEST_F(FreedesktopTrashTest, anItemOfAnotherVolumeGoesToThatVolumesTrash) {
    m_world.makeFile("volume/apps/Product.app/file");
    const Result<std::string> moved =
        makeTrash().moveToTrash(m_world.path("volume/apps/Product.app"));
    ASSERT_TRUE(moved);
    EXPECT_EQ(*moved, privateTrash() + "/files/Product.app");
    EXPECT_THAT(contentOf(privateTrash() + "/info/Product.app.trashinfo"),
                HasSubstr("Path=apps/Product.app\n"));
    EXPECT_FALSE(itemExists(m_homeTrash));
}

TEST_F(FreedesktopTrashTest, aStickySharedTrashIsPreferred) {
    ASSERT_EQ(::chmod(m_world.makeFolder("volume/.Trash").c_str(), 01777), 0);
    const Result<std::string> moved = makeTrash().moveToTrash(m_world.makeFile("volume/file"));
    ASSERT_TRUE(moved);
    EXPECT_EQ(*moved, m_world.path("volume/.Trash/" + std::to_string(::geteuid()) + "/files/file"));
}

TEST_F(FreedesktopTrashTest, aSharedTrashWithoutStickyBitIsNotTrusted) {
    ASSERT_EQ(::chmod(m_world.makeFolder("volume/.Trash").c_str(), 0777), 0);
    const Result<std::string> moved = makeTrash().moveToTrash(m_world.makeFile("volume/file"));
    ASSERT_TRUE(moved);
    EXPECT_EQ(*moved, privateTrash() + "/files/file");
}

TEST_F(FreedesktopTrashTest, aSharedTrashThatIsALinkIsNotTrusted) {
    ASSERT_EQ(::chmod(m_world.makeFolder("elsewhere").c_str(), 01777), 0);
    m_world.makeLink("volume/.Trash", m_world.path("elsewhere"));
    const Result<std::string> moved = makeTrash().moveToTrash(m_world.makeFile("volume/file"));
    ASSERT_TRUE(moved);
    EXPECT_EQ(*moved, privateTrash() + "/files/file");
    EXPECT_THAT(namesIn(m_world.path("elsewhere")), IsEmpty());
}

TEST_F(FreedesktopTrashTest, aPrivateTrashThatIsALinkIsNotTrusted) {
    m_world.makeFolder("elsewhere");
    m_world.makeLink("volume/.Trash-" + std::to_string(::geteuid()), m_world.path("elsewhere"));
    const Result<std::string> moved = makeTrash().moveToTrash(m_world.makeFile("volume/file"));
    ASSERT_TRUE(moved);
    EXPECT_EQ(*moved, m_homeTrash + "/files/file");
    EXPECT_THAT(namesIn(m_world.path("elsewhere")), IsEmpty());
}

TEST_F(FreedesktopTrashTest, anItemOfAVolumeWithoutTrashIsCopiedToTheHomeTrash) {
    m_world.makeFile(".Trash-" + std::to_string(::geteuid()));
    m_world.makeFile("volume/.Trash-" + std::to_string(::geteuid()));
    m_world.makeFile("volume/apps/Product.app/Contents/file", "old", 0640);
    m_world.makeLink("volume/apps/Product.app/link", "Contents/file");
    const auto before = testing::describeTree(m_world.path("volume/apps/Product.app"));
    const Result<std::string> moved =
        makeTrash().moveToTrash(m_world.path("volume/apps/Product.app"));
    ASSERT_TRUE(moved) << moved.error().text();
    EXPECT_EQ(*moved, m_homeTrash + "/files/Product.app");
    EXPECT_EQ(testing::describeTree(*moved), before);
    EXPECT_THAT(namesIn(m_world.path("volume/apps")), IsEmpty());
    EXPECT_THAT(contentOf(m_homeTrash + "/info/Product.app.trashinfo"),
                HasSubstr("Path=" + m_world.path("volume/apps/Product.app") + "\n"));
    EXPECT_THAT(namesIn(m_homeTrash), ElementsAre("files", "info"));
}

TEST_F(FreedesktopTrashTest, anItemThatCannotBeCopiedToTheHomeTrashStays) {
    m_world.makeFile("volume/.Trash-" + std::to_string(::geteuid()));
    m_world.makeFolder("volume/Product.app");
    ASSERT_EQ(::mkfifo(m_world.path("volume/Product.app/pipe").c_str(), 0600), 0);
    EXPECT_FALSE(makeTrash().moveToTrash(m_world.path("volume/Product.app")));
    EXPECT_TRUE(itemExists(m_world.path("volume/Product.app/pipe")));
    EXPECT_THAT(namesIn(m_homeTrash), ElementsAre("files", "info"));
    EXPECT_THAT(namesIn(m_homeTrash + "/files"), IsEmpty());
    EXPECT_THAT(namesIn(m_homeTrash + "/info"), IsEmpty());
}

TEST_F(FreedesktopTrashTest, aSecondCopyInTheHomeTrashGetsAnotherName) {
    m_world.makeFile("volume/.Trash-" + std::to_string(::geteuid()));
    FreedesktopTrash trash = makeTrash();
    for (const char *content : {"first", "second"})
        ASSERT_TRUE(trash.moveToTrash(m_world.makeFile("volume/file", content)));
    EXPECT_EQ(contentOf(m_homeTrash + "/files/file"), "first");
    EXPECT_EQ(contentOf(m_homeTrash + "/files/file.2"), "second");
}

TEST_F(FreedesktopTrashTest, aTrashThatCannotBeMadeLeavesTheItem) {
    m_world.makeFile("home/.local/share/Trash/files", "a file where a folder should be");
    m_world.makeFile(".Trash-" + std::to_string(::geteuid()));
    const std::string file = m_world.makeFile("file", "kept");
    const Result<std::string> moved = makeTrash().moveToTrash(file);
    ASSERT_FALSE(moved);
    EXPECT_EQ(moved.error().object, m_homeTrash + "/files");
    EXPECT_EQ(contentOf(file), "kept");
}

TEST_F(FreedesktopTrashTest, aFailedMoveLeavesNoRecord) {
    // A folder cannot be moved into itself, and here the Trash lies in the item.
    const Result<std::string> moved = makeTrash().moveToTrash(m_world.makeFolder("home"));
    ASSERT_FALSE(moved);
    EXPECT_EQ(moved.error().code, EINVAL);
    EXPECT_TRUE(itemExists(m_world.path("home")));
    EXPECT_THAT(namesIn(m_homeTrash + "/info"), IsEmpty());
    EXPECT_THAT(namesIn(m_homeTrash + "/files"), IsEmpty());
}

TEST_F(FreedesktopTrashTest, aMissingItemIsAnErrorAndMakesNothing) {
    const Result<std::string> moved = makeTrash().moveToTrash(m_world.path("missing"));
    ASSERT_FALSE(moved);
    EXPECT_EQ(moved.error().code, ENOENT);
    EXPECT_FALSE(itemExists(m_world.path("home")));
}

class FreedesktopTrashPathTest : public ::testing::TestWithParam<const char *> {};

TEST_P(FreedesktopTrashPathTest, whatNamesNoItemIsRefused) {
    const TemporaryFolder world;
    FreedesktopTrash trash({.dataHome = world.path(), .user = ::geteuid()});
    EXPECT_FALSE(trash.moveToTrash(GetParam()));
    EXPECT_THAT(namesIn(world.path()), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Paths, FreedesktopTrashPathTest,
                         ::testing::Values("", "/", "///", "relative", "/tmp/.", "/tmp/.."));

TEST_F(FreedesktopTrashTest, namesOfAnyBytesAreKept) {
    const std::string name = "a\xFF\n b";
    const Result<std::string> moved = makeTrash().moveToTrash(m_world.makeFile(name));
    ASSERT_TRUE(moved);
    EXPECT_EQ(*moved, m_homeTrash + "/files/" + name);
    EXPECT_THAT(contentOf(m_homeTrash + "/info/" + name + ".trashinfo"),
                HasSubstr("/a%FF%0A%20b\n"));
}

TEST_F(FreedesktopTrashTest, theLongestNameFits) {
    const Result<std::string> moved =
        makeTrash().moveToTrash(m_world.makeFile(std::string(255, 'n')));
    ASSERT_TRUE(moved) << moved.error().text();
    EXPECT_EQ(namesIn(m_homeTrash + "/info").size(), 1U);
}

TEST_F(FreedesktopTrashTest, aReadOnlyFolderIsMovedAndStaysReadOnly) {
    m_world.makeFile("Product.app/file");
    ASSERT_EQ(::chmod(m_world.path("Product.app").c_str(), 0555), 0);
    const Result<std::string> moved = makeTrash().moveToTrash(m_world.path("Product.app"));
    ASSERT_TRUE(moved) << moved.error().text();
    struct stat status = {};
    ASSERT_EQ(::stat(moved->c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0555U);
}

TEST(VolumeTopDirectoryTest, theTopOfAMountedVolumeIsFound) {
    struct stat root = {};
    struct stat proc = {};
    ASSERT_EQ(::stat("/", &root), 0);
    if (::stat("/proc/self", &proc) != 0 || root.st_dev == proc.st_dev)
        GTEST_SKIP() << "/proc is not mounted";
    const Result<std::string> top = volumeTopDirectory("/proc/" + std::to_string(::getpid()));
    ASSERT_TRUE(top);
    EXPECT_EQ(*top, "/proc");
    EXPECT_EQ(*volumeTopDirectory("/"), "/");
}

TEST(TrashRootsTest, theDataFolderOfTheEnvironmentCounts) {
    const ScopedEnvironment dataHome("XDG_DATA_HOME", "/somewhere/data");
    EXPECT_EQ(FreedesktopTrash::rootsOfThisUser().dataHome, "/somewhere/data");
}

TEST(TrashRootsTest, withoutAnAbsoluteDataFolderTheOneInTheHomeFolderCounts) {
    const ScopedEnvironment home("HOME", "/home/someone");
    {
        const ScopedEnvironment relative("XDG_DATA_HOME", "relative");
        EXPECT_EQ(FreedesktopTrash::rootsOfThisUser().dataHome, "/home/someone/.local/share");
    }
    const ScopedEnvironment unset("XDG_DATA_HOME", std::nullopt);
    EXPECT_EQ(FreedesktopTrash::rootsOfThisUser().dataHome, "/home/someone/.local/share");
}

} // namespace
} // namespace zt

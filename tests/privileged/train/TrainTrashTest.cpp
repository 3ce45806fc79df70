// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Where the tool puts an existing copy.

#include "Installer/train/ExitStatus.h"
#include "tests/privileged/train/TrainFixture.h"
#include "tests/unit/copy/ChildProcess.h"
#include "tests/unit/copy/TreeDescription.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <ostream>
#include <string>

namespace zt::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr int trashFailed = static_cast<int>(ExitStatus::TrashFailed);

class TrainTrashTest : public TrainTest {
protected:
    void SetUp() override {
        TrainTest::SetUp();
        if (reasonForNoWorld().empty())
            makeProduct("Applications/Product.app", "old");
    }

    std::string trashed() const { return m_trashPath + "/files/Product.app"; }

    void expectInTrashOfRoot(const TrainEnd &end) {
        EXPECT_EQ(end.status, 0) << end.log;
        EXPECT_EQ(versionAt(m_destination), "new");
        EXPECT_THAT(versionsInTrashOfRoot(), ElementsAre("old"));
        EXPECT_THAT(end.log, HasSubstr("The existing copy cannot go to the Trash of ann: "));
        EXPECT_THAT(end.log, HasSubstr("The existing copy is in the Trash of root: " +
                                       m_trashOfRoot + "/files/Product.app"));
        EXPECT_THAT(namesIn(m_world.path("Applications")), ElementsAre("Product.app"));
    }
};

TEST_F(TrainTrashTest, theAskerFindsACopyInHisTrash) {
    const auto before = rest();
    const TrainEnd end = train();
    EXPECT_EQ(end.status, 0) << end.log;
    EXPECT_EQ(versionAt(m_destination), "new");
    EXPECT_THAT(trashedVersions(), ElementsAre("old"));
    EXPECT_THAT(contentOf(m_trashPath + "/info/Product.app.trashinfo"),
                HasSubstr("Path=" + m_destination + "\n"));
    EXPECT_THAT(end.log, HasSubstr("The existing copy is in the Trash of ann: " + trashed()));
    EXPECT_THAT(namesIn(m_world.path("Applications")), ElementsAre("Product.app"));
    EXPECT_THAT(namesIn(m_trashPath), ElementsAre("files", "info"));
    EXPECT_EQ(rest(), before);
}

TEST_F(TrainTrashTest, whatTheAskerGetsIsAllHis) {
    ASSERT_EQ(train().status, 0);
    for (const auto &entry :
         std::filesystem::recursive_directory_iterator(std::string(askersHome) + "/.local")) {
        struct stat status = {};
        ASSERT_EQ(::lstat(entry.path().c_str(), &status), 0);
        EXPECT_EQ(status.st_uid, asker) << entry.path();
        EXPECT_EQ(status.st_gid, askersGroup) << entry.path();
    }
}

TEST_F(TrainTrashTest, theAskerNeverGetsTheItemItself) {
    struct stat before = {};
    ASSERT_EQ(::stat(installed("version").c_str(), &before), 0);
    // As a program that runs keeps hold of it.
    std::filesystem::create_hard_link(installed("version"), m_world.path("private/held"));
    ASSERT_EQ(train().status, 0);
    struct stat given = {};
    struct stat held = {};
    ASSERT_EQ(::stat((trashed() + "/Contents/version").c_str(), &given), 0);
    ASSERT_EQ(::stat(m_world.path("private/held").c_str(), &held), 0);
    EXPECT_NE(given.st_ino, before.st_ino);
    EXPECT_EQ(held.st_uid, 0U);
    EXPECT_EQ(held.st_mode, before.st_mode);
}

TEST_F(TrainTrashTest, noRightsOfTheExistingCopyAreGivenAway) {
    const std::string program = m_world.makeFile("Applications/Product.app/Contents/p", "x");
    ASSERT_EQ(::chmod(program.c_str(), 06755), 0);
    ASSERT_EQ(train().status, 0);
    struct stat status = {};
    ASSERT_EQ(::stat((trashed() + "/Contents/p").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0755U);
    EXPECT_EQ(status.st_uid, asker);
}

TEST_F(TrainTrashTest, whatTheAskerMayNotReadGoesToTheTrashOfRoot) {
    std::filesystem::copy_file(m_secret, installed("secret"));
    const TrainEnd end = train();
    expectInTrashOfRoot(end);
    EXPECT_THAT(end.log, HasSubstr("Contents/secret: Permission denied"));
    EXPECT_THAT(trashedVersions(), IsEmpty());
    EXPECT_THAT(namesIn(m_trashPath), ElementsAre("files", "info"));
    EXPECT_EQ(contentOf(m_trashOfRoot + "/files/Product.app/Contents/secret"), "of root");
    EXPECT_NE(asOrdinaryUser([&] { return contentOf(m_trashOfRoot + "/files/Product.app"); }),
              "of root");
}

TEST_F(TrainTrashTest, whatRootReplacesForHimselfGoesToHisTrash) {
    const TrainEnd end = train({{m_source, m_destination}, {"HOME=" + std::string(askersHome)}});
    EXPECT_EQ(end.status, 0) << end.log;
    EXPECT_THAT(versionsInTrashOfRoot(), ElementsAre("old"));
    EXPECT_THAT(end.log, HasSubstr("The existing copy is in the Trash of root"));
    EXPECT_FALSE(itemExists(m_trashPath));
}

TEST_F(TrainTrashTest, aLinkAtTheDestinationIsTrashedItself) {
    ASSERT_EQ(std::rename(m_destination.c_str(), m_world.path("elsewhere.app").c_str()), 0);
    m_world.makeLink("Applications/Product.app", m_world.path("elsewhere.app"));
    const TrainEnd end = train();
    EXPECT_EQ(end.status, 0) << end.log;
    EXPECT_EQ(versionAt(m_world.path("elsewhere.app")), "old");
    EXPECT_TRUE(std::filesystem::is_symlink(trashed()));
}

TEST_F(TrainTrashTest, anItemOfAnotherVolumeIsCopiedToTheAskersTrash) {
    const std::string volume = m_world.makeFolder("volume");
    ASSERT_EQ(::mount("tmpfs", volume.c_str(), "tmpfs", 0, "size=8m,mode=755"), 0);
    makeProduct("volume/Product.app", "old");
    const TrainEnd end = train({{m_source, volume + "/Product.app"}});
    EXPECT_EQ(end.status, 0) << end.log;
    EXPECT_EQ(versionAt(volume + "/Product.app"), "new");
    EXPECT_THAT(trashedVersions(), ElementsAre("old"));
    EXPECT_THAT(namesIn(volume), ElementsAre("Product.app"));
    ASSERT_EQ(::umount(volume.c_str()), 0);
}

TEST_F(TrainTrashTest, anItemOfAnotherVolumeThatIsRootsAloneStaysThere) {
    const std::string volume = m_world.makeFolder("volume");
    ASSERT_EQ(::mount("tmpfs", volume.c_str(), "tmpfs", 0, "size=8m,mode=755"), 0);
    makeProduct("volume/Product.app", "old");
    ASSERT_EQ(::chmod((volume + "/Product.app").c_str(), 0700), 0);
    const TrainEnd end = train({{m_source, volume + "/Product.app"}});
    EXPECT_EQ(end.status, 0) << end.log;
    EXPECT_EQ(versionAt(volume + "/.Trash-0/files/Product.app"), "old");
    EXPECT_THAT(trashedVersions(), IsEmpty());
    ASSERT_EQ(::umount(volume.c_str()), 0);
}

TEST_F(TrainTrashTest, aTrashThatTakesNothingLeavesTheExistingCopy) {
    // Neither Trash can be made.
    m_world.makeFile("elsewhere");
    for (const char *home : {askersHome, homeOfRoot})
        std::filesystem::create_symlink(m_world.path("elsewhere"), std::string(home) + "/.local");
    // Root's would be made on the volume otherwise.
    const std::string volumeTrash = std::string(worldFolder) + "/.Trash-0";
    ASSERT_EQ(::symlink(m_world.path("elsewhere").c_str(), volumeTrash.c_str()), 0);
    const TrainEnd end = train();
    ::unlink(volumeTrash.c_str());
    EXPECT_EQ(end.status, trashFailed) << end.log;
    EXPECT_THAT(end.log, HasSubstr("ERROR -- Could not trash '" + m_destination + "'"));
    EXPECT_THAT(end.log, HasSubstr("ERROR -- Could not trash existing " + m_destination));
    EXPECT_EQ(versionAt(m_destination), "old");
    EXPECT_THAT(namesIn(m_world.path("Applications")), ElementsAre("Product.app"));
}

// A home folder that somebody prepared.
struct HomeRow {
    const char *reason;
    std::function<void(const std::string &home, const TemporaryFolder &world)> prepare;
};

void PrintTo(const HomeRow &row, std::ostream *stream) {
    *stream << row.reason;
}

class HostileHomeTest : public TrainTrashTest, public ::testing::WithParamInterface<HomeRow> {};

TEST_P(HostileHomeTest, theTrashOfRootTakesTheExistingCopy) {
    const std::string ofOthers = m_world.makeFolder("others");
    GetParam().prepare(askersHome, m_world);
    const auto before = rest();
    expectInTrashOfRoot(train());
    EXPECT_EQ(rest(), before);
    EXPECT_THAT(namesIn(ofOthers), IsEmpty());
}

void makeFolders(const std::string &path, uid_t user) {
    std::filesystem::create_directories(path);
    for (std::string folder = path; folder != askersHome;
         folder = std::filesystem::path(folder).parent_path())
        ASSERT_EQ(::chown(folder.c_str(), user, user), 0);
}

void makeLinkOf(uid_t user, const std::string &target, const std::string &path) {
    makeFolders(std::filesystem::path(path).parent_path(), user);
    ASSERT_EQ(::symlink(target.c_str(), path.c_str()), 0);
    ASSERT_EQ(::lchown(path.c_str(), user, user), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Homes, HostileHomeTest,
    ::testing::Values(
        HomeRow{"linkAtTheFirstFolder",
                [](auto &home, auto &world) {
                    makeLinkOf(asker, world.path("others"), home + "/.local");
                }},
        HomeRow{"linkAtTheSecondFolder",
                [](auto &home, auto &world) {
                    makeLinkOf(asker, world.path("others"), home + "/.local/share");
                }},
        HomeRow{"linkAtTheTrash",
                [](auto &home, auto &world) {
                    makeLinkOf(asker, world.path("others"), home + "/.local/share/Trash");
                }},
        HomeRow{"linkAtTheFiles",
                [](auto &home, auto &world) {
                    makeLinkOf(asker, world.path("others"), home + "/.local/share/Trash/files");
                }},
        HomeRow{"linkAtTheRecords",
                [](auto &home, auto &world) {
                    makeLinkOf(asker, world.path("others"), home + "/.local/share/Trash/info");
                }},
        HomeRow{"linkOfTheKernel",
                [](auto &home, auto &) {
                    makeLinkOf(asker, "/proc/self/fd/3", home + "/.local/share/Trash/files");
                }},
        HomeRow{"pipe",
                [](auto &home, auto &) {
                    makeFolders(home + "/.local/share", asker);
                    ::mkfifo((home + "/.local/share/Trash").c_str(), 0666);
                }},
        HomeRow{"folderOfAStranger",
                [](auto &home, auto &) { makeFolders(home + "/.local/share/Trash", stranger); }},
        HomeRow{"filesOfAStranger",
                [](auto &home, auto &) {
                    makeFolders(home + "/.local/share/Trash", asker);
                    std::filesystem::create_directory(home + "/.local/share/Trash/files");
                    ::chmod((home + "/.local/share/Trash/files").c_str(), 0777);
                }},
        HomeRow{"homeOfAStranger",
                [](auto &home, auto &) {
                    ::chown(home.c_str(), stranger, stranger);
                    ::chmod(home.c_str(), 0777);
                }},
        HomeRow{"trashThatMayNotBeWrittenTo",
                [](auto &home, auto &) {
                    makeFolders(home + "/.local/share/Trash/files", asker);
                    makeFolders(home + "/.local/share/Trash/info", asker);
                    ::chmod((home + "/.local/share/Trash").c_str(), 0555);
                }},
        HomeRow{"missingHome", [](auto &home, auto &) { std::filesystem::remove_all(home); }}));

} // namespace
} // namespace zt::testing

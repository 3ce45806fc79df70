// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/copy/ChildProcess.h"
#include "tests/unit/copy/InstallFixture.h"
#include "tests/unit/copy/TreeDescription.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <string>

namespace zt::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

using InstallFunctionTest = InstallTest;

TEST_F(InstallFunctionTest, aProductIsCopiedToAFreeDestination) {
    const auto before = describeTree(m_source);
    EXPECT_EQ(install(), InstallResult::Success);
    EXPECT_EQ(describeTree(m_destination), before);
    EXPECT_EQ(describeTree(m_source), before);
    EXPECT_THAT(m_log, IsEmpty());
    EXPECT_THAT(m_noted, ElementsAre(m_destination));
    EXPECT_FALSE(itemExists(m_trashPath)) << "nothing was trashed";
    EXPECT_THAT(namesIn(m_world.path("Applications")), ElementsAre("Product.app"));
}

TEST_F(InstallFunctionTest, theCopyIsDurableByDefault) {
    InstallServices durable = services();
    durable.durability = Durability::Durable;
    EXPECT_EQ(install({m_source, m_destination, {}}, durable), InstallResult::Success);
    EXPECT_EQ(versionAt(m_destination), "new");
    EXPECT_EQ(InstallServices{.trash = m_trash}.durability, Durability::Durable);
}

TEST_F(InstallFunctionTest, anExistingCopyGoesToTheTrash) {
    makeProduct("Applications/Product.app", "old");
    EXPECT_EQ(install(), InstallResult::Success);
    EXPECT_EQ(versionAt(m_destination), "new");
    EXPECT_THAT(trashedVersions(), ElementsAre("old"));
    EXPECT_THAT(contentOf(m_trashPath + "/info/Product.app.trashinfo"),
                HasSubstr("Path=" + m_destination + "\n"));
    EXPECT_THAT(m_log, IsEmpty());
}

TEST_F(InstallFunctionTest, installingTwiceTrashesTheFirstInstallation) {
    EXPECT_EQ(install(), InstallResult::Success);
    EXPECT_EQ(install(), InstallResult::Success);
    EXPECT_THAT(trashedVersions(), ElementsAre("new"));
}

TEST_F(InstallFunctionTest, aFileAtTheDestinationGoesToTheTrash) {
    m_world.makeFile("Applications/Product.app", "a file");
    EXPECT_EQ(install(), InstallResult::Success);
    EXPECT_EQ(versionAt(m_destination), "new");
    EXPECT_EQ(contentOf(m_trashPath + "/files/Product.app"), "a file");
}

TEST_F(InstallFunctionTest, ofALinkAtTheDestinationOnlyTheLinkGoesToTheTrash) {
    makeProduct("elsewhere/Product.app", "linked");
    m_world.makeLink("Applications/Product.app", m_world.path("elsewhere/Product.app"));
    EXPECT_EQ(install(), InstallResult::Success);
    EXPECT_EQ(versionAt(m_destination), "new");
    EXPECT_EQ(versionAt(m_world.path("elsewhere/Product.app")), "linked");
    struct stat status = {};
    ASSERT_EQ(::lstat((m_trashPath + "/files/Product.app").c_str(), &status), 0);
    EXPECT_TRUE(S_ISLNK(status.st_mode));
}

TEST_F(InstallFunctionTest, aLinkToTheSourceAtTheDestinationIsJustALink) {
    m_world.makeLink("Applications/Product.app", m_source);
    EXPECT_EQ(install(), InstallResult::Success);
    EXPECT_EQ(versionAt(m_destination), "new");
    EXPECT_EQ(versionAt(m_source), "new");
}

TEST_F(InstallFunctionTest, aDanglingLinkAtTheDestinationGoesToTheTrash) {
    m_world.makeLink("Applications/Product.app", "nowhere");
    EXPECT_EQ(install(), InstallResult::Success);
    EXPECT_EQ(versionAt(m_destination), "new");
    EXPECT_THAT(namesIn(m_trashPath + "/files"), ElementsAre("Product.app"));
}

TEST_F(InstallFunctionTest, aReadOnlyExistingCopyGoesToTheTrash) {
    makeProduct("Applications/Product.app", "old");
    ASSERT_EQ(::chmod(m_destination.c_str(), 0555), 0);
    EXPECT_EQ(install(), InstallResult::Success);
    EXPECT_EQ(versionAt(m_destination), "new");
    EXPECT_THAT(trashedVersions(), ElementsAre("old"));
}

TEST_F(InstallFunctionTest, aReadOnlyProductIsInstalledReadOnly) {
    ASSERT_EQ(::chmod(m_world.path().c_str(), 0777), 0);
    ASSERT_EQ(::chmod(m_world.path("Applications").c_str(), 0777), 0);
    ASSERT_EQ(::chmod(m_source.c_str(), 0555), 0);
    const std::string outcome = asOrdinaryUser([&]() -> std::string {
        if (install() == InstallResult::Success)
            return "";
        return m_log.empty() ? "no line" : m_log.front();
    });
    EXPECT_EQ(outcome, "");
    struct stat status = {};
    ASSERT_EQ(::stat(m_destination.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0555U);
    EXPECT_THAT(namesIn(m_world.path("Applications")), ElementsAre("Product.app"));
}

TEST_F(InstallFunctionTest, aTrashThatFailsIsToldInTwoLinesAndNothingChanges) {
    makeProduct("Applications/Product.app", "old");
    FailingTrash failing;
    m_usedTrash = &failing;
    EXPECT_EQ(install(), InstallResult::TrashFailed);
    EXPECT_THAT(m_log, ElementsAre("move to the Trash " + m_destination + ": Read-only file system",
                                   "ERROR -- Could not trash '" + m_destination + "'",
                                   "ERROR -- Could not trash existing " + m_destination));
    EXPECT_EQ(versionAt(m_destination), "old");
    EXPECT_THAT(m_noted, IsEmpty());
    EXPECT_THAT(namesIn(m_world.path("Applications")), ElementsAre("Product.app"));
}

TEST_F(InstallFunctionTest, theTrashIsNotAskedForAFreeDestination) {
    FailingTrash failing;
    m_usedTrash = &failing;
    EXPECT_EQ(install(), InstallResult::Success);
    EXPECT_EQ(failing.calls, 0);
}

TEST_F(InstallFunctionTest, aCopyThatFailsLeavesTheOldCopyInTheTrash) {
    makeProduct("Applications/Product.app", "old");
    ASSERT_EQ(::mkfifo(m_world.path("medium/Product.app/Contents/pipe").c_str(), 0644), 0);
    EXPECT_EQ(install(), InstallResult::CopyFailed);
    EXPECT_THAT(m_log, ElementsAre("copy " + m_source +
                                       "/Contents/pipe: it is neither a file nor a folder nor a "
                                       "link",
                                   "ERROR -- Could not copy myself to " + m_destination));
    EXPECT_THAT(trashedVersions(), ElementsAre("old"));
    EXPECT_THAT(namesIn(m_world.path("Applications")), IsEmpty());
    EXPECT_THAT(m_noted, IsEmpty());
}

TEST_F(InstallFunctionTest, aSourceThatIsALinkIsFollowed) {
    m_world.makeLink("alias.app", m_source);
    EXPECT_EQ(install({m_world.path("alias.app"), m_destination, {}}), InstallResult::Success);
    EXPECT_EQ(versionAt(m_destination), "new");
}

TEST_F(InstallFunctionTest, aProductThatIsAFileIsCopied) {
    const std::string file = m_world.makeFile("medium/Product.AppImage", "program", 0755);
    const std::string target = m_world.path("Applications/Product.AppImage");
    EXPECT_EQ(install({file, target, {}}), InstallResult::Success);
    EXPECT_EQ(describeTree(target), describeTree(file));
}

TEST_F(InstallFunctionTest, slashesAtTheEndOfPathsAreIgnored) {
    EXPECT_EQ(install({m_source + "//", m_destination + "/", {}}), InstallResult::Success);
    EXPECT_EQ(versionAt(m_destination), "new");
}

TEST_F(InstallFunctionTest, pathsOfAnyBytesAreUsedAsTheyAre) {
    const std::string source = makeProduct("medium/\xFFProd\nuct.app", "bytes");
    const std::string target = m_world.path("Applications/\xFE %@ %s.app");
    EXPECT_EQ(install({source, target, {}}), InstallResult::Success);
    EXPECT_EQ(versionAt(target), "bytes");
}

TEST_F(InstallFunctionTest, aGuaranteedFolderIsMadeForAllToRead) {
    const std::string target = m_world.path("guaranteed/Product.app");
    const std::string outcome = inChildProcess([&]() -> std::string {
        ::umask(077);
        return install({m_source, target, {}}) == InstallResult::Success ? "" : m_log.front();
    });
    EXPECT_EQ(outcome, "");
    EXPECT_EQ(versionAt(target), "new");
    struct stat status = {};
    ASSERT_EQ(::stat(m_world.path("guaranteed").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0755U);
}

TEST_F(InstallFunctionTest, rightsThatTheFolderHandsDownDoNotGetIntoTheCopy) {
    const std::string folder = m_world.path("Applications");
    // A default access list that gives everything to everybody.
    const std::string list("\2\0\0\0"
                           "\1\0\7\0\xFF\xFF\xFF\xFF\4\0\7\0\xFF\xFF\xFF\xFF"
                           "\x20\0\7\0\xFF\xFF\xFF\xFF",
                           28);
    if (::setxattr(folder.c_str(), "system.posix_acl_default", list.data(), list.size(), 0) != 0)
        GTEST_SKIP() << "no access lists on this file system";
    ASSERT_EQ(::chmod(folder.c_str(), 02755), 0);
    EXPECT_EQ(install(), InstallResult::Success);
    EXPECT_EQ(describeTree(m_destination), describeTree(m_source));
}

TEST_F(InstallFunctionTest, progressIsToldForTheProduct) {
    std::uint64_t last = 0;
    InstallServices watched = services();
    watched.progress = [&](const CopyProgress &progress) {
        EXPECT_GE(progress.bytesDone, last);
        last = progress.bytesDone;
    };
    EXPECT_EQ(install({m_source, m_destination, {}}, watched), InstallResult::Success);
    EXPECT_GT(last, 0U);
}

TEST_F(InstallFunctionTest, aCopyThatReadsDifferentlyThanItsSourceDoesNotAppear) {
    InstallServices proving = services();
    proving.proof = Proof::Compared;
    EXPECT_EQ(install({m_source, m_destination, {}}, proving), InstallResult::Success);

    // When all is copied, and before it is compared, a bit falls over.
    proving.progress = [&](const CopyProgress &progress) {
        for (const std::string &name : namesIn(m_world.path("Applications"))) {
            if (StagingFolder::isName(name) && progress.bytesDone == progress.bytesInAll)
                m_world.makeFile("Applications/" + name + "/item/Contents/version", "mew");
        }
    };
    EXPECT_EQ(install({m_source, m_destination, {}}, proving), InstallResult::CopyFailed);
    EXPECT_THAT(namesIn(m_world.path("Applications")), IsEmpty());
    EXPECT_THAT(trashedVersions(), ElementsAre("new"));
    EXPECT_THAT(m_log.front(), HasSubstr("is not that of the original"));
}

TEST_F(InstallFunctionTest, aStopBeforeAnythingChangesNothing) {
    makeProduct("Applications/Product.app", "old");
    std::stop_source stopping;
    stopping.request_stop();
    InstallServices stopped = services();
    stopped.stop = stopping.get_token();
    EXPECT_EQ(install({m_source, m_destination, {}}, stopped), InstallResult::CopyFailed);
    EXPECT_EQ(versionAt(m_destination), "old");
    EXPECT_THAT(errorLines(), ElementsAre("ERROR -- Could not copy myself to " + m_destination));
}

TEST_F(InstallFunctionTest, aStopDuringTheCopyLeavesNothingUnfinished) {
    std::stop_source stopping;
    InstallServices stopped = services();
    stopped.stop = stopping.get_token();
    stopped.progress = [&](const CopyProgress &) { stopping.request_stop(); };
    EXPECT_EQ(install({m_source, m_destination, {}}, stopped), InstallResult::CopyFailed);
    EXPECT_THAT(namesIn(m_world.path("Applications")), IsEmpty());
    EXPECT_THAT(m_log.front(), HasSubstr("stopped on request"));
}

TEST_F(InstallFunctionTest, theResultsAreTheNumbersThatOthersReadThemAs) {
    EXPECT_EQ(static_cast<int>(InstallResult::Success), 0);
    EXPECT_EQ(static_cast<int>(InstallResult::TrashFailed), 1);
    EXPECT_EQ(static_cast<int>(InstallResult::CopyFailed), 2);
}

} // namespace
} // namespace zt::testing

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/copy/ChildProcess.h"
#include "tests/unit/copy/InstallFixture.h"
#include "tests/unit/copy/TreeDescription.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <string>

namespace zt::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

class WrapperTest : public InstallTest {
protected:
    WrapperTest() {
        m_world.makeFile("medium/Wrapper/Manual.txt", "new manual", 0640);
        m_world.makeFile("medium/Wrapper/Extras/sound", "new sound");
        m_world.makeLink("medium/Wrapper/Help", "Manual.txt");
        m_world.makeFile("medium/Wrapper/.hidden", "new hidden");
    }

    InstallResult installWithWrapper() {
        return install({m_source, m_destination, m_world.path("medium/Wrapper")});
    }

    std::string inFolder(const std::string &name) const {
        return m_world.path("Applications/" + name);
    }
};

TEST_F(WrapperTest, itsItemsAreCopiedBesideTheProduct) {
    EXPECT_EQ(installWithWrapper(), InstallResult::Success);
    EXPECT_THAT(namesIn(m_world.path("Applications")),
                ElementsAre(".hidden", "Extras", "Help", "Manual.txt", "Product.app"));
    EXPECT_EQ(describeTree(inFolder("Extras")),
              describeTree(m_world.path("medium/Wrapper/Extras")));
    EXPECT_EQ(describeTree(inFolder("Help")), describeTree(m_world.path("medium/Wrapper/Help")));
    EXPECT_THAT(m_log, IsEmpty());
}

TEST_F(WrapperTest, everyItemIsNotedAndTheProductLast) {
    EXPECT_EQ(installWithWrapper(), InstallResult::Success);
    ASSERT_EQ(m_noted.size(), 5U);
    EXPECT_EQ(m_noted.back(), m_destination);
    m_noted.pop_back();
    EXPECT_THAT(m_noted, UnorderedElementsAre(inFolder(".hidden"), inFolder("Extras"),
                                              inFolder("Help"), inFolder("Manual.txt")));
}

TEST_F(WrapperTest, onlyItemsOfItsNamesAreReplaced) {
    m_world.makeFile("Applications/Manual.txt", "old manual");
    m_world.makeFile("Applications/Extras/old", "old extra");
    m_world.makeFile("Applications/Other.app/file", "other");
    EXPECT_EQ(installWithWrapper(), InstallResult::Success);
    EXPECT_EQ(contentOf(inFolder("Manual.txt")), "new manual");
    EXPECT_THAT(namesIn(inFolder("Extras")), ElementsAre("sound"));
    EXPECT_EQ(contentOf(inFolder("Other.app/file")), "other");
    EXPECT_FALSE(itemExists(m_trashPath)) << "only the product goes to the Trash";
    EXPECT_THAT(namesIn(m_world.path("Applications")),
                ElementsAre(".hidden", "Extras", "Help", "Manual.txt", "Other.app", "Product.app"));
}

TEST_F(WrapperTest, anItemOfAnotherKindIsReplaced) {
    m_world.makeFile("Applications/Manual.txt/a folder before", "x");
    m_world.makeFile("Applications/Extras", "a file before");
    makeProduct("elsewhere/Linked.app", "linked");
    m_world.makeLink("Applications/Help", m_world.path("elsewhere/Linked.app"));
    EXPECT_EQ(installWithWrapper(), InstallResult::Success);
    EXPECT_EQ(contentOf(inFolder("Manual.txt")), "new manual");
    EXPECT_EQ(contentOf(inFolder("Extras/sound")), "new sound");
    EXPECT_EQ(versionAt(m_world.path("elsewhere/Linked.app")), "linked");
}

TEST_F(WrapperTest, aMissingFolderIsMadeOutOfTheWholeWrapper) {
    const std::string folder = m_world.path("Applications/Suite");
    EXPECT_EQ(install({m_source, folder + "/Product.app", m_world.path("medium/Wrapper")}),
              InstallResult::Success);
    EXPECT_EQ(contentOf(folder + "/Extras/sound"), "new sound");
    EXPECT_EQ(versionAt(folder + "/Product.app"), "new");
    EXPECT_THAT(m_noted, ElementsAre(folder, folder + "/Product.app"));
    EXPECT_THAT(namesIn(m_world.path("Applications")), ElementsAre("Suite"));
}

TEST_F(WrapperTest, theSourceWinsOverACopyInTheWrapper) {
    makeProduct("medium/Wrapper/Product.app", "of the wrapper");
    const std::string folder = m_world.path("Applications/Suite");
    EXPECT_EQ(install({m_source, folder + "/Product.app", m_world.path("medium/Wrapper")}),
              InstallResult::Success);
    EXPECT_EQ(versionAt(folder + "/Product.app"), "new");
    EXPECT_THAT(trashedVersions(), ElementsAre("of the wrapper"));
}

TEST_F(WrapperTest, anOldProductIsNeverDeletedForTheWrappersCopy) {
    makeProduct("medium/Wrapper/Product.app", "of the wrapper");
    makeProduct("Applications/Product.app", "old");
    EXPECT_EQ(installWithWrapper(), InstallResult::Success);
    EXPECT_EQ(versionAt(m_destination), "new");
    EXPECT_THAT(trashedVersions(), ElementsAre("of the wrapper", "old"));
}

TEST_F(WrapperTest, theSourceMayLieInTheWrapper) {
    const std::string source = makeProduct("medium/Wrapper/Product.app", "in the wrapper");
    const std::string folder = m_world.path("Applications/Suite");
    EXPECT_EQ(install({source, folder + "/Product.app", m_world.path("medium/Wrapper")}),
              InstallResult::Success);
    EXPECT_EQ(versionAt(folder + "/Product.app"), "in the wrapper");
}

TEST_F(WrapperTest, anItemThatCannotBeCopiedLeavesTheOldOneAndTheProduct) {
    makeProduct("Applications/Product.app", "old");
    m_world.makeFile("Applications/Extras/old", "old extra");
    ASSERT_EQ(::mkfifo(m_world.path("medium/Wrapper/Extras/pipe").c_str(), 0644), 0);
    EXPECT_EQ(installWithWrapper(), InstallResult::CopyFailed);
    EXPECT_THAT(errorLines(),
                ElementsAre("ERROR -- Could not copy auxiliary item to " + inFolder("Extras")));
    EXPECT_EQ(contentOf(inFolder("Extras/old")), "old extra");
    EXPECT_EQ(versionAt(m_destination), "old");
    EXPECT_FALSE(itemExists(m_trashPath));
}

TEST_F(WrapperTest, aWholeWrapperThatCannotBeCopiedIsTold) {
    ASSERT_EQ(::mkfifo(m_world.path("medium/Wrapper/pipe").c_str(), 0644), 0);
    const std::string folder = m_world.path("Applications/Suite");
    EXPECT_EQ(install({m_source, folder + "/Product.app", m_world.path("medium/Wrapper")}),
              InstallResult::CopyFailed);
    EXPECT_THAT(errorLines(), ElementsAre("ERROR -- Could not copy wrapper to " + folder));
    EXPECT_THAT(namesIn(m_world.path("Applications")), IsEmpty());
}

TEST_F(WrapperTest, aMissingWrapperForAMissingFolderIsTold) {
    const std::string folder = m_world.path("Applications/Suite");
    EXPECT_EQ(install({m_source, folder + "/Product.app", m_world.path("missing")}),
              InstallResult::CopyFailed);
    EXPECT_THAT(errorLines(), ElementsAre("ERROR -- Could not copy wrapper to " + folder));
}

TEST_F(WrapperTest, anItemThatCannotBeRemovedIsToldAndTheCopyDecides) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can make another user's file";
    // In a folder where everybody may only remove what is his own.
    ASSERT_EQ(::chmod(m_world.path("Applications").c_str(), 01777), 0);
    ASSERT_EQ(::chmod(m_world.path().c_str(), 0777), 0);
    ASSERT_EQ(::chmod(m_world.path("medium/Wrapper/Manual.txt").c_str(), 0644), 0);
    m_world.makeFile("Applications/Manual.txt", "of root");
    for (const char *name : {".hidden", "Extras", "Help"}) {
        std::rename(m_world.path(std::string("medium/Wrapper/") + name).c_str(),
                    m_world.path(std::string("medium/") + name).c_str());
    }
    const std::string lines = asOrdinaryUser([&] {
        const InstallResult result = installWithWrapper();
        return std::to_string(static_cast<int>(result)) + ::testing::PrintToString(errorLines());
    });
    EXPECT_EQ(lines, "2{ \"ERROR -- Could not delete " + inFolder("Manual.txt") +
                         "\", \"ERROR -- Could not copy auxiliary item to " +
                         inFolder("Manual.txt") + "\" }");
    EXPECT_EQ(contentOf(inFolder("Manual.txt")), "of root");
}

TEST_F(WrapperTest, anOldProductThatCannotBeTrashedStaysThoughTheWrapperHasOne) {
    makeProduct("medium/Wrapper/Product.app", "of the wrapper");
    makeProduct("Applications/Product.app", "old");
    FailingTrash failing;
    m_usedTrash = &failing;
    EXPECT_EQ(installWithWrapper(), InstallResult::TrashFailed);
    EXPECT_EQ(versionAt(m_destination), "old");
    EXPECT_EQ(errorLines().size(), 2U);
}

TEST_F(WrapperTest, anEmptyWrapperChangesNothingElse) {
    const std::string wrapper = m_world.makeFolder("medium/Empty");
    EXPECT_EQ(install({m_source, m_destination, wrapper}), InstallResult::Success);
    EXPECT_THAT(namesIn(m_world.path("Applications")), ElementsAre("Product.app"));
}

} // namespace
} // namespace zt::testing

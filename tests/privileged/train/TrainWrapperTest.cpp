// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The folder that the tool recreates around the product.

#include "Installer/train/ExitStatus.h"
#include "tests/privileged/train/TrainFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>

namespace zt::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr int usage = static_cast<int>(ExitStatus::Usage);
constexpr int refused = static_cast<int>(ExitStatus::Refused);
constexpr int copyFailed = static_cast<int>(ExitStatus::CopyFailed);

class TrainWrapperTest : public TrainTest {
protected:
    void SetUp() override {
        TrainTest::SetUp();
        if (!reasonForNoWorld().empty())
            return;
        m_world.makeFile("medium/Suite/Manual.txt", "manual", 0666);
        m_world.makeFile("medium/Suite/Extras/sound", "sound", 04777);
        give(m_wrapper, asker);
    }

    TrainStart withWrapper(const std::string &wrapper) const {
        return {{m_source, m_world.path("Applications/Suite/Product.app"), wrapper}};
    }

    std::string inSuite(const std::string &name) const {
        return m_world.path("Applications/Suite/" + name);
    }

    std::string m_wrapper = m_world.path("medium/Suite");
};

TEST_F(TrainWrapperTest, aMissingFolderIsMadeOutOfTheWrapper) {
    const TrainEnd end = train(withWrapper(m_wrapper));
    EXPECT_EQ(end.status, 0) << end.log;
    EXPECT_THAT(namesIn(inSuite("")), ElementsAre("Extras", "Manual.txt", "Product.app"));
    EXPECT_EQ(versionAt(inSuite("Product.app")), "new");
    EXPECT_EQ(wrongRightsBelow(m_world.path("Applications/Suite")), "");
}

TEST_F(TrainWrapperTest, itemsOfAnExistingFolderAreReplaced) {
    m_world.makeFile("Applications/Suite/Manual.txt", "old manual");
    m_world.makeFile("Applications/Suite/Other", "other");
    makeProduct("Applications/Suite/Product.app", "old");
    const TrainEnd end = train(withWrapper(m_wrapper));
    EXPECT_EQ(end.status, 0) << end.log;
    EXPECT_EQ(contentOf(inSuite("Manual.txt")), "manual");
    EXPECT_EQ(contentOf(inSuite("Other")), "other");
    EXPECT_EQ(versionAt(inSuite("Product.app")), "new");
    EXPECT_THAT(trashedVersions(), ElementsAre("old"));
    EXPECT_EQ(wrongRightsBelow(m_world.path("Applications/Suite")), "");
}

TEST_F(TrainWrapperTest, aWrapperOfAnotherVolumeIsRefused) {
    const std::string other = m_world.makeFolder("medium/Other");
    ASSERT_EQ(::mount("tmpfs", other.c_str(), "tmpfs", 0, "size=1m"), 0);
    m_world.makeFile("medium/Other/file", "x");
    expectRefused(withWrapper(other), refused, "it lies on another volume than the source");
    ASSERT_EQ(::umount(other.c_str()), 0);
}

TEST_F(TrainWrapperTest, aFolderThatIsMountedAgainIsAnotherVolume) {
    const std::string other = m_world.makeFolder("medium/Other");
    ASSERT_EQ(::mount(m_wrapper.c_str(), other.c_str(), nullptr, MS_BIND, nullptr), 0);
    expectRefused(withWrapper(other), refused, "it lies on another volume than the source");
    ASSERT_EQ(::umount(other.c_str()), 0);
}

TEST_F(TrainWrapperTest, aWrapperElsewhereIsRefused) {
    expectRefused(withWrapper(m_world.path("private")), usage, "does not lie beside the source");
}

TEST_F(TrainWrapperTest, aWrapperThatIsALinkIsRefused) {
    m_world.makeLink("medium/Link", m_world.path("private"));
    expectRefused(withWrapper(m_world.path("medium/Link")), refused, "medium/Link");
}

TEST_F(TrainWrapperTest, aWrapperThatTheAskerMayNotReadIsRefused) {
    ASSERT_EQ(::chown(m_wrapper.c_str(), 0, 0), 0);
    ASSERT_EQ(::chmod(m_wrapper.c_str(), 0700), 0);
    expectRefused(withWrapper(m_wrapper), refused, "Permission denied");
}

TEST_F(TrainWrapperTest, aSecretInTheWrapperEndsTheInstallation) {
    std::filesystem::create_hard_link(m_secret, m_wrapper + "/innocent");
    const TrainEnd end = train(withWrapper(m_wrapper));
    EXPECT_EQ(end.status, copyFailed) << end.log;
    EXPECT_THAT(end.log, HasSubstr("ERROR -- Could not copy wrapper to " +
                                   m_world.path("Applications/Suite")));
    EXPECT_THAT(namesIn(m_world.path("Applications")), IsEmpty());
}

TEST_F(TrainWrapperTest, aSecretBesideOtherItemsEndsTheInstallationToo) {
    m_world.makeFolder("Applications/Suite");
    std::filesystem::create_hard_link(m_secret, m_wrapper + "/innocent");
    const TrainEnd end = train(withWrapper(m_wrapper));
    EXPECT_EQ(end.status, copyFailed) << end.log;
    EXPECT_THAT(end.log,
                HasSubstr("ERROR -- Could not copy auxiliary item to " + inSuite("innocent")));
    EXPECT_FALSE(itemExists(inSuite("innocent")));
}

TEST_F(TrainWrapperTest, aLinkInTheWrapperIsCopiedAsALink) {
    ASSERT_EQ(::symlink(m_secret.c_str(), (m_wrapper + "/link").c_str()), 0);
    const TrainEnd end = train(withWrapper(m_wrapper));
    EXPECT_EQ(end.status, 0) << end.log;
    EXPECT_EQ(std::filesystem::read_symlink(inSuite("link")), m_secret);
}

} // namespace
} // namespace zt::testing

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/StagingFolder.h"
#include "Platform/posix/SystemCalls.h"
#include "Platform/posix/TreeRemoval.h"
#include "tests/unit/copy/InstallFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <ctime>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <random>
#include <string>

namespace zt::testing {
namespace {

using ::testing::AnyOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using StagingTest = InstallTest;

TEST_F(StagingTest, aLeftOverOfAKilledProcessIsSwept) {
    m_world.makeFile("Applications/.VelmoraInstaller-1234-0123456789abcdef/item/half");
    m_world.makeFile("Applications/.VelmoraInstaller-1234-0123456789abcdef.item/half");
    EXPECT_EQ(install(), InstallResult::Success);
    EXPECT_THAT(namesIn(m_world.path("Applications")), ElementsAre("Product.app"));
}

TEST_F(StagingTest, whatOnlyLooksSimilarIsNotSwept) {
    for (const char *name :
         {".VelmoraInstaller-1234-0123456789ABCDEF", ".VelmoraInstaller-1234-0123456789abcde",
          ".VelmoraInstaller-1234-0123456789abcdef0", ".VelmoraInstaller--0123456789abcdef",
          ".VelmoraInstaller-12x4-0123456789abcdef", "VelmoraInstaller-1234-0123456789abcdef",
          ".VelmoraInstaller-1234"}) {
        EXPECT_FALSE(StagingFolder::isName(name));
        m_world.makeFile(std::string("Applications/") + name + "/file");
    }
    m_world.makeFile("Applications/.VelmoraInstaller-1-0123456789abcdef", "a file");
    m_world.makeLink("Applications/.VelmoraInstaller-2-0123456789abcdef", m_world.path("medium"));
    EXPECT_EQ(install(), InstallResult::Success);
    EXPECT_EQ(namesIn(m_world.path("Applications")).size(), 10U);
    EXPECT_EQ(versionAt(m_source), "new");
}

TEST_F(StagingTest, aFolderThatIsInUseIsNotSwept) {
    const UniqueFd parent =
        openAt(AT_FDCWD, m_world.path("Applications").c_str(), O_RDONLY | O_DIRECTORY);
    Result<StagingFolder> used = StagingFolder::make(parent.get(), m_world.path("Applications"));
    ASSERT_TRUE(used);
    EXPECT_EQ(install(), InstallResult::Success);
    EXPECT_TRUE(itemExists(used->path()));
    EXPECT_TRUE(used->remove());
    EXPECT_FALSE(itemExists(used->path()));
}

TEST_F(StagingTest, anotherUsersFolderIsNotSwept) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can make another user's folder";
    const std::string name = "Applications/.VelmoraInstaller-1-0123456789abcdef";
    ASSERT_EQ(::chown(m_world.makeFolder(name).c_str(), 1234, 1234), 0);
    EXPECT_EQ(install(), InstallResult::Success);
    EXPECT_TRUE(itemExists(m_world.path(name)));
}

// How often a process is killed; the environment may ask for more.
int killRounds() {
    const char *rounds = std::getenv("VELMORA_KILL_ROUNDS");
    return rounds ? std::atoi(rounds) : 40; // NOLINT(cert-err34-c)
}

class KillTest : public InstallTest {
protected:
    KillTest() : InstallTest(fastTemporaryParent()) {}

    // Installs in a child process and kills it after the delay, unless it has ended by then.
    void installAndKill(std::chrono::nanoseconds delay) {
        const pid_t child = ::fork();
        if (child == 0)
            ::_exit(static_cast<int>(install()));
        const timespec time = {delay.count() / 1'000'000'000, delay.count() % 1'000'000'000};
        ::nanosleep(&time, nullptr);
        ::kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        if (WIFEXITED(status)) {
            EXPECT_EQ(WEXITSTATUS(status), 0);
        }
    }

    // How long an installation takes that nobody ends, so that the moments lie within it.
    std::chrono::nanoseconds usualDuration() {
        reset();
        const auto begin = std::chrono::steady_clock::now();
        const pid_t child = ::fork();
        if (child == 0)
            ::_exit(static_cast<int>(install()));
        ::waitpid(child, nullptr, 0);
        return std::chrono::steady_clock::now() - begin;
    }

    void reset() {
        for (const char *name : {"home", "Applications"})
            ASSERT_TRUE(removeTree(AT_FDCWD, m_world.path(name).c_str()));
        makeProduct("Applications/Product.app", "old");
        m_log.clear();
    }
};

TEST_F(KillTest, atAnyMomentOneWholeCopyIsThereAndTheNextRunCleansUp) {
    std::mt19937 random(20260101); // NOLINT(cert-msc51-cpp): the same moments in each run
    std::uniform_int_distribution<std::int64_t> moments(0, usualDuration().count());
    for (int round = 0; round < killRounds(); ++round) {
        reset();
        installAndKill(std::chrono::nanoseconds(moments(random)));
        const std::string atDestination = versionAt(m_destination);
        ASSERT_THAT(atDestination, AnyOf("old", "new", "<missing>"));
        if (atDestination == "old") {
            ASSERT_THAT(trashedVersions(), IsEmpty());
        } else {
            ASSERT_THAT(trashedVersions(), ElementsAre("old"));
        }

        ASSERT_EQ(install(), InstallResult::Success) << ::testing::PrintToString(m_log);
        ASSERT_EQ(versionAt(m_destination), "new");
        ASSERT_THAT(namesIn(m_world.path("Applications")), ElementsAre("Product.app"));
    }
}

} // namespace
} // namespace zt::testing

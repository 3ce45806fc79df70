// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The tool is killed at many moments.

#include "Platform/posix/TreeRemoval.h"
#include "tests/privileged/train/TrainFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <unistd.h>

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <random>
#include <string>

namespace zt::testing {
namespace {

using ::testing::AnyOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

// How often the tool is killed; the environment may ask for more.
int killRounds() {
    const char *rounds = std::getenv("VELMORA_KILL_ROUNDS");
    return rounds ? std::atoi(rounds) : 40; // NOLINT(cert-err34-c)
}

class TrainKillTest : public TrainTest {
protected:
    // An old product, and no Trash yet.
    void reset() {
        ASSERT_TRUE(removeTree(AT_FDCWD, (std::string(askersHome) + "/.local").c_str()));
        for (const std::string &name : namesIn(m_world.path("Applications")))
            ASSERT_TRUE(removeTree(AT_FDCWD, m_world.path("Applications/" + name).c_str()));
        makeProduct("Applications/Product.app", "old");
    }

    std::chrono::nanoseconds usualDuration() {
        reset();
        const auto begin = std::chrono::steady_clock::now();
        EXPECT_EQ(train().status, 0);
        return std::chrono::steady_clock::now() - begin;
    }

    TrainEnd startAndKill(std::chrono::nanoseconds delay) {
        RunningTrain running({{m_source, m_destination}});
        const timespec time = {delay.count() / 1'000'000'000, delay.count() % 1'000'000'000};
        ::nanosleep(&time, nullptr);
        ::kill(running.pid(), SIGKILL);
        return running.wait();
    }
};

TEST_F(TrainKillTest, atAnyMomentOneWholeCopyIsThereAndTheNextRunCleansUp) {
    const auto before = rest();
    std::mt19937 random(20260101); // NOLINT(cert-msc51-cpp): the same moments in each run
    std::uniform_int_distribution<std::int64_t> moments(0, usualDuration().count());
    int killed = 0;
    for (int round = 0; round < killRounds(); ++round) {
        reset();
        killed += startAndKill(std::chrono::nanoseconds(moments(random))).signal != 0 ? 1 : 0;
        const std::string atDestination = versionAt(m_destination);
        ASSERT_THAT(atDestination, AnyOf("old", "new", "<missing>"));
        if (atDestination != "old") {
            ASSERT_THAT(trashedVersions(), ElementsAre("old"));
        }
        ASSERT_THAT(trashedVersions(), Not(Contains("<broken>")));

        const TrainEnd end = train();
        ASSERT_EQ(end.status, 0) << end.log;
        ASSERT_EQ(versionAt(m_destination), "new");
        ASSERT_EQ(wrongRightsBelow(m_destination), "");
        ASSERT_THAT(namesIn(m_world.path("Applications")), ElementsAre("Product.app"));
        ASSERT_EQ(rest(), before);
        if (atDestination != "<missing>") {
            ASSERT_THAT(namesIn(m_trashPath), ElementsAre("files", "info"));
        }
    }
    EXPECT_GT(killed, 0);
}

} // namespace
} // namespace zt::testing

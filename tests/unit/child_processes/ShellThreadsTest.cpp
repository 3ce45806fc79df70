// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Many scripts and commands at once, on many threads.

#include "tests/Waiting.h"
#include "tests/unit/child_processes/ShellFixture.h"

#include <atomic>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

using ShellThreadsTest = ShellFixture;

TEST_F(ShellThreadsTest, eachCallerHearsItsOwnChildAndNothingStays) {
    constexpr int threadCount = 8;
    constexpr int runs = 15;
    const QString path = script("echo $1; echo $1 >&2");
    ZTUtilities::shellCommandResult(u"true"_s);
    const std::size_t before = openDescriptors();
    std::atomic<int> good = 0;
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < threadCount; ++thread) {
        threads.emplace_back([&, thread] {
            for (int run = 0; run < runs; ++run) {
                const QString word = u"%1.%2"_s.arg(thread).arg(run);
                const auto collected =
                    ZTUtilities::runShellScript(path, QStringList{word}, endless);
                const auto printed = ZTUtilities::shellCommandResult(u"echo "_s + word);
                good += collected == word + u'\n' + word + u'\n' ? 1 : 0;
                good += printed == word + u'\n' ? 1 : 0;
            }
        });
    }
    threads.clear();
    EXPECT_EQ(good, 2 * threadCount * runs);
    EXPECT_TRUE(hasNoChildren());
    EXPECT_EQ(openDescriptors(), before);
    EXPECT_TRUE(temporaryFiles().empty());
}

TEST_F(ShellThreadsTest, timeoutsOnManyThreadsEndEverything) {
    constexpr int threadCount = 6;
    const QString path = script("trap '' TERM; sleep 600 & wait");
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < threadCount; ++thread) {
        threads.emplace_back([&] {
            ZTUtilities::runShellScript(path, std::nullopt, 0);
            ZTUtilities::shellCommandResult(u"exec sleep 0.05 >&-"_s);
        });
    }
    threads.clear();
    EXPECT_TRUE(eventuallyWithoutEvents(hasNoChildren));
    EXPECT_EQ(fakes.log.lines().size(), threadCount);
    EXPECT_TRUE(temporaryFiles().empty());
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Waiting for scripts, and what is told of them: on a clock and with children of the test's own.

#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include "tests/fakes/FakePlatform.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int forEver = -1;

class ZTUtilitiesShellTest : public testing::Test {
protected:
    FakePlatform platform;
};

} // namespace

TEST_F(ZTUtilitiesShellTest, aScriptRunsInTheHomeFolderWithItsParameters) {
    EXPECT_EQ(ZTUtilities::runShellScript(u"~/bin/tool"_s, QStringList{u"a"_s, u"b c"_s}, 5),
              u""_s);
    ASSERT_EQ(platform.childProcesses.started.size(), 1U);
    const auto &program = platform.childProcesses.started[0];
    EXPECT_EQ(program.path, QDir::homePath() + u"/bin/tool"_s);
    EXPECT_EQ(program.arguments, (QStringList{u"a"_s, u"b c"_s}));
    EXPECT_EQ(program.workingFolder, QDir::homePath());
}

TEST_F(ZTUtilitiesShellTest, withoutParametersAScriptGetsNone) {
    ZTUtilities::runShellScript(u"/tool"_s, std::nullopt, 5);
    EXPECT_EQ(platform.childProcesses.started[0].arguments, QStringList());
}

TEST_F(ZTUtilitiesShellTest, aScriptThatHasEndedIsNotWaitedFor) {
    platform.childProcesses.child = {.questions = 0, .output = "done\n"};
    EXPECT_EQ(ZTUtilities::runShellScript(u"/tool"_s, std::nullopt, 5), u"done\n"_s);
    EXPECT_TRUE(platform.clock.sleeps.empty());
    EXPECT_TRUE(platform.log.lines().isEmpty());
}

TEST_F(ZTUtilitiesShellTest, aRunningScriptIsLookedAtEachMillisecond) {
    platform.childProcesses.child = {.questions = 3, .output = {}};
    ZTUtilities::runShellScript(u"/tool"_s, std::nullopt, 5);
    EXPECT_EQ(platform.clock.sleeps, (std::vector<std::chrono::microseconds>{1ms, 1ms, 1ms}));
}

TEST_F(ZTUtilitiesShellTest, everyScriptIsAskedToEndAndLetGoOf) {
    platform.childProcesses.child = {.questions = 2, .output = {}};
    ZTUtilities::runShellScript(u"/tool"_s, std::nullopt, 5);
    EXPECT_EQ(platform.childProcesses.terminations, 1);
    EXPECT_EQ(platform.childProcesses.released, 1);
}

struct TimeoutRow {
    const char *reason;
    double timeout;
    std::size_t sleeps;
};

TEST_F(ZTUtilitiesShellTest, aScriptGetsItsTimeAndNoMore) {
    const TimeoutRow rows[] = {
        {"exactly at its time, it gets one millisecond more", 0.25, 251},
        {"the same where single precision rounds the time up beyond it", 0.1, 100},
        {"or down", 0.7, 701},
        {"between two looks", 0.0005, 1},
        {"a time that has passed before it began", -1, 0},
        {"no time, on a clock that stands still meanwhile", 0, 1},
    };
    for (const TimeoutRow &row : rows) {
        platform.clock.sleeps.clear();
        platform.childProcesses.child = {.questions = forEver, .output = "partly"};
        EXPECT_EQ(ZTUtilities::runShellScript(u"/tool"_s, std::nullopt, row.timeout), u"partly"_s)
            << row.reason;
        EXPECT_EQ(platform.clock.sleeps.size(), row.sleeps) << row.reason;
    }
}

TEST_F(ZTUtilitiesShellTest, withoutTimeTheFirstLookEndsARunningScript) {
    platform.clock.tick = 1us;
    platform.childProcesses.child = {.questions = forEver, .output = {}};
    ZTUtilities::runShellScript(u"/tool"_s, std::nullopt, 0);
    EXPECT_TRUE(platform.clock.sleeps.empty());
    EXPECT_EQ(platform.log.lines(), QStringList{u"script timeout: tool (null)"_s});
}

TEST_F(ZTUtilitiesShellTest, aTimeoutIsLoggedWithNameAndParameters) {
    platform.childProcesses.child = {.questions = forEver, .output = {}};
    ZTUtilities::runShellScript(u"/bin/slow tool"_s, QStringList{u"a"_s, u"b"_s}, 0.01);
    EXPECT_EQ(platform.log.lines(), QStringList{u"script timeout: slow tool (\"a\", \"b\")"_s});
    EXPECT_EQ(platform.childProcesses.terminations, 2);
}

TEST_F(ZTUtilitiesShellTest, aScriptThatCannotBeRunIsNamedWithTheReason) {
    platform.childProcesses.child = {
        .questions = 0, .output = {}, .startFailure = zt::Error{"launch", "/x/tool", "because"}};
    EXPECT_EQ(ZTUtilities::runShellScript(u"/x/tool"_s, std::nullopt, 5),
              u"script tool failed: launch /x/tool: because"_s);
    EXPECT_TRUE(platform.log.lines().isEmpty());
}

TEST_F(ZTUtilitiesShellTest, outputThatIsNotUtf8IsLoggedAndNoAnswer) {
    platform.childProcesses.child = {.questions = 0, .output = "caf\xE9"};
    EXPECT_EQ(ZTUtilities::runShellScript(u"/x/tool"_s, std::nullopt, 5), std::nullopt);
    EXPECT_EQ(platform.log.lines(),
              QStringList{u"error getting result: read output of tool: it is not UTF-8"_s});
    EXPECT_EQ(platform.childProcesses.released, 1);
}

TEST_F(ZTUtilitiesShellTest, outputThatCannotBeReadIsLoggedAndNoAnswer) {
    platform.childProcesses.child = {.questions = 0,
                                     .output = {},
                                     .startFailure = {},
                                     .outputFailure = zt::Error{"read", "/f", "because"}};
    EXPECT_EQ(ZTUtilities::runShellScript(u"/x/tool"_s, std::nullopt, 5), std::nullopt);
    EXPECT_EQ(platform.log.lines(), QStringList{u"error getting result: read /f: because"_s});
}

TEST_F(ZTUtilitiesShellTest, aShellCommandsOutputIsItsAnswer) {
    platform.childProcesses.child.output = "h\xC3\xA4\n";
    EXPECT_EQ(ZTUtilities::shellCommandResult(u"echo h\u00E4"_s), u"h\u00E4\n"_s);
    EXPECT_EQ(platform.childProcesses.commandLines, QStringList{u"echo h\u00E4"_s});
}

TEST_F(ZTUtilitiesShellTest, aShellCommandsOutputThatIsNotUtf8IsNoAnswer) {
    platform.childProcesses.child.output = "\xFF";
    EXPECT_EQ(ZTUtilities::shellCommandResult(u"x"_s), std::nullopt);
    EXPECT_TRUE(platform.log.lines().isEmpty());
}

TEST_F(ZTUtilitiesShellTest, aShellThatCannotBeRunIsLogged) {
    platform.childProcesses.child.startFailure = zt::Error{"launch", "/bin/sh", "because"};
    EXPECT_EQ(ZTUtilities::shellCommandResult(u"x"_s), std::nullopt);
    EXPECT_EQ(platform.log.lines(), QStringList{u"launch /bin/sh: because"_s});
}

TEST_F(ZTUtilitiesShellTest, aFileIsOpenedByTheDesktop) {
    ZTUtilities::openFile(u"/x/letter.txt"_s);
    EXPECT_EQ(platform.workspace.startedOpenings, QStringList{u"/x/letter.txt"_s});
    EXPECT_TRUE(platform.workspace.openedFiles.isEmpty());
}

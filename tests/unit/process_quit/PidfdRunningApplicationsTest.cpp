// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Real processes, made-up windows and time.

#include "Platform/linux/PidfdRunningApplications.h"

#include "tests/fakes/FakePlatform.h"
#include "tests/programs/RunningProgram.h"

#include <gtest/gtest.h>

#include <fstream>
#include <thread>

#include <signal.h> // kill
#include <sys/wait.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

constexpr auto delayOfSignal = zt::PidfdRunningApplications::delayOfSignal;

class PidfdRunningApplicationsTest : public testing::Test {
protected:
    // The letter by which the system tells what a process is doing.
    static char stateOf(pid_t pid) {
        std::ifstream file("/proc/" + std::to_string(pid) + "/stat");
        std::string text;
        std::getline(file, text);
        return text.at(text.rfind(')') + 2);
    }

    static void waitForState(pid_t pid, char state) {
        while (stateOf(pid) != state)
            std::this_thread::sleep_for(1ms);
    }

    FakeClock clock;
    FakeWindowSystem windowSystem;
    zt::PidfdRunningApplications applications{clock, windowSystem};
};

} // namespace

TEST_F(PidfdRunningApplicationsTest, processesCanBeHeldOnThisSystem) {
    EXPECT_TRUE(applications.isAvailable());
}

TEST_F(PidfdRunningApplicationsTest, whatIsNoProcessCannotBeHeld) {
    RunningProgram program({PLAIN_PROGRAM, "quits"});
    ASSERT_EQ(::kill(program.pid(), SIGKILL), 0);
    program.waitForEnd();
    EXPECT_FALSE(applications.applicationWithPid(program.pid()));
    EXPECT_FALSE(applications.applicationWithPid(0));
    EXPECT_FALSE(applications.applicationWithPid(-1));
}

TEST_F(PidfdRunningApplicationsTest, aProcessWithoutWindowsIsSentTheSignalAtOnce) {
    RunningProgram program({PLAIN_PROGRAM, "quits"});
    ASSERT_TRUE(program.waitForLine("ready"));
    const auto application = applications.applicationWithPid(program.pid());
    ASSERT_TRUE(application);
    EXPECT_FALSE(application->isTerminated());
    EXPECT_TRUE(application->terminate());
    EXPECT_EQ(program.waitForEnd(), 128 + SIGTERM);
    EXPECT_TRUE(application->isTerminated());
    EXPECT_FALSE(application->terminate());
    EXPECT_FALSE(application->forceTerminate());
}

TEST_F(PidfdRunningApplicationsTest, aChildThatNobodyTookNoteOfHasEnded) {
    RunningProgram program({PLAIN_PROGRAM, "quits"});
    ASSERT_TRUE(program.waitForLine("ready"));
    const auto application = applications.applicationWithPid(program.pid());
    ASSERT_TRUE(application->terminate());
    waitForState(program.pid(), 'Z');
    EXPECT_TRUE(application->isTerminated());
    EXPECT_FALSE(application->terminate());
    EXPECT_FALSE(applications.applicationWithPid(program.pid()));
}

TEST_F(PidfdRunningApplicationsTest, windowsAreAskedOnceHoweverOftenItIsCalled) {
    RunningProgram program({PLAIN_PROGRAM, "quits"});
    windowSystem.owners = {program.pid()};
    const auto application = applications.applicationWithPid(program.pid());
    for (int call = 0; call < 1000; ++call)
        EXPECT_TRUE(application->terminate());
    EXPECT_EQ(windowSystem.closeRequests, QList{program.pid()});
    EXPECT_FALSE(program.hasEnded());
}

TEST_F(PidfdRunningApplicationsTest, whenAskingDidNotHelpTheSignalFollows) {
    RunningProgram program({PLAIN_PROGRAM, "quits"});
    ASSERT_TRUE(program.waitForLine("ready"));
    windowSystem.owners = {program.pid()};
    const auto application = applications.applicationWithPid(program.pid());
    EXPECT_TRUE(application->terminate());
    clock.advance(delayOfSignal - 1us);
    EXPECT_TRUE(application->terminate());
    EXPECT_FALSE(application->isTerminated());
    EXPECT_FALSE(program.hasEnded());
    clock.advance(1us);
    EXPECT_TRUE(application->terminate());
    EXPECT_EQ(program.waitForEnd(), 128 + SIGTERM);
    EXPECT_EQ(windowSystem.closeRequests.size(), 1);
}

TEST_F(PidfdRunningApplicationsTest, theSignalIsSentOnce) {
    // The program starts itself anew at each signal.
    RunningProgram program({PLAIN_PROGRAM, "re-executes", "1"});
    ASSERT_TRUE(program.waitForLine("ready"));
    const auto application = applications.applicationWithPid(program.pid());
    EXPECT_TRUE(application->terminate());
    ASSERT_TRUE(program.waitForLine("ready"));
    EXPECT_TRUE(application->terminate());
    EXPECT_FALSE(application->isTerminated());
    // It is the same process still, and somebody else who asks is heard.
    EXPECT_TRUE(applications.applicationWithPid(program.pid())->terminate());
    EXPECT_EQ(program.waitForEnd(), 0);
    EXPECT_TRUE(application->isTerminated());
}

TEST_F(PidfdRunningApplicationsTest, aProcessThatIgnoresTheSignalIsEndedByForce) {
    RunningProgram program({PLAIN_PROGRAM, "ignores-termination"});
    ASSERT_TRUE(program.waitForLine("ready"));
    const auto application = applications.applicationWithPid(program.pid());
    EXPECT_TRUE(application->terminate());
    EXPECT_TRUE(application->forceTerminate());
    EXPECT_EQ(program.waitForEnd(), 128 + SIGKILL);
    EXPECT_FALSE(application->forceTerminate());
}

TEST_F(PidfdRunningApplicationsTest, aStoppedProcessIsLetGoOnToEnd) {
    RunningProgram program({PLAIN_PROGRAM, "stops"});
    ASSERT_TRUE(program.waitForLine("ready"));
    waitForState(program.pid(), 'T');
    EXPECT_TRUE(applications.applicationWithPid(program.pid())->terminate());
    EXPECT_EQ(program.waitForEnd(), 128 + SIGTERM);
}

TEST_F(PidfdRunningApplicationsTest, aStoppedProcessIsLetGoOnToCloseItsWindows) {
    RunningProgram program({PLAIN_PROGRAM, "stops"});
    ASSERT_TRUE(program.waitForLine("ready"));
    waitForState(program.pid(), 'T');
    windowSystem.owners = {program.pid()};
    EXPECT_TRUE(applications.applicationWithPid(program.pid())->terminate());
    waitForState(program.pid(), 'S');
}

TEST_F(PidfdRunningApplicationsTest, aProgramEndsItsHelpersItself) {
    RunningProgram program({PLAIN_PROGRAM, "forks-helpers", "3"});
    ASSERT_TRUE(program.waitForLine("ready"));
    EXPECT_TRUE(applications.applicationWithPid(program.pid())->terminate());
    EXPECT_EQ(program.waitForEnd(), 0);
}

TEST_F(PidfdRunningApplicationsTest, aProcessThatEndsByItselfHasEnded) {
    RunningProgram program({PLAIN_PROGRAM, "ends-after", "20"});
    const auto application = applications.applicationWithPid(program.pid());
    ASSERT_TRUE(program.waitForLine("ready"));
    EXPECT_TRUE(application->terminate()) << "the program ignores it";
    EXPECT_EQ(program.waitForEnd(), 0);
    EXPECT_TRUE(application->isTerminated());
}

TEST_F(PidfdRunningApplicationsTest, aProcessOfSomebodyElseStays) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "only the superuser can give up being itself";
    RunningProgram program({PLAIN_PROGRAM, "quits"});
    ASSERT_TRUE(program.waitForLine("ready"));
    // In a process of its own, which is another user from then on.
    const pid_t other = ::fork();
    if (other == 0) {
        constexpr uid_t nobody = 65534;
        if (::setresuid(nobody, nobody, nobody) != 0)
            std::_Exit(1);
        const auto application = applications.applicationWithPid(program.pid());
        const bool stays = application && application->terminate() &&
                           application->forceTerminate() && !application->isTerminated();
        std::_Exit(stays ? 0 : 2);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(other, &status, 0), other);
    EXPECT_EQ(status, 0);
    EXPECT_FALSE(program.hasEnded());
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Quitting real programs with real windows, on the real clock.

#include "Platform/linux/BusApplicationEvents.h"
#include "Platform/linux/LinuxBundles.h"
#include "Platform/linux/PidfdRunningApplications.h"
#include "Platform/linux/ProcProcessManager.h"
#include "Platform/linux/X11WindowSystem.h"
#include "Platform/portable/EventLoopClock.h"

#include "ZTStuff/ZTClasses/ZTProcess.h"

#include "tests/Waiting.h"
#include "tests/desktop/process/WindowStack.h"
#include "tests/fakes/PlatformWith.h"
#include "tests/programs/RunningProgram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <signal.h> // SIGTERM, SIGKILL

using namespace Qt::StringLiterals;
using testing::MatchesRegex;

namespace {

class ZTProcessQuitDesktopTest : public testing::Test {
protected:
    ZTProcessQuitDesktopTest() { ZTProcess::platformChanged(); }

    ~ZTProcessQuitDesktopTest() override {
        manager.setEventListener({});
        ZTProcess::platformChanged();
    }

    ZTProcess::Pointer processOf(const RunningProgram &program) {
        EXPECT_TRUE(eventually(
            [&] { return windowSystem.processesWithWindows().contains(program.pid()); }));
        return ZTProcess::processWithPID(program.pid());
    }

    std::string log() const { return fakes.log.lines().join(u'\n').toStdString(); }

    FakePlatform fakes;
    zt::EventLoopClock clock;
    zt::LinuxBundles bundles{u"/usr/bin/none"_s};
    zt::X11WindowSystem windowSystem;
    zt::ProcProcessManager manager{bundles, windowSystem};
    zt::PidfdRunningApplications runningApplications{clock, windowSystem};
    zt::BusApplicationEvents applicationEvents;
    zt::Platform services = platformWith(fakes, {.clock = &clock,
                                                 .bundles = &bundles,
                                                 .windowSystem = &windowSystem,
                                                 .processManager = &manager,
                                                 .runningApplications = &runningApplications,
                                                 .applicationEvents = &applicationEvents});
    zt::ScopedPlatform current{services};
};

struct Program {
    const char *name;
    std::vector<std::string> commandLine;
    std::size_t windowCount = 1;
};

const Program programs[] = {
    {"ofOneWindow", {WINDOWED_PROGRAM, "closes"}},
    {"ofTwoWindows", {WINDOWED_PROGRAM, "two-windows"}, 2},
    {"ofGtk", {"zenity", "--info", "--text=Hello"}},
    {"ofAthena", {"xmessage", "Hello"}},
};

class ZTProcessQuitToolkitTest : public ZTProcessQuitDesktopTest,
                                 public testing::WithParamInterface<Program> {};

} // namespace

TEST_P(ZTProcessQuitToolkitTest, aProgramThatClosesEndsAtTheFirstAsking) {
    RunningProgram program(GetParam().commandLine);
    ASSERT_TRUE(
        eventually([] { return windowTitlesFromBottomToTop().size() == GetParam().windowCount; }));
    processOf(program)->quit();
    EXPECT_THAT(log(), MatchesRegex("quit [^\n]*: terminated after 0\\.[0-9]+s "
                                    "\\([0-9]+ attempts\\)"));
    EXPECT_TRUE(program.hasEnded());
    EXPECT_LT(program.waitForEnd(), 128) << "no signal was needed";
}

INSTANTIATE_TEST_SUITE_P(AProgram, ZTProcessQuitToolkitTest, testing::ValuesIn(programs),
                         [](const auto &row) { return row.param.name; });

TEST_F(ZTProcessQuitDesktopTest, aProgramThatAsksItsUserIsAskedOnceAndGivenTheTime) {
    RunningProgram program({WINDOWED_PROGRAM, "asks", "300"});
    ASSERT_TRUE(program.waitForLine("ready"));
    processOf(program)->quit();
    EXPECT_THAT(log(), MatchesRegex("quit [^\n]*: terminated after [01]\\.[0-9]+s "
                                    "\\([0-9]+ attempts\\)"));
    EXPECT_EQ(program.waitForEnd(), 0);
    // Once by us, and once by the program itself when its user has agreed.
    EXPECT_EQ(program.readLine(), "asked");
    EXPECT_EQ(program.readLine(), "asked");
    EXPECT_EQ(program.readLine(), std::nullopt);
}

TEST_F(ZTProcessQuitDesktopTest, aProgramThatKeepsItsWindowEndsAtTheSignal) {
    RunningProgram program({WINDOWED_PROGRAM, "refuses"});
    ASSERT_TRUE(program.waitForLine("ready"));
    processOf(program)->quit();
    EXPECT_THAT(log(), MatchesRegex("quit [^\n]*: terminated after [23]\\.[0-9]+s "
                                    "\\([0-9]+ attempts\\)"));
    EXPECT_EQ(program.waitForEnd(), 128 + SIGTERM);
}

TEST_F(ZTProcessQuitDesktopTest, aProgramThatIgnoresEverythingIsEndedByForce) {
    RunningProgram program({WINDOWED_PROGRAM, "refuses-all"});
    ASSERT_TRUE(program.waitForLine("ready"));
    const ZTProcess::Pointer process = processOf(program);
    EXPECT_TRUE(process->quitRunningApplicationWithTimeout(0.3F));
    EXPECT_THAT(log(), MatchesRegex("force-quit [^\n]*: terminated after 0\\.[0-9]+s "
                                    "\\([0-9]+ attempts\\)"));
    EXPECT_EQ(program.waitForEnd(), 128 + SIGKILL);
    EXPECT_FALSE(process->isStillRunning());
}

TEST_F(ZTProcessQuitDesktopTest, aProgramWithoutWindowsEndsAtTheSignalAtOnce) {
    RunningProgram program({PLAIN_PROGRAM, "forks-helpers", "2"});
    ASSERT_TRUE(program.waitForLine("ready"));
    ZTProcess::processWithPID(program.pid())->quit();
    EXPECT_THAT(log(), MatchesRegex("quit [^\n]*: terminated after 0\\.[0-9]+s "
                                    "\\([0-9]+ attempts\\)"));
    EXPECT_EQ(program.waitForEnd(), 0);
}

TEST_F(ZTProcessQuitDesktopTest, aProgramThatEndsByItselfMeanwhileHasEnded) {
    RunningProgram program({PLAIN_PROGRAM, "ends-after", "50"});
    ASSERT_TRUE(program.waitForLine("ready"));
    const ZTProcess::Pointer process = ZTProcess::processWithPID(program.pid());
    ASSERT_TRUE(process);
    EXPECT_TRUE(process->quitRunningApplicationWithTimeout(4.0F));
    EXPECT_EQ(program.waitForEnd(), 0);
}

TEST_F(ZTProcessQuitDesktopTest, onlyTheCopyThatIsMeantEnds) {
    RunningProgram meant({WINDOWED_PROGRAM, "closes"});
    RunningProgram other({WINDOWED_PROGRAM, "closes"});
    const ZTProcess::Pointer process = processOf(meant);
    const ZTProcess::Pointer otherProcess = processOf(other);
    process->quit();
    EXPECT_TRUE(meant.hasEnded());
    EXPECT_FALSE(other.hasEnded());
    EXPECT_TRUE(otherProcess->isStillRunning());
    EXPECT_FALSE(process->isEqual(otherProcess.get()));
}

TEST_F(ZTProcessQuitDesktopTest, aProgramThatWasGoneBeforeIsLoggedTwice) {
    RunningProgram program({WINDOWED_PROGRAM, "closes"});
    const ZTProcess::Pointer process = processOf(program);
    ASSERT_TRUE(process->name());
    ASSERT_EQ(::kill(program.pid(), SIGKILL), 0);
    ASSERT_TRUE(eventually([&] { return program.hasEnded(); }));
    process->quit();
    EXPECT_EQ(log(), "cannot quit windowed_program: no pid\n"
                     "quitting windowed_program failed (-600; could not create descriptor)");
}

TEST_F(ZTProcessQuitDesktopTest, aProcessComesForwardHidesAndSwitchesOut) {
    RunningProgram first({WINDOWED_PROGRAM, "two-windows"});
    const ZTProcess::Pointer process = processOf(first);
    ASSERT_TRUE(eventually([&] { return process->isFrontProcess(); }));
    RunningProgram second({"xmessage", "Hello"});
    const ZTProcess::Pointer other = processOf(second);
    ASSERT_TRUE(eventually([&] { return other->isFrontProcess(); }));
    process->setFrontProcess();
    EXPECT_TRUE(eventually([&] { return process->isFrontProcess(); }));
    process->setHidden(true);
    EXPECT_TRUE(eventually([&] { return other->isFrontProcess(); }));
    process->setHidden(false);
    EXPECT_TRUE(eventually([] { return hiddenWindowCount() == 0; }));
    process->temporarilySwitchOut();
    EXPECT_TRUE(eventually([&] { return process->isFrontProcess(); }));
}

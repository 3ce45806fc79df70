// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Windows of real programs under a real window manager.

#include "Platform/linux/X11WindowSystem.h"

#include "tests/Waiting.h"
#include "tests/desktop/process/WindowStack.h"
#include "tests/programs/RunningProgram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <thread>

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

class X11WindowSystemTest : public testing::Test {
protected:
    bool hasWindows(const RunningProgram &program) {
        return eventually(
            [&] { return windowSystem.processesWithWindows().contains(program.pid()); });
    }

    bool comesToFront(const RunningProgram &program) {
        return eventually([&] { return windowSystem.frontProcess() == program.pid(); });
    }

    zt::X11WindowSystem windowSystem;
};

const std::vector<std::string> gtkDialog = {"zenity", "--info", "--text=Hello"};
const std::vector<std::string> athenaDialog = {"xmessage", "-title", "message", "Hello"};

} // namespace

TEST_F(X11WindowSystemTest, programsOfEveryToolkitAreFoundByTheirWindows) {
    RunningProgram qt({WINDOWED_PROGRAM, "two-windows"});
    ASSERT_TRUE(qt.waitForLine("ready"));
    const RunningProgram gtk(gtkDialog);
    const RunningProgram athena(athenaDialog);
    EXPECT_TRUE(hasWindows(qt));
    EXPECT_TRUE(hasWindows(gtk));
    EXPECT_TRUE(hasWindows(athena));
    EXPECT_EQ(windowSystem.processesWithWindows().count(qt.pid()), 1);
}

TEST_F(X11WindowSystemTest, aProgramThatEndedHasNoWindows) {
    RunningProgram program({WINDOWED_PROGRAM, "closes"});
    ASSERT_TRUE(hasWindows(program));
    EXPECT_EQ(windowSystem.requestClose(program.pid()), 1);
    EXPECT_EQ(program.waitForEnd(), 0);
    EXPECT_TRUE(
        eventually([&] { return !windowSystem.processesWithWindows().contains(program.pid()); }));
    EXPECT_EQ(windowSystem.requestClose(program.pid()), 0);
}

TEST_F(X11WindowSystemTest, aWindowThatHasGoneIsNotTakenForOneOfTheNextProgram) {
    for (int round = 0; round < 5; ++round) {
        RunningProgram program({WINDOWED_PROGRAM, "closes"});
        // Before its window is there, the window manager may still name the last program's window,
        // and the server may already count that window's id as this program's.
        ASSERT_TRUE(comesToFront(program));
        // The window manager takes a moment to forget the last one.
        EXPECT_TRUE(eventually(
            [] { return testing::Value(windowTitlesFromBottomToTop(), ElementsAre("first")); }));
    }
}

TEST_F(X11WindowSystemTest, theNewestWindowIsInFrontUntilAnotherIsBroughtThere) {
    RunningProgram first({WINDOWED_PROGRAM, "closes"});
    ASSERT_TRUE(comesToFront(first));
    RunningProgram second({WINDOWED_PROGRAM, "closes"});
    ASSERT_TRUE(comesToFront(second));
    windowSystem.bringToFront(first.pid(), zt::WindowSystem::Windows::All);
    EXPECT_TRUE(comesToFront(first));
}

TEST_F(X11WindowSystemTest, allWindowsComeForwardInTheirOrder) {
    RunningProgram program({WINDOWED_PROGRAM, "two-windows"});
    ASSERT_TRUE(program.waitForLine("ready"));
    ASSERT_TRUE(eventually([] { return windowTitlesFromBottomToTop().size() == 2; }));
    const std::vector<std::string> before = windowTitlesFromBottomToTop();
    RunningProgram other(athenaDialog);
    ASSERT_TRUE(comesToFront(other));
    windowSystem.bringToFront(program.pid(), zt::WindowSystem::Windows::All);
    EXPECT_TRUE(eventually([&] {
        return windowTitlesFromBottomToTop() ==
               std::vector<std::string>{"message", before[0], before[1]};
    })) << testing::PrintToString(windowTitlesFromBottomToTop());
    EXPECT_TRUE(comesToFront(program));
}

TEST_F(X11WindowSystemTest, theFrontWindowAloneComesForward) {
    RunningProgram program({WINDOWED_PROGRAM, "two-windows"});
    ASSERT_TRUE(program.waitForLine("ready"));
    ASSERT_TRUE(eventually([] { return windowTitlesFromBottomToTop().size() == 2; }));
    const std::vector<std::string> before = windowTitlesFromBottomToTop();
    RunningProgram other(athenaDialog);
    ASSERT_TRUE(comesToFront(other));
    windowSystem.bringToFront(program.pid(), zt::WindowSystem::Windows::FrontOnly);
    EXPECT_TRUE(comesToFront(program));
    EXPECT_TRUE(eventually([&] {
        return windowTitlesFromBottomToTop() ==
               std::vector<std::string>{before[0], "message", before[1]};
    })) << testing::PrintToString(windowTitlesFromBottomToTop());
}

TEST_F(X11WindowSystemTest, aHiddenProgramGivesUpTheFrontAndComesBack) {
    for (const std::vector<std::string> &commandLine :
         {std::vector<std::string>{WINDOWED_PROGRAM, "two-windows"}, gtkDialog, athenaDialog}) {
        SCOPED_TRACE(commandLine[0]);
        RunningProgram program(commandLine);
        ASSERT_TRUE(comesToFront(program));
        const std::size_t count = windowTitlesFromBottomToTop().size();
        windowSystem.setHidden(program.pid(), true);
        EXPECT_TRUE(eventually([&] { return hiddenWindowCount() == count; }));
        EXPECT_TRUE(eventually([&] { return windowSystem.frontProcess() != program.pid(); }));
        windowSystem.setHidden(program.pid(), false);
        EXPECT_TRUE(eventually([] { return hiddenWindowCount() == 0; }));
    }
}

TEST_F(X11WindowSystemTest, bringingForwardRestoresMinimisedWindows) {
    RunningProgram program({WINDOWED_PROGRAM, "two-windows"});
    ASSERT_TRUE(comesToFront(program));
    ASSERT_TRUE(eventually([] { return windowTitlesFromBottomToTop().size() == 2; }));
    windowSystem.setHidden(program.pid(), true);
    ASSERT_TRUE(eventually([] { return hiddenWindowCount() == 2; }));
    windowSystem.bringToFront(program.pid(), zt::WindowSystem::Windows::All);
    EXPECT_TRUE(comesToFront(program));
    EXPECT_TRUE(eventually([] { return hiddenWindowCount() == 0; }));
}

TEST_F(X11WindowSystemTest, eachWindowIsAskedToCloseAndMayRefuse) {
    RunningProgram program({WINDOWED_PROGRAM, "refuses"});
    ASSERT_TRUE(hasWindows(program));
    EXPECT_EQ(windowSystem.requestClose(program.pid()), 1);
    EXPECT_TRUE(program.waitForLine("asked"));
    EXPECT_TRUE(windowSystem.processesWithWindows().contains(program.pid()));
}

TEST_F(X11WindowSystemTest, programsOfOtherToolkitsEndWhenAskedToClose) {
    for (const std::vector<std::string> &commandLine : {gtkDialog, athenaDialog}) {
        SCOPED_TRACE(commandLine[0]);
        RunningProgram program(commandLine);
        ASSERT_TRUE(hasWindows(program));
        EXPECT_EQ(windowSystem.requestClose(program.pid()), 1);
        program.waitForEnd();
        EXPECT_TRUE(program.hasEnded());
    }
}

TEST_F(X11WindowSystemTest, theWindowsOfAnotherMachineBelongToNoProcessHere) {
    RunningProgram program({WINDOWED_PROGRAM, "closes"});
    ASSERT_TRUE(hasWindows(program));
    setHostOfWindow("first", "elsewhere.example");
    EXPECT_THAT(windowSystem.processesWithWindows(), Not(Contains(program.pid())));
    EXPECT_EQ(windowSystem.requestClose(program.pid()), 0);
}

TEST_F(X11WindowSystemTest, aFalseProcessIdOnAWindowIsNotBelieved) {
    RunningProgram program({WINDOWED_PROGRAM, "closes"});
    ASSERT_TRUE(hasWindows(program));
    setPidOfWindow("first", 1);
    EXPECT_THAT(windowSystem.processesWithWindows(), ElementsAre(program.pid()));
    EXPECT_EQ(windowSystem.requestClose(1), 0);
}

TEST_F(X11WindowSystemTest, panelsAreNotWindowsOfAProgram) {
    RunningProgram program({WINDOWED_PROGRAM, "closes"});
    ASSERT_TRUE(hasWindows(program));
    setTypeOfWindow("first", "_NET_WM_WINDOW_TYPE_DOCK");
    EXPECT_THAT(windowSystem.processesWithWindows(), IsEmpty());
    EXPECT_EQ(windowSystem.requestClose(program.pid()), 0);
}

TEST_F(X11WindowSystemTest, listenersHearOfWindowsAndOfTheFront) {
    int frontChanges = 0;
    int windowChanges = 0;
    windowSystem.setChangeListeners([&] { ++frontChanges; }, [&] { ++windowChanges; });
    RunningProgram first({WINDOWED_PROGRAM, "closes"});
    EXPECT_TRUE(eventually([&] { return frontChanges == 1 && windowChanges >= 1; }));
    RunningProgram second({WINDOWED_PROGRAM, "closes"});
    EXPECT_TRUE(eventually([&] { return frontChanges == 2; }));
    const int before = windowChanges;
    windowSystem.requestClose(second.pid());
    EXPECT_TRUE(eventually([&] { return frontChanges == 3 && windowChanges > before; }));
    windowSystem.setChangeListeners({}, {});
    windowSystem.requestClose(first.pid());
    first.waitForEnd();
    ASSERT_TRUE(eventually([&] { return windowSystem.processesWithWindows().isEmpty(); }));
    EXPECT_EQ(frontChanges, 3);
}

TEST_F(X11WindowSystemTest, anotherWindowOfTheSameProgramInFrontIsNoChangeOfTheFrontProcess) {
    RunningProgram program({WINDOWED_PROGRAM, "two-windows"});
    ASSERT_TRUE(eventually([] { return windowTitlesFromBottomToTop().size() == 2; }));
    ASSERT_TRUE(comesToFront(program));
    int frontChanges = 0;
    windowSystem.setChangeListeners([&] { ++frontChanges; }, {});
    activateWindow(windowTitlesFromBottomToTop()[0]);
    RunningProgram other(athenaDialog);
    ASSERT_TRUE(comesToFront(other));
    EXPECT_TRUE(eventually([&] { return frontChanges == 1; }));
}

TEST_F(X11WindowSystemTest, aListenerMayEndTheListening) {
    bool wasCalled = false;
    windowSystem.setChangeListeners({}, [&] {
        wasCalled = true;
        windowSystem.setChangeListeners({}, {});
    });
    const RunningProgram program({WINDOWED_PROGRAM, "closes"});
    EXPECT_TRUE(eventually([&] { return wasCalled; }));
}

TEST_F(X11WindowSystemTest, threadsMayAskAtTheSameTime) {
    RunningProgram program({WINDOWED_PROGRAM, "closes"});
    ASSERT_TRUE(comesToFront(program));
    std::array<std::thread, 4> threads;
    std::atomic<int> right = 0;
    for (std::thread &thread : threads) {
        thread = std::thread([&] {
            for (int round = 0; round < 50; ++round) {
                windowSystem.bringToFront(program.pid(), zt::WindowSystem::Windows::All);
                right += windowSystem.processesWithWindows() == QList{program.pid()} ? 1 : 0;
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(right, 200);
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What is answered where nobody can tell about windows.

#include "Platform/linux/X11WindowSystem.h"

#include "tests/Waiting.h"
#include "tests/desktop/process/WindowStack.h"
#include "tests/programs/RunningProgram.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <signal.h> // kill

namespace {

std::unique_ptr<RunningProgram> startWindowManager() {
    forgetWindowManager();
    auto manager =
        std::make_unique<RunningProgram>(std::vector<std::string>{"openbox", "--sm-disable"});
    EXPECT_TRUE(eventually(windowManagerIsReady));
    return manager;
}

void expectNeutralAnswers(zt::WindowSystem &windowSystem, std::int32_t pid) {
    EXPECT_TRUE(windowSystem.processesWithWindows().isEmpty());
    EXPECT_EQ(windowSystem.frontProcess(), std::nullopt);
    EXPECT_EQ(windowSystem.requestClose(pid), 0);
    windowSystem.bringToFront(pid, zt::WindowSystem::Windows::All);
    windowSystem.setHidden(pid, true);
    windowSystem.setHidden(pid, false);
}

} // namespace

TEST(X11WithoutWindowManagerTest, theAnswersAreNeutral) {
    RunningProgram program({WINDOWED_PROGRAM, "closes"});
    ASSERT_TRUE(program.waitForLine("ready"));
    zt::X11WindowSystem windowSystem;
    expectNeutralAnswers(windowSystem, program.pid());
}

TEST(X11WithoutWindowManagerTest, aWindowManagerThatComesLaterIsFound) {
    zt::X11WindowSystem windowSystem;
    int windowChanges = 0;
    windowSystem.setChangeListeners({}, [&] { ++windowChanges; });
    const std::unique_ptr<RunningProgram> manager = startWindowManager();
    const RunningProgram program({WINDOWED_PROGRAM, "closes"});
    EXPECT_TRUE(
        eventually([&] { return windowSystem.processesWithWindows() == QList{program.pid()}; }));
    EXPECT_TRUE(eventually([&] { return windowChanges > 0; }));
}

TEST(X11WithoutWindowManagerTest, whatADeadWindowManagerLeftBehindIsNotBelieved) {
    zt::X11WindowSystem windowSystem;
    std::unique_ptr<RunningProgram> manager = startWindowManager();
    RunningProgram program({WINDOWED_PROGRAM, "closes"});
    ASSERT_TRUE(eventually([&] { return windowSystem.frontProcess() == program.pid(); }));
    manager.reset();
    EXPECT_TRUE(eventually([&] { return !windowSystem.frontProcess().has_value(); }));
    expectNeutralAnswers(windowSystem, program.pid());
}

TEST(X11WithoutServerTest, theAnswersAreNeutral) {
    qunsetenv("DISPLAY");
    zt::X11WindowSystem windowSystem;
    windowSystem.setChangeListeners([] {}, [] {});
    expectNeutralAnswers(windowSystem, 1);
}

TEST(X11WithoutServerTest, theAnswersAreNeutralOnceTheServerHasGone) {
    RunningProgram server({"Xvfb", "-displayfd", "1", "-nolisten", "tcp", "-noreset"});
    const std::optional<std::string> display = server.readLine();
    ASSERT_TRUE(display);
    qputenv("DISPLAY", (":" + *display).c_str());
    zt::X11WindowSystem windowSystem;
    windowSystem.setChangeListeners([] {}, [] {});
    ASSERT_EQ(::kill(server.pid(), SIGKILL), 0);
    server.waitForEnd();
    QCoreApplication::processEvents();
    expectNeutralAnswers(windowSystem, 1);
}

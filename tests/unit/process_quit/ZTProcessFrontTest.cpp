// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/process_quit/QuitFixture.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;
using zt::WindowSystem;

namespace {

class ZTProcessFrontTest : public QuitFixture {
protected:
    FakeWindowSystem &windows = platform.windowSystem;
    FakeProcessManager &manager = platform.processManager;
};

} // namespace

TEST_F(ZTProcessFrontTest, comingToTheFrontBringsAllWindows) {
    process->setFrontProcess();
    EXPECT_THAT(windows.broughtToFront, ElementsAre(pid));
    EXPECT_THAT(windows.whichWindows, ElementsAre(WindowSystem::Windows::All));
}

TEST_F(ZTProcessFrontTest, theFrontWindowCanComeAlone) {
    process->setFrontProcessFrontWindowOnly();
    EXPECT_THAT(windows.broughtToFront, ElementsAre(pid));
    EXPECT_THAT(windows.whichWindows, ElementsAre(WindowSystem::Windows::FrontOnly));
}

TEST_F(ZTProcessFrontTest, hidingAndShowingAreOpposites) {
    process->setHidden(true);
    EXPECT_THAT(windows.hiddenProcesses, ElementsAre(pid));
    EXPECT_THAT(windows.shownProcesses, IsEmpty());
    process->setHidden(false);
    EXPECT_THAT(windows.shownProcesses, ElementsAre(pid));
}

TEST_F(ZTProcessFrontTest, wakingUpIsForTheProcessItself) {
    process->wakeUp();
    EXPECT_THAT(manager.wokenUp(), ElementsAre(pid));
}

TEST_F(ZTProcessFrontTest, switchingOutGoesThroughThisProgram) {
    constexpr std::int32_t ownPid = 7;
    manager.start(ownPid, named("Installer"));
    manager.setCurrent(ownPid);
    process->temporarilySwitchOut();
    EXPECT_THAT(windows.broughtToFront, ElementsAre(ownPid, pid));
    EXPECT_THAT(windows.whichWindows,
                ElementsAre(WindowSystem::Windows::All, WindowSystem::Windows::FrontOnly));
    EXPECT_THAT(manager.wokenUp(), ElementsAre(pid));
}

TEST_F(ZTProcessFrontTest, switchingOutWorksWhenThisProgramIsNotKnown) {
    process->temporarilySwitchOut();
    EXPECT_THAT(windows.broughtToFront, ElementsAre(pid));
    EXPECT_THAT(manager.wokenUp(), ElementsAre(pid));
}

TEST_F(ZTProcessFrontTest, aProcessThatEndedIsLeftInPeaceAndNothingIsLogged) {
    manager.end(pid);
    process->setFrontProcess();
    process->setFrontProcessFrontWindowOnly();
    process->setHidden(true);
    process->setHidden(false);
    EXPECT_THAT(windows.broughtToFront, IsEmpty());
    EXPECT_THAT(windows.hiddenProcesses, IsEmpty());
    EXPECT_THAT(windows.shownProcesses, IsEmpty());
    EXPECT_TRUE(log().isEmpty());
}

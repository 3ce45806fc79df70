// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include "tests/fakes/FakePlatform.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using zt::MenuBarEvents;

namespace {

class ZTUtilitiesMenuBarTest : public testing::Test {
protected:
    ZTUtilitiesMenuBarTest() { ZTUtilities::platformChanged(); }
    ~ZTUtilitiesMenuBarTest() override { ZTUtilities::platformChanged(); }

    FakePlatform platform;
    FakeMenuBarEvents &menuBar = platform.menuBarEvents;
};

} // namespace

TEST_F(ZTUtilitiesMenuBarTest, nothingIsListenedForBeforeTheFirstQuestion) {
    EXPECT_EQ(menuBar.installations, 0);
    EXPECT_FALSE(ZTUtilities::fullScreenMode());
    EXPECT_EQ(menuBar.installations, 1);
}

TEST_F(ZTUtilitiesMenuBarTest, theModeFollowsTheMenuBar) {
    EXPECT_FALSE(ZTUtilities::fullScreenMode()) << "before the first event";
    menuBar.send(MenuBarEvents::hidden);
    EXPECT_TRUE(ZTUtilities::fullScreenMode());
    menuBar.send(MenuBarEvents::hidden);
    EXPECT_TRUE(ZTUtilities::fullScreenMode()) << "hidden twice";
    menuBar.send(MenuBarEvents::shown);
    EXPECT_FALSE(ZTUtilities::fullScreenMode());
    EXPECT_EQ(menuBar.installations, 1) << "installed once for all questions";
}

TEST_F(ZTUtilitiesMenuBarTest, onlyTheTwoEventsAreWanted) {
    ASSERT_EQ(nMenuBarEventsWanted, 2U);
    EXPECT_EQ(menuBarEventsWanted[0].eventClass, 0x6D656E75U);
    EXPECT_EQ(menuBarEventsWanted[0].eventKind, 2000U);
    EXPECT_EQ(menuBarEventsWanted[1].eventClass, 0x6D656E75U);
    EXPECT_EQ(menuBarEventsWanted[1].eventKind, 2001U);
}

TEST_F(ZTUtilitiesMenuBarTest, otherEventsChangeNothing) {
    menuBar.send(MenuBarEvents::hidden);
    ZTUtilities::fullScreenMode();
    MonitorMenuBarEventHandler(MenuBarEvents::hidden);
    const MenuBarEvents::Type others[] = {
        {.eventClass = MenuBarEvents::menuClass, .eventKind = 2002},
        {.eventClass = 0x6170706C, .eventKind = 2000},
    };
    for (const MenuBarEvents::Type other : others) {
        EXPECT_EQ(MonitorMenuBarEventHandler(other), -9874);
        EXPECT_TRUE(ZTUtilities::fullScreenMode());
    }
}

TEST_F(ZTUtilitiesMenuBarTest, theEventTravelsOnToOtherHandlers) {
    int seen = 0;
    menuBar.installHandler(menuBarEventsWanted, [&seen](MenuBarEvents::Type) {
        ++seen;
        return MenuBarEvents::handled;
    });
    ZTUtilities::fullScreenMode();
    EXPECT_EQ(menuBar.send(MenuBarEvents::hidden), MenuBarEvents::handled);
    EXPECT_EQ(seen, 1);
    EXPECT_TRUE(ZTUtilities::fullScreenMode());
}

TEST_F(ZTUtilitiesMenuBarTest, whereThereAreNoSuchEventsItIsTriedAndNotedOnce) {
    menuBar.isUnavailable = true;
    EXPECT_FALSE(ZTUtilities::fullScreenMode());
    EXPECT_FALSE(ZTUtilities::fullScreenMode());
    EXPECT_EQ(menuBar.installations, 1);
    EXPECT_EQ(platform.log.lines(),
              QStringList{u"could not install menu bar visibility event handl)"_s});
}

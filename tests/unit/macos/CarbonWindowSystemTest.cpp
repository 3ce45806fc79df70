// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/CarbonWindowSystem.h"

#include "tests/unit/macos/StandInTest.h"

using Windows = zt::WindowSystem::Windows;
using Requests = decltype(standin::session.requests);

class CarbonWindowSystemTest : public StandInTest {
protected:
    CarbonWindowSystemTest() {
        standin::session.start({.pid = 5, .name = "a", .hasWindow = true});
        standin::session.start({.pid = 6, .name = "b"});
    }

    QList<QRect> blurred;
    std::uint64_t blurredWindow = 0;
    zt::CarbonWindowSystem windows{[this](std::uint64_t window, const QList<QRect> &parts) {
        blurredWindow = window;
        blurred = parts;
        return true;
    }};
};

TEST_F(CarbonWindowSystemTest, ownersOfOrdinaryWindowsAreListedOnce) {
    EXPECT_EQ(windows.processesWithWindows(), QList<std::int32_t>{5});
}

TEST_F(CarbonWindowSystemTest, theFrontProcessIsKnownByItsId) {
    EXPECT_EQ(windows.frontProcess(), std::nullopt);
    standin::session.bringToFront(6);
    EXPECT_EQ(windows.frontProcess(), 6);
}

TEST_F(CarbonWindowSystemTest, requestsGoToTheProcess) {
    windows.bringToFront(5, Windows::All);
    windows.bringToFront(6, Windows::FrontOnly);
    windows.setHidden(5, true);
    windows.setHidden(5, false);
    EXPECT_EQ(standin::session.requests,
              (Requests{{"front", 5}, {"front window", 6}, {"hide", 5}, {"show", 5}}));
}

TEST_F(CarbonWindowSystemTest, aProcessThatThereIsNotIsAskedNothing) {
    windows.bringToFront(7, Windows::All);
    windows.setHidden(7, true);
    EXPECT_EQ(standin::session.requests, Requests{});
    EXPECT_EQ(windows.requestClose(5), 0);
}

TEST_F(CarbonWindowSystemTest, changesAreToldApart) {
    int front = 0;
    int list = 0;
    windows.setChangeListeners([&] { ++front; }, [&] { ++list; });
    standin::session.start({.pid = 7, .name = "c"});
    standin::session.end(7);
    EXPECT_EQ(list, 2);
    standin::session.bringToFront(5);
    EXPECT_EQ(front, 1);
    windows.setChangeListeners({}, {});
    standin::session.bringToFront(6);
    EXPECT_EQ(front, 1);
}

TEST_F(CarbonWindowSystemTest, changesTravelOnToOthers) {
    windows.setChangeListeners([] {}, {});
    EXPECT_EQ(standin::eventHandlers.send(kEventClassApplication, kEventAppFrontSwitched),
              eventNotHandledErr);
    windows.setChangeListeners({}, {});
}

TEST_F(CarbonWindowSystemTest, blurringIsHandedOn) {
    EXPECT_TRUE(windows.blurBehind(12, {QRect(1, 2, 3, 4)}));
    EXPECT_EQ(blurredWindow, 12U);
    EXPECT_EQ(blurred, QList<QRect>{QRect(1, 2, 3, 4)});
}

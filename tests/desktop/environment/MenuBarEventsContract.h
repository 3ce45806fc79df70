#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What every service of menu bar events does. A case has `events`, and `hide()` and `show()` for
// the menu bar.

#include "Platform/MenuBarEvents.h"

#include "tests/Waiting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <vector>

using MenuBarEventTypes = std::vector<zt::MenuBarEvents::Type>;

inline constexpr std::array bothMenuBarEvents = {zt::MenuBarEvents::shown,
                                                 zt::MenuBarEvents::hidden};

// A handler that keeps what it hears.
inline zt::MenuBarEvents::Handler keepIn(MenuBarEventTypes &heard,
                                         std::int32_t answer = zt::MenuBarEvents::notHandled) {
    return [&heard, answer](zt::MenuBarEvents::Type event) {
        heard.push_back(event);
        return answer;
    };
}

template <typename Case>
class MenuBarEventsContractTest : public testing::Test {
protected:
    Case implementation;
    zt::MenuBarEvents &events = implementation.events;
};

TYPED_TEST_SUITE_P(MenuBarEventsContractTest);

TYPED_TEST_P(MenuBarEventsContractTest, hidingAndShowingAreTold) {
    MenuBarEventTypes heard;
    ASSERT_TRUE(this->events.installHandler(bothMenuBarEvents, keepIn(heard)));
    EXPECT_THAT(heard, testing::IsEmpty());
    this->implementation.hide();
    EXPECT_TRUE(eventually([&] { return heard == MenuBarEventTypes{zt::MenuBarEvents::hidden}; }));
    this->implementation.show();
    EXPECT_TRUE(eventually([&] {
        return heard == MenuBarEventTypes{zt::MenuBarEvents::hidden, zt::MenuBarEvents::shown};
    }));
}

TYPED_TEST_P(MenuBarEventsContractTest, onlyWhatIsWantedIsTold) {
    MenuBarEventTypes heard;
    MenuBarEventTypes all;
    ASSERT_TRUE(this->events.installHandler(bothMenuBarEvents, keepIn(all)));
    ASSERT_TRUE(this->events.installHandler(std::array{zt::MenuBarEvents::shown}, keepIn(heard)));
    this->implementation.hide();
    EXPECT_TRUE(eventually([&] { return all.size() == 1; }));
    this->implementation.show();
    EXPECT_TRUE(eventually([&] { return all.size() == 2; }));
    EXPECT_THAT(heard, testing::ElementsAre(zt::MenuBarEvents::shown));
}

TYPED_TEST_P(MenuBarEventsContractTest, anEventThatIsHandledGoesNoFurther) {
    MenuBarEventTypes first;
    MenuBarEventTypes second;
    MenuBarEventTypes third;
    ASSERT_TRUE(this->events.installHandler(bothMenuBarEvents, keepIn(first)));
    ASSERT_TRUE(
        this->events.installHandler(bothMenuBarEvents, keepIn(second, zt::MenuBarEvents::handled)));
    ASSERT_TRUE(this->events.installHandler(bothMenuBarEvents, keepIn(third)));
    this->implementation.hide();
    EXPECT_TRUE(eventually([&] { return second.size() == 1; }));
    EXPECT_EQ(third.size(), 1U);
    EXPECT_THAT(first, testing::IsEmpty());
}

REGISTER_TYPED_TEST_SUITE_P(MenuBarEventsContractTest, hidingAndShowingAreTold,
                            onlyWhatIsWantedIsTold, anEventThatIsHandledGoesNoFurther);

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the services that need a session bus answer where there is none. See the main function: this
// test program has none.

#include "Platform/linux/AtSpiAccessibility.h"
#include "Platform/linux/BusApplicationEvents.h"

#include <gtest/gtest.h>

#include <unistd.h>

using zt::ApplicationEvents;

TEST(BusApplicationEventsWithoutBusTest, nothingCanBeSent) {
    zt::BusApplicationEvents events;
    const ApplicationEvents::Event event = {
        .eventClass = 0x61657674, .eventId = 0x71756974, .targetPid = ::getpid()};
    EXPECT_EQ(events.checkAddress(event.targetPid), ApplicationEvents::noError);
    EXPECT_EQ(events.checkEvent(event), ApplicationEvents::connectionInvalid);
    EXPECT_EQ(events.sendAndWait(event, 60), ApplicationEvents::connectionInvalid);
    EXPECT_EQ(events.sendWithoutReply(event), ApplicationEvents::connectionInvalid);
}

TEST(AtSpiAccessibilityWithoutBusTest, everythingIsRefused) {
    zt::AtSpiAccessibility accessibility;
    const zt::Result<void> checked = accessibility.checkApplication(::getpid());
    ASSERT_FALSE(checked);
    EXPECT_EQ(checked.error().text(), "connect to accessibility bus: there is none");
    EXPECT_FALSE(accessibility.observeApplication(::getpid(), {}));
}

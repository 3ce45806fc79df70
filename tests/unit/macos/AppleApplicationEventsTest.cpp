// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/AppleApplicationEvents.h"

#include "tests/unit/macos/StandInTest.h"

#include <cstring>

using zt::ApplicationEvents;

namespace {

constexpr std::uint32_t coreClass = 0x61657674;      // 'aevt'
constexpr std::uint32_t quitEvent = 0x71756974;      // 'quit'
constexpr std::uint32_t byProcessId = 0x6B706964;    // 'kpid'
constexpr std::uint32_t bySerialNumber = 0x70736E20; // 'psn '

} // namespace

class AppleApplicationEventsTest : public StandInTest {
protected:
    AppleApplicationEventsTest() { standin::session.start({.pid = 5, .name = "a"}); }

    ApplicationEvents::Event quit = {.eventClass = coreClass, .eventId = quitEvent, .targetPid = 5};
    zt::AppleApplicationEvents events;
};

TEST_F(AppleApplicationEventsTest, aProcessThatRunsCanBeAddressed) {
    EXPECT_EQ(events.checkAddress(5), ApplicationEvents::noError);
    EXPECT_EQ(events.checkAddress(6), ApplicationEvents::processNotFound);
}

TEST_F(AppleApplicationEventsTest, anEventThatCannotBeMadeIsFoundOutBefore) {
    EXPECT_EQ(events.checkEvent(quit), ApplicationEvents::noError);
    standin::appleEvents.answerToCreation = connectionInvalid;
    EXPECT_EQ(events.checkEvent(quit), ApplicationEvents::connectionInvalid);
    EXPECT_TRUE(standin::appleEvents.sent.empty());
}

TEST_F(AppleApplicationEventsTest, withoutReplyItGoesFirstAndByTheSerialNumber) {
    EXPECT_EQ(events.sendWithoutReply(quit), ApplicationEvents::noError);
    ASSERT_EQ(standin::appleEvents.sent.size(), 1U);
    const standin::SentEvent &sent = standin::appleEvents.sent.front();
    EXPECT_EQ(sent.eventClass, coreClass);
    EXPECT_EQ(sent.eventId, quitEvent);
    EXPECT_EQ(sent.addressType, bySerialNumber);
    EXPECT_EQ(sent.address.size(), 8U);
    EXPECT_EQ(sent.mode, 1);
    EXPECT_EQ(sent.priority, 1);
    EXPECT_EQ(sent.timeout, -1);
}

TEST_F(AppleApplicationEventsTest, withReplyItGoesByTheProcessId) {
    EXPECT_EQ(events.sendAndWait(quit, 150), ApplicationEvents::noError);
    ASSERT_EQ(standin::appleEvents.sent.size(), 1U);
    const standin::SentEvent &sent = standin::appleEvents.sent.front();
    EXPECT_EQ(sent.addressType, byProcessId);
    std::int32_t pid = 0;
    ASSERT_EQ(sent.address.size(), sizeof pid);
    std::memcpy(&pid, sent.address.data(), sizeof pid);
    EXPECT_EQ(pid, 5);
    EXPECT_EQ(sent.mode, 0x3093);
    EXPECT_EQ(sent.timeout, 150);
}

TEST_F(AppleApplicationEventsTest, errorsOfSendingAreAnswered) {
    standin::appleEvents.answerToSending = OSErr(ApplicationEvents::eventTimedOut);
    EXPECT_EQ(events.sendWithoutReply(quit), ApplicationEvents::eventTimedOut);
    EXPECT_EQ(events.sendAndWait(quit, 1), ApplicationEvents::eventTimedOut);
}

TEST_F(AppleApplicationEventsTest, nothingIsSentToAProcessThatThereIsNot) {
    quit.targetPid = 6;
    EXPECT_EQ(events.sendWithoutReply(quit), ApplicationEvents::processNotFound);
    EXPECT_TRUE(standin::appleEvents.sent.empty());
}

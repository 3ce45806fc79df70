// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/process_quit/QuitFixture.h"

#include <limits>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using ZTProcessQuitTest = QuitFixture;

} // namespace

// Ending within a time.

TEST_F(ZTProcessQuitTest, anApplicationThatEndsAtTheFirstRequestIsLoggedWithOneAttempt) {
    script().endsAfterPoliteRequest = 1;
    EXPECT_TRUE(process->quitRunningApplicationWithTimeout(4.0F));
    EXPECT_EQ(log(), QStringList{u"quit Editor: terminated after 0.001s (1 attempts)"_s});
    EXPECT_EQ(platform.clock.sleeps, std::vector<std::chrono::microseconds>{1000us});
}

TEST_F(ZTProcessQuitTest, theRequestIsRepeatedEveryMillisecond) {
    script().endsAfterPoliteRequest = 250;
    EXPECT_TRUE(process->quitRunningApplicationWithTimeout(4.0F));
    EXPECT_EQ(log(), QStringList{u"quit Editor: terminated after 0.250s (250 attempts)"_s});
    EXPECT_EQ(platform.clock.sleeps, std::vector<std::chrono::microseconds>(250, 1000us));
}

TEST_F(ZTProcessQuitTest, anApplicationThatIsGoneWhenItIsAskedAgainHasStopped) {
    script().endsBeforePoliteRequest = 3;
    EXPECT_TRUE(process->quitRunningApplicationWithTimeout(4.0F));
    EXPECT_EQ(log(), QStringList{u"quit Editor: process stopped after 0.002s (3 attempts)"_s});
}

TEST_F(ZTProcessQuitTest, theForcedPhaseCountsAndMeasuresAnew) {
    script().endsAfterForcedRequest = 2;
    EXPECT_TRUE(process->quitRunningApplicationWithTimeout(4.0F));
    EXPECT_EQ(log(), QStringList{u"force-quit Editor: terminated after 0.002s (2 attempts)"_s});
    EXPECT_EQ(script().politeRequests, 4000);
}

TEST_F(ZTProcessQuitTest, anApplicationThatIsGoneWhenItIsForcedHasStopped) {
    script().endsBeforeForcedRequest = 1;
    EXPECT_TRUE(process->quitRunningApplicationWithTimeout(0.5F));
    EXPECT_EQ(log(), QStringList{u"foce-quit Editor: process stopped after 0.000s (1 attempts)"_s});
    EXPECT_EQ(script().politeRequests, 500);
}

TEST_F(ZTProcessQuitTest, eachPhaseHasTheWholeTime) {
    EXPECT_FALSE(process->quitRunningApplicationWithTimeout(0.25F));
    EXPECT_EQ(log(), QStringList{u"quitting Editor failed"_s});
    EXPECT_EQ(script().politeRequests, 250);
    EXPECT_EQ(script().forcedRequests, 250);
}

TEST_F(ZTProcessQuitTest, withoutTimeNothingIsAsked) {
    for (const float timeout : {0.0F, -1.0F, std::numeric_limits<float>::quiet_NaN()}) {
        platform.log.clear();
        EXPECT_FALSE(process->quitRunningApplicationWithTimeout(timeout));
        EXPECT_EQ(log(), QStringList{u"quitting Editor failed"_s});
        EXPECT_EQ(script().politeRequests + script().forcedRequests, 0);
        EXPECT_TRUE(platform.clock.sleeps.empty());
    }
}

TEST_F(ZTProcessQuitTest, whereApplicationsCannotBeHeldNothingIsAsked) {
    platform.runningApplications.available = false;
    EXPECT_FALSE(process->quitRunningApplicationWithTimeout(4.0F));
    EXPECT_EQ(log(), QStringList{u"cannot quit Editor: NSRunningApplication not available"_s});
}

TEST_F(ZTProcessQuitTest, anApplicationThatEndedHasNoPid) {
    EXPECT_EQ(process->name(), u"Editor"_s); // known from before
    platform.processManager.end(pid);
    EXPECT_FALSE(process->quitRunningApplicationWithTimeout(4.0F));
    EXPECT_EQ(log(), QStringList{u"cannot quit Editor: no pid"_s});
}

TEST_F(ZTProcessQuitTest, anApplicationThatNobodyEverLookedAtIsNamedAsMissing) {
    platform.processManager.end(pid);
    EXPECT_FALSE(process->quitRunningApplicationWithTimeout(4.0F));
    EXPECT_EQ(log(), QStringList{u"cannot quit (null): no pid"_s});
}

TEST_F(ZTProcessQuitTest, anApplicationThatCannotBeHeldIsNotFound) {
    script().hasEnded = true;
    EXPECT_FALSE(process->quitRunningApplicationWithTimeout(4.0F));
    EXPECT_EQ(log(), QStringList{u"cannot quit Editor: no process found"_s});
}

TEST_F(ZTProcessQuitTest, anotherProcessThatWasGivenTheIdMeanwhileIsLeftAlone) {
    // Between the question for the id and taking hold the application ends, and the id goes to
    // another process.
    script().whenHeld = [this] {
        platform.processManager.end(pid);
        platform.processManager.start(pid, named("Innocent"));
    };
    EXPECT_FALSE(process->quitRunningApplicationWithTimeout(4.0F));
    EXPECT_EQ(log(), QStringList{u"cannot quit Editor: no process found"_s});
    EXPECT_EQ(script().politeRequests + script().forcedRequests, 0);
}

// Quitting.

TEST_F(ZTProcessQuitTest, quittingAsksForFourSecondsAndForcesForFour) {
    process->quit();
    EXPECT_EQ(script().politeRequests, 4000);
    EXPECT_EQ(script().forcedRequests, 4000);
    EXPECT_EQ(log(), QStringList{u"quitting Editor failed"_s});
}

TEST_F(ZTProcessQuitTest, whatCannotBeEndedIsSentTheQuitEventAndNotWaitedFor) {
    process->quit();
    ASSERT_EQ(platform.applicationEvents.sent.size(), 1U);
    const FakeApplicationEvents::Sent &sent = platform.applicationEvents.sent[0];
    EXPECT_EQ(sent.event.eventClass, fourCharCode("aevt"));
    EXPECT_EQ(sent.event.eventId, fourCharCode("quit"));
    EXPECT_EQ(sent.event.targetPid, pid);
    EXPECT_FALSE(sent.waited);
}

TEST_F(ZTProcessQuitTest, whatHasEndedIsSentNoEvent) {
    script().endsAfterForcedRequest = 1;
    process->quit();
    EXPECT_TRUE(platform.applicationEvents.sent.empty());
}

TEST_F(ZTProcessQuitTest, anApplicationThatWasGoneBeforeCannotBeAddressed) {
    EXPECT_EQ(process->name(), u"Editor"_s);
    platform.processManager.end(pid);
    process->quit();
    EXPECT_EQ(log(),
              (QStringList{u"cannot quit Editor: no pid"_s,
                           u"quitting Editor failed (-600; could not create descriptor)"_s}));
    EXPECT_TRUE(platform.applicationEvents.sent.empty());
}

TEST_F(ZTProcessQuitTest, anEventThatCannotBeMadeIsLoggedAndNotSent) {
    platform.applicationEvents.eventError = zt::ApplicationEvents::connectionInvalid;
    process->quit();
    EXPECT_EQ(log(), (QStringList{u"quitting Editor failed"_s,
                                  u"quitting Editor failed (-609; could not create event)"_s}));
    EXPECT_TRUE(platform.applicationEvents.sent.empty());
}

TEST_F(ZTProcessQuitTest, anEventThatIsNotDeliveredIsLogged) {
    platform.applicationEvents.sendError = zt::ApplicationEvents::eventNotHandled;
    process->quit();
    EXPECT_EQ(log(), (QStringList{u"quitting Editor failed"_s,
                                  u"quitting Editor failed (-1708; could not send event)"_s}));
}

// Other events.

TEST_F(ZTProcessQuitTest, anEventIsSentToThePidAndWaitedFor) {
    process->sendAppleEventClass(fourCharCode("misc"), fourCharCode("actv"), 2.0F);
    ASSERT_EQ(platform.applicationEvents.sent.size(), 1U);
    const FakeApplicationEvents::Sent &sent = platform.applicationEvents.sent[0];
    EXPECT_EQ(sent.event.eventClass, fourCharCode("misc"));
    EXPECT_EQ(sent.event.eventId, fourCharCode("actv"));
    EXPECT_EQ(sent.event.targetPid, pid);
    EXPECT_TRUE(sent.waited);
    EXPECT_TRUE(log().isEmpty());
}

TEST_F(ZTProcessQuitTest, timesAreGivenInWholeSixtiethsOfASecond) {
    struct Case {
        const char *reason;
        float seconds;
        std::int32_t ticks;
    };
    constexpr Case cases[] = {
        {"a second has sixty", 1.0F, 60},
        {"parts are cut off", 0.99F, 59},
        {"less than one is none", 0.016F, 0},
        {"towards zero from below too", -0.99F, -59},
        {"too long is as long as can be", 1e30F, std::numeric_limits<std::int32_t>::max()},
        {"not a number is no time", std::numeric_limits<float>::quiet_NaN(), 0},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.reason);
        platform.applicationEvents.sent.clear();
        process->sendAppleEventClass(fourCharCode("aevt"), fourCharCode("oapp"), row.seconds);
        ASSERT_EQ(platform.applicationEvents.sent.size(), 1U);
        EXPECT_EQ(platform.applicationEvents.sent[0].timeoutTicks, row.ticks);
    }
}

TEST_F(ZTProcessQuitTest, anEventThatFailsIsLoggedWithItsNumber) {
    platform.applicationEvents.sendError = zt::ApplicationEvents::eventTimedOut;
    process->sendAppleEventClass(fourCharCode("aevt"), fourCharCode("quit"), 1.0F);
    EXPECT_EQ(log(), QStringList{u"*** event error: -1712"_s});
}

TEST_F(ZTProcessQuitTest, anEventThatCannotBeMadeIsNotSentAndNotLogged) {
    platform.applicationEvents.eventError = zt::ApplicationEvents::connectionInvalid;
    process->sendAppleEventClass(fourCharCode("aevt"), fourCharCode("quit"), 1.0F);
    EXPECT_TRUE(platform.applicationEvents.sent.empty());
    EXPECT_TRUE(log().isEmpty());
}

TEST_F(ZTProcessQuitTest, anEventToAnApplicationThatEndedFindsNobody) {
    platform.processManager.end(pid);
    process->sendAppleEventClass(fourCharCode("aevt"), fourCharCode("quit"), 1.0F);
    EXPECT_EQ(log(), QStringList{u"*** event error: -600"_s});
}

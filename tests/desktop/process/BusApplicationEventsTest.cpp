// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Events to real programs on a real session bus.

#include "Platform/linux/BusApplicationEvents.h"

#include "tests/programs/RunningProgram.h"

#include <gtest/gtest.h>

#include <thread>

namespace {

using zt::ApplicationEvents;

constexpr std::int32_t tenSeconds = 600;
constexpr int quitStatus = 7; // of the test programs, when they are asked to quit

constexpr std::uint32_t code(const char (&text)[5]) {
    std::uint32_t answer = 0;
    for (int index = 0; index < 4; ++index)
        answer = answer << 8 | static_cast<unsigned char>(text[index]);
    return answer;
}

ApplicationEvents::Event quitEvent(const RunningProgram &program) {
    return {.eventClass = code("aevt"), .eventId = code("quit"), .targetPid = program.pid()};
}

ApplicationEvents::Event activateEvent(const RunningProgram &program) {
    return {.eventClass = code("misc"), .eventId = code("actv"), .targetPid = program.pid()};
}

class BusApplicationEventsTest : public testing::Test {
protected:
    zt::BusApplicationEvents events;
};

// What each program understands as a request to quit.
struct Program {
    const char *name;
    std::vector<std::string> commandLine;
};

const Program programs[] = {
    {"itsOwnAction", {ACTION_PROGRAM, "org.example.Velmora-Actions", "quit"}},
    {"aMediaPlayersRequest", {BUS_PROGRAM, "media-player"}},
    {"theToolkitsCall", {BUS_PROGRAM, "toolkit"}},
};

class BusQuitEventTest : public testing::TestWithParam<Program> {
protected:
    zt::BusApplicationEvents events;
};

} // namespace

TEST_P(BusQuitEventTest, aProgramThatUnderstandsItEnds) {
    RunningProgram program(GetParam().commandLine);
    ASSERT_TRUE(program.waitForLine("ready"));
    EXPECT_EQ(events.sendAndWait(quitEvent(program), tenSeconds), ApplicationEvents::noError);
    const int status = program.waitForEnd();
    EXPECT_TRUE(status == quitStatus || status == 0) << status;
}

TEST_P(BusQuitEventTest, nobodyNeedsToWait) {
    RunningProgram program(GetParam().commandLine);
    ASSERT_TRUE(program.waitForLine("ready"));
    EXPECT_EQ(events.sendWithoutReply(quitEvent(program)), ApplicationEvents::noError);
    const int status = program.waitForEnd();
    EXPECT_TRUE(status == quitStatus || status == 0) << status;
}

INSTANTIATE_TEST_SUITE_P(Through, BusQuitEventTest, testing::ValuesIn(programs),
                         [](const auto &row) { return row.param.name; });

TEST_F(BusApplicationEventsTest, anActionThatAProgramDoesNotHaveIsNotHandled) {
    RunningProgram program({ACTION_PROGRAM, "org.example.Velmora"});
    ASSERT_TRUE(program.waitForLine("ready"));
    EXPECT_EQ(events.sendAndWait(quitEvent(program), tenSeconds),
              ApplicationEvents::eventNotHandled);
    EXPECT_FALSE(program.hasEnded());
}

TEST_F(BusApplicationEventsTest, aPlayerThatCannotQuitDoesNotHandleIt) {
    RunningProgram program({BUS_PROGRAM, "stubborn"});
    ASSERT_TRUE(program.waitForLine("ready"));
    EXPECT_EQ(events.sendAndWait(quitEvent(program), tenSeconds),
              ApplicationEvents::eventNotHandled);
    EXPECT_EQ(events.sendAndWait(activateEvent(program), tenSeconds),
              ApplicationEvents::eventNotHandled);
}

TEST_F(BusApplicationEventsTest, aProgramThatOffersNothingHandlesNothing) {
    RunningProgram program({BUS_PROGRAM, "silent"});
    ASSERT_TRUE(program.waitForLine("ready"));
    EXPECT_EQ(events.sendAndWait(quitEvent(program), tenSeconds),
              ApplicationEvents::eventNotHandled);
    EXPECT_EQ(events.sendAndWait(activateEvent(program), tenSeconds),
              ApplicationEvents::eventNotHandled);
}

TEST_F(BusApplicationEventsTest, openingAndComingForwardActivate) {
    RunningProgram program({ACTION_PROGRAM, "org.example.Velmora"});
    ASSERT_TRUE(program.waitForLine("ready"));
    const ApplicationEvents::Event openEvents[] = {
        {code("aevt"), code("oapp"), program.pid()},
        {code("aevt"), code("rapp"), program.pid()},
        {code("aevt"), code("odoc"), program.pid()},
        {code("misc"), code("actv"), program.pid()},
    };
    for (const ApplicationEvents::Event &event : openEvents) {
        EXPECT_EQ(events.sendAndWait(event, tenSeconds), ApplicationEvents::noError);
        EXPECT_EQ(program.readLine(), "activated");
    }
    EXPECT_EQ(events.sendWithoutReply(activateEvent(program)), ApplicationEvents::noError);
    EXPECT_EQ(program.readLine(), "activated");
}

TEST_F(BusApplicationEventsTest, otherEventsAreHandledByNobody) {
    RunningProgram program({ACTION_PROGRAM, "org.example.Velmora", "quit"});
    ASSERT_TRUE(program.waitForLine("ready"));
    const ApplicationEvents::Event event = {code("misc"), code("slct"), program.pid()};
    EXPECT_EQ(events.sendAndWait(event, tenSeconds), ApplicationEvents::eventNotHandled);
    EXPECT_EQ(events.sendWithoutReply(event), ApplicationEvents::eventNotHandled);
    EXPECT_FALSE(program.hasEnded());
}

TEST_F(BusApplicationEventsTest, aProgramThatHangsIsNotWaitedForBeyondTheTime) {
    RunningProgram program({BUS_PROGRAM, "hangs"});
    ASSERT_TRUE(program.waitForLine("ready"));
    EXPECT_EQ(events.sendAndWait(quitEvent(program), 30), ApplicationEvents::eventTimedOut);
    EXPECT_EQ(events.sendAndWait(quitEvent(program), 0), ApplicationEvents::eventTimedOut);
    EXPECT_EQ(events.sendWithoutReply(quitEvent(program)), ApplicationEvents::noError);
}

TEST_F(BusApplicationEventsTest, aProgramThatIsNotOnTheBusHandlesNothing) {
    RunningProgram program({PLAIN_PROGRAM, "quits"});
    EXPECT_EQ(events.checkAddress(program.pid()), ApplicationEvents::noError);
    EXPECT_EQ(events.checkEvent(quitEvent(program)), ApplicationEvents::noError);
    EXPECT_EQ(events.sendAndWait(quitEvent(program), tenSeconds),
              ApplicationEvents::eventNotHandled);
    EXPECT_EQ(events.sendWithoutReply(quitEvent(program)), ApplicationEvents::eventNotHandled);
}

TEST_F(BusApplicationEventsTest, aProcessThatHasEndedIsNotFound) {
    RunningProgram program({PLAIN_PROGRAM, "ends-after", "0"});
    const ApplicationEvents::Event event = quitEvent(program);
    program.waitForEnd();
    EXPECT_EQ(events.checkAddress(event.targetPid), ApplicationEvents::processNotFound);
    EXPECT_EQ(events.sendAndWait(event, tenSeconds), ApplicationEvents::processNotFound);
    EXPECT_EQ(events.sendWithoutReply(event), ApplicationEvents::processNotFound);
    EXPECT_EQ(events.checkAddress(0), ApplicationEvents::processNotFound);
}

TEST_F(BusApplicationEventsTest, threadsWithoutAnEventLoopCanSend) {
    RunningProgram program({ACTION_PROGRAM, "org.example.Velmora", "quit"});
    ASSERT_TRUE(program.waitForLine("ready"));
    std::int32_t answer = -1;
    std::thread([&] { answer = events.sendAndWait(quitEvent(program), tenSeconds); }).join();
    EXPECT_EQ(answer, ApplicationEvents::noError);
    EXPECT_EQ(program.waitForEnd(), quitStatus);
}

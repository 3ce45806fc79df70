// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What every clock does, shown by the event loop's and by the fake.

#include "Platform/portable/EventLoopClock.h"

#include "tests/fakes/FakePlatform.h"

#include <QEventLoop>

#include <gtest/gtest.h>

#include <thread>

using namespace std::chrono_literals;

namespace {

struct RealCase {
    zt::EventLoopClock clock;
    void runUntil(const bool &done) {
        QEventLoop loop;
        while (!done)
            loop.processEvents(QEventLoop::WaitForMoreEvents);
    }
};

struct FakeCase {
    FakeClock clock;
    void runUntil(const bool &done) {
        while (!done)
            clock.advance(1ms);
    }
};

} // namespace

template <typename Case>
class ClockContractTest : public testing::Test {
protected:
    Case implementation;
};

using Clocks = testing::Types<RealCase, FakeCase>;
TYPED_TEST_SUITE(ClockContractTest, Clocks);

TYPED_TEST(ClockContractTest, sleepingMovesTimeForwardByAtLeastThatMuch) {
    zt::Clock &clock = this->implementation.clock;
    const auto before = clock.steadyNow();
    clock.sleepFor(2ms);
    EXPECT_GE(clock.steadyNow() - before, 2ms);
}

TYPED_TEST(ClockContractTest, sleepingByAWaitMovesTimeForwardByWhatThatTakes) {
    zt::Clock &clock = this->implementation.clock;
    const auto before = clock.steadyNow();
    clock.sleepFor(2ms, [](auto duration) { std::this_thread::sleep_for(duration); });
    EXPECT_GE(clock.steadyNow() - before, 2ms);
}

TYPED_TEST(ClockContractTest, delayedCallsRunInTheOrderOfTheirTimes) {
    std::string order;
    bool done = false;
    zt::Clock &clock = this->implementation.clock;
    clock.callAfter(40ms, [&] {
        order += 'c';
        done = true;
    });
    clock.callAfter(5ms, [&] { order += 'b'; });
    clock.callAfter(0ms, [&] { order += 'a'; });
    EXPECT_EQ(order, "");
    this->implementation.runUntil(done);
    EXPECT_EQ(order, "abc");
}

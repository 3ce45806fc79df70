// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/process/ZTProcessFixture.h"

#include <limits>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class ZTProcessStatisticsTest : public ZTProcessFixture {
protected:
    static std::chrono::system_clock::time_point date(std::chrono::microseconds sinceEpoch) {
        return std::chrono::system_clock::time_point(sinceEpoch);
    }
};

TEST_F(ZTProcessStatisticsTest, timesAreToldInSeconds) {
    start(10, {.name = u"A"_s, .start = date(1'500'000us), .processorTime = 62.5});
    EXPECT_DOUBLE_EQ(proc_start_time(10), 1.5);
    EXPECT_DOUBLE_EQ(proc_cpu_time(10), 62.5);
}

TEST_F(ZTProcessStatisticsTest, anIdThatNobodyHasGivesZero) {
    EXPECT_EQ(proc_start_time(10), 0.0);
    EXPECT_EQ(proc_cpu_time(10), 0.0);
}

TEST_F(ZTProcessStatisticsTest, theLaunchDateIsTheStartAndStays) {
    const auto process = start(10, {.name = u"A"_s, .start = date(5s)});
    EXPECT_EQ(process->launchDate(), date(5s));
    manager.change(10, {.name = u"A"_s, .start = date(6s)});
    EXPECT_EQ(process->launchDate(), date(5s));
    manager.end(10);
    EXPECT_EQ(process->launchDate(), date(5s));
}

TEST_F(ZTProcessStatisticsTest, anEndedProcessIsTakenAsLaunchedNow) {
    const auto process = start(10, {.name = u"A"_s, .start = date(5s)});
    process->name();
    manager.end(10);
    platform.clock.advance(100s);
    EXPECT_EQ(process->launchDate(), date(100s));
    EXPECT_EQ(platform.log.lines(), QStringList{u"*** Cannot get launch date for A"_s});
    platform.clock.advance(1s);
    EXPECT_EQ(process->launchDate(), date(100s));
    EXPECT_EQ(platform.log.lines().size(), 1);
}

TEST_F(ZTProcessStatisticsTest, aProcessWithoutANameIsLoggedAsNone) {
    ZTProcess::processWithSerialNumber({.high = 10, .low = 1})->launchDate();
    EXPECT_EQ(platform.log.lines(), QStringList{u"*** Cannot get launch date for (null)"_s});
}

TEST_F(ZTProcessStatisticsTest, aStartThatCannotBeToldIsTheBeginningOfTime) {
    const auto process = start(10, {.name = u"A"_s});
    EXPECT_EQ(process->launchDate(), date(0s));
    EXPECT_TRUE(platform.log.lines().isEmpty());
}

TEST_F(ZTProcessStatisticsTest, theSecondsSinceTheLaunchGrow) {
    const auto process = start(10, {.name = u"A"_s, .start = date(5s)});
    platform.clock.advance(7500ms);
    EXPECT_FLOAT_EQ(process->secondsRunning(), 2.5F);
    platform.clock.advance(250ms);
    EXPECT_FLOAT_EQ(process->secondsRunning(), 2.75F);
}

TEST_F(ZTProcessStatisticsTest, processorTimeIsAskedForAnew) {
    const auto process = start(10, {.name = u"A"_s, .processorTime = 1.25});
    EXPECT_DOUBLE_EQ(process->cpuTime(), 1.25);
    manager.change(10, {.name = u"A"_s, .processorTime = 720.0});
    EXPECT_DOUBLE_EQ(process->cpuTime(), 720.0);
}

TEST_F(ZTProcessStatisticsTest, anEndedProcessHasNoProcessorTime) {
    const auto process = start(10, {.name = u"A"_s, .processorTime = 1.25});
    manager.end(10);
    EXPECT_EQ(process->cpuTime(), 0.0);
}

} // namespace

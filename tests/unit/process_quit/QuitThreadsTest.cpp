// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Running copies are quit on one thread, while the main thread hears of processes that come and go.

#include "Platform/linux/BusApplicationEvents.h"
#include "Platform/linux/LinuxBundles.h"
#include "Platform/linux/PidfdRunningApplications.h"
#include "Platform/linux/ProcProcessManager.h"
#include "Platform/portable/EventLoopClock.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/NotificationCenter.h"
#include "ZTStuff/ZTClasses/ZTProcess.h"

#include "tests/Waiting.h"
#include "tests/fakes/PlatformWith.h"
#include "tests/programs/RunningProgram.h"
#include "tests/unit/process/TestBundles.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include <unistd.h> // getpid

using namespace Qt::StringLiterals;

namespace {

// A signature of this process's own, since tests run side by side and see each other's programs.
QString ownSignature() {
    constexpr int base = 36;
    constexpr int codes = base * base * base;
    return u's' + QString::number(getpid() % codes, base).rightJustified(3, u'0');
}

const FourCharCode sample = UTGetOSTypeFromString(ownSignature());

class QuitThreadsTest : public testing::Test {
protected:
    QuitThreadsTest() { ZTProcess::platformChanged(); }

    ~QuitThreadsTest() override {
        manager.setEventListener({});
        ZTProcess::platformChanged();
    }

    // Quits every process with the signature; how many there were.
    static int sweep() {
        int count = 0;
        for (const ZTProcess::Pointer &process : ZTProcess::allProcesses()) {
            if (process->signature() != sample)
                continue;
            process->quit();
            ++count;
        }
        return count;
    }

    // Runs the sweep on a thread of its own until nothing is left to quit, and the event loop
    // meanwhile. Whether that came to an end.
    static bool sweepAsideUntilNothingIsLeft() {
        std::atomic<bool> isDone = false;
        std::thread thread([&] {
            while (sweep() > 0) {
            }
            isDone = true;
        });
        const bool ended = eventually([&] { return isDone.load(); });
        thread.join();
        return ended;
    }

    // One line for each copy that was ended. A copy whose end falls between a look at it and the
    // next request is told of as stopped.
    QStringList linesOfEnds() const {
        static const QRegularExpression end(u": (terminated|process stopped) after"_s);
        return fakes.log.lines().filter(end);
    }

    TestBundles bundles;
    QString bundle = bundles.add(u"Sample"_s, {{u"CFBundleSignature"_s, ownSignature()}});
    std::vector<std::string> commandLine = {TestBundles::program(bundle), "600"};

    FakePlatform fakes;
    zt::EventLoopClock clock;
    zt::LinuxBundles reader{u"/usr/bin/none"_s};
    zt::ProcProcessManager manager{reader, fakes.windowSystem};
    zt::PidfdRunningApplications runningApplications{clock, fakes.windowSystem};
    zt::Platform services = platformWith(fakes, {.clock = &clock,
                                                 .bundles = &reader,
                                                 .processManager = &manager,
                                                 .runningApplications = &runningApplications});
    zt::ScopedPlatform current{services};
};

} // namespace

TEST_F(QuitThreadsTest, allCopiesEndInOneSweepAndTheirEndsAreHeardOf) {
    int ends = 0;
    const auto observation = NotificationCenter::defaultCenter().addObserver(
        ZTProcessChangeNotification, [&](const Notification &notification) {
            ends += notification.userInfo.value(u"change"_s) == u"ended"_s ? 1 : 0;
        });
    RunningProgram first(commandLine);
    RunningProgram second(commandLine);
    ZTProcess::installNotifications();
    ASSERT_TRUE(eventually([] { return ZTProcess::processWithSignature(sample) != nullptr; }));
    EXPECT_TRUE(sweepAsideUntilNothingIsLeft());
    EXPECT_TRUE(first.hasEnded());
    EXPECT_TRUE(second.hasEnded());
    EXPECT_TRUE(eventually([&] { return ends > 0; }));
    EXPECT_EQ(ZTProcess::processWithSignature(sample), nullptr);
    EXPECT_EQ(linesOfEnds().size(), 2);
}

TEST_F(QuitThreadsTest, copiesThatStartDuringASweepEndInTheNext) {
    // The program is started again whenever it has ended, three times.
    RunningProgram supervisor(
        {PLAIN_PROGRAM, "supervises", "3", TestBundles::program(bundle), "600"});
    ZTProcess::installNotifications();
    ASSERT_TRUE(eventually([] { return ZTProcess::processWithSignature(sample) != nullptr; }));
    EXPECT_TRUE(eventually([&] {
        sweepAsideUntilNothingIsLeft();
        return supervisor.hasEnded();
    }));
    EXPECT_EQ(supervisor.waitForEnd(), 0);
    EXPECT_EQ(linesOfEnds().size(), 4);
}

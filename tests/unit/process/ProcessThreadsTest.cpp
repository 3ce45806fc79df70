// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Look-ups on one thread while another one looks up too, and processes come and go.

#include "Platform/linux/LinuxBundles.h"
#include "Platform/linux/ProcProcessManager.h"

#include "tests/Waiting.h"
#include "tests/fakes/PlatformWith.h"
#include "tests/unit/process/ChildProcess.h"
#include "tests/unit/process/TestBundles.h"
#include "tests/unit/process/ZTProcessFixture.h"

#include <QThread>

#include <atomic>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

// What the program does while it looks for running copies.
void lookAround() {
    const auto current = ZTProcess::currentProcess();
    for (const ZTProcess::Pointer &process : ZTProcess::allProcesses()) {
        process->signature();
        process->description();
        process->path();
        process->identifier();
        process->isCocoa();
        process->launchDate();
        process->isEqual(current.get());
        process->isStillRunning();
        process->setInfo(process->unixPID(), u"pid"_s);
        process->infoForKey(u"pid"_s);
    }
    ZTProcess::processWithSignature(fourCharCode("smPL"));
    ZTProcess::processWithIdentifier(u"example.sample"_s);
    ZTProcess::cachedProcessesEnumerator();
    ZTProcess::applicationLaunchEndCount();
}

// Looks around on some threads until this goes.
class Lookers {
public:
    Lookers() {
        for (std::thread &thread : m_threads)
            thread = std::thread([this] {
                while (!m_isOver) {
                    lookAround();
                    ++m_rounds;
                }
            });
    }
    ~Lookers() {
        m_isOver = true;
        for (std::thread &thread : m_threads)
            thread.join();
    }
    Lookers(const Lookers &) = delete;
    Lookers &operator=(const Lookers &) = delete;

    int rounds() const { return m_rounds; }

private:
    std::atomic<bool> m_isOver = false;
    std::atomic<int> m_rounds = 0;
    std::thread m_threads[2];
};

class ProcessThreadsTest : public ZTProcessFixture {};

TEST_F(ProcessThreadsTest, lookUpsAndEventsDoNotMeet) {
    manager.start(1, {.name = u"tests"_s});
    manager.setCurrent(1);
    ZTProcess::installNotifications();
    const Lookers lookers;
    for (int pid = 2; pid < 200 || lookers.rounds() < 50; ++pid) {
        manager.start(pid,
                      {.name = u"Sample"_s,
                       .signature = fourCharCode("smPL"),
                       .location = u"/nowhere/sample"_s,
                       .informationDictionary = {{u"CFBundleIdentifier"_s, u"example.sample"_s}}});
        manager.bringToFront(pid);
        if (pid > 10)
            manager.end(pid - 8);
        QCoreApplication::processEvents();
    }
}

TEST_F(ProcessThreadsTest, twoThreadsGetTheSameObject) {
    for (int pid = 1; pid < 200; ++pid) {
        manager.start(pid, {.name = u"A"_s});
        ZTProcess::Pointer found[2];
        std::thread other([&] { found[1] = ZTProcess::processWithPID(pid); });
        found[0] = ZTProcess::processWithPID(pid);
        other.join();
        ASSERT_EQ(found[0], found[1]);
        manager.end(pid);
    }
}

TEST(RealProcessThreadsTest, realProcessesComeAndGoMeanwhile) {
    const TestBundles bundles;
    const QString bundle =
        bundles.add(u"Sample"_s, {{u"CFBundleSignature"_s, u"smPL"_s},
                                  {u"CFBundleIdentifier"_s, u"example.sample"_s}});
    FakePlatform fakes;
    const zt::LinuxBundles reader(u"/usr/bin/none"_s);
    zt::ProcProcessManager manager(reader, fakes.windowSystem);
    zt::Platform services = platformWith(fakes, {.processManager = &manager});
    const zt::ScopedPlatform current(services);
    ZTProcess::platformChanged();
    ZTProcess::installNotifications();
    {
        const Lookers lookers;
        for (int round = 0; round < 30 || lookers.rounds() < 10; ++round) {
            const ChildProcess child({TestBundles::program(bundle), "600"});
            EXPECT_TRUE(ZTProcess::processWithPID(child.pid()));
            QCoreApplication::processEvents();
        }
    }
    manager.setEventListener({});
    ZTProcess::platformChanged();
}

} // namespace

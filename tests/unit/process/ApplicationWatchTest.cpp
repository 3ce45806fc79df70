// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/ApplicationWatch.h"

#include "Platform/linux/LinuxBundles.h"
#include "Platform/linux/ProcProcessManager.h"
#include "Platform/linux/ProcSerialNumber.h"

#include "tests/Waiting.h"
#include "tests/fakes/FakeWindowSystem.h"
#include "tests/unit/process/ChildProcess.h"
#include "tests/unit/process/TestBundles.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using Event = zt::ProcessManager::Event;
using zt::HeldProcesses;
using zt::ProcessSerialNumber;

namespace {

class ApplicationWatchTest : public testing::Test {
protected:
    // Watches only what runs from the test's own bundles, so that nothing else is heard of.
    void watch(std::size_t holds = 16) {
        m_held.emplace(m_procFs, holds);
        m_watch.emplace(zt::ApplicationWatch::Environment{
                            .procFs = m_procFs,
                            .heldProcesses = *m_held,
                            .windowSystem = m_windows,
                            .runningApplications = [this] { return ownApplications(); },
                            .isRunning =
                                [this](ProcessSerialNumber process) {
                                    return m_manager.pidOf(process).has_value();
                                }},
                        [this](Event event) { m_events.push_back(event); });
    }

    QList<ProcessSerialNumber> ownApplications() const {
        QList<ProcessSerialNumber> own = m_manager.runningApplications();
        own.removeIf([this](ProcessSerialNumber process) {
            return m_manager.bundleLocation(process) != m_bundle;
        });
        return own;
    }

    ChildProcess start() const { return ChildProcess({TestBundles::program(m_bundle), "600"}); }

    bool hears(const std::vector<Event> &events) {
        return eventually([&] { return m_events == events; });
    }

    TestBundles m_bundles;
    QString m_bundle = m_bundles.add(u"X"_s);
    FakeWindowSystem m_windows;
    zt::LinuxBundles m_reader{u"/usr/bin/none"_s};
    zt::ProcProcessManager m_manager{m_reader, m_windows};
    zt::ProcFs m_procFs;
    std::vector<Event> m_events;
    std::optional<HeldProcesses> m_held;
    std::optional<zt::ApplicationWatch> m_watch;
};

TEST_F(ApplicationWatchTest, whatRunsAlreadyIsNotTold) {
    const ChildProcess before = start();
    watch();
    const ChildProcess after = start();
    EXPECT_TRUE(hears({Event::Launched}));
}

TEST_F(ApplicationWatchTest, anEndIsToldOnce) {
    ChildProcess child = start();
    watch();
    child.kill();
    EXPECT_TRUE(hears({Event::Terminated}));
    child.reap();
    const ChildProcess another = start();
    EXPECT_TRUE(hears({Event::Terminated, Event::Launched}));
}

TEST_F(ApplicationWatchTest, aWindowTellsOfAStartAtOnce) {
    watch();
    const ChildProcess child = start();
    m_windows.tellWindowsChanged();
    m_windows.tellWindowsChanged();
    EXPECT_TRUE(hears({Event::Launched}));
}

TEST_F(ApplicationWatchTest, theFrontIsTold) {
    watch();
    m_windows.tellFrontChanged();
    EXPECT_EQ(m_events, std::vector{Event::FrontSwitched});
}

TEST_F(ApplicationWatchTest, endsAreToldWhenTooManyRunToHoldThemAll) {
    ChildProcess first = start();
    ChildProcess second = start();
    watch(1);
    first.kill();
    second.kill();
    EXPECT_TRUE(hears({Event::Terminated, Event::Terminated}));
}

TEST_F(ApplicationWatchTest, severalEndsAreAllTold) {
    std::vector<ChildProcess> children;
    for (int count = 0; count < 5; ++count)
        children.push_back(start());
    watch();
    for (ChildProcess &child : children)
        child.kill();
    EXPECT_TRUE(hears(std::vector(5, Event::Terminated)));
}

TEST_F(ApplicationWatchTest, anApplicationThatLoadsAnotherProgramHasNotEnded) {
    const QString script = m_bundles.write(u"X.app/run"_s, "read line; exec /bin/sleep 600\n");
    ChildProcess child({"/bin/sh", script.toStdString()}, ChildProcess::Input::Lines);
    watch();
    child.sendLine("go");
    ASSERT_TRUE(eventuallyWithoutEvents([this] { return ownApplications().isEmpty(); }));
    const ChildProcess another = start();
    EXPECT_TRUE(hears({Event::Launched}));
}

TEST_F(ApplicationWatchTest, aWatchThatGoesLeavesTheWindowSystemAlone) {
    watch();
    m_watch.reset();
    EXPECT_FALSE(m_windows.tellFrontChanged);
    EXPECT_FALSE(m_windows.tellWindowsChanged);
}

class HeldProcessesTest : public testing::Test {
protected:
    ProcessSerialNumber serialNumber(const ChildProcess &child) const {
        return zt::serialNumberOf(*m_procFs.stat(child.pid()));
    }

    zt::ProcFs m_procFs;
    HeldProcesses m_held{m_procFs, 2};
};

TEST_F(HeldProcessesTest, aHeldProcessIsKnownToRun) {
    ChildProcess child({"/bin/sleep", "600"});
    const ProcessSerialNumber process = serialNumber(child);
    EXPECT_EQ(m_held.state(process), HeldProcesses::State::NotHeld);
    EXPECT_TRUE(m_held.hold(process));
    EXPECT_TRUE(m_held.hold(process));
    EXPECT_EQ(m_held.state(process), HeldProcesses::State::Running);
    EXPECT_EQ(m_held.runningProcessWithPid(child.pid()), process);
    child.kill();
    EXPECT_EQ(m_held.state(process), HeldProcesses::State::Ended);
    EXPECT_FALSE(m_held.runningProcessWithPid(child.pid()));
    EXPECT_EQ(m_held.takeEnded(), std::vector{process});
    EXPECT_EQ(m_held.state(process), HeldProcesses::State::NotHeld);
    EXPECT_TRUE(m_held.takeEnded().empty());
}

TEST_F(HeldProcessesTest, anotherProcessWithTheIdIsNotHeld) {
    const ChildProcess child({"/bin/sleep", "600"});
    ProcessSerialNumber earlier = serialNumber(child);
    earlier.low -= 1;
    EXPECT_FALSE(m_held.hold(earlier));
    EXPECT_TRUE(m_held.hold(serialNumber(child)));
    EXPECT_EQ(m_held.state(earlier), HeldProcesses::State::NotHeld);
    m_held.release(earlier);
    EXPECT_EQ(m_held.state(serialNumber(child)), HeldProcesses::State::Running);
}

TEST_F(HeldProcessesTest, noMoreAreHeldThanAreAllowed) {
    const ChildProcess first({"/bin/sleep", "600"});
    const ChildProcess second({"/bin/sleep", "600"});
    const ChildProcess third({"/bin/sleep", "600"});
    EXPECT_TRUE(m_held.hold(serialNumber(first)));
    EXPECT_TRUE(m_held.hold(serialNumber(second)));
    EXPECT_FALSE(m_held.hold(serialNumber(third)));
    m_held.release(serialNumber(first));
    EXPECT_TRUE(m_held.hold(serialNumber(third)));
}

TEST_F(HeldProcessesTest, aProcessThatHasGoneIsNotHeld) {
    ChildProcess child({"/bin/sleep", "600"});
    const ProcessSerialNumber process = serialNumber(child);
    child.kill();
    child.reap();
    EXPECT_FALSE(m_held.hold(process));
}

} // namespace

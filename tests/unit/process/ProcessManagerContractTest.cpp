// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What every process manager does, shown by that of this system and by the fake.

#include "Platform/linux/LinuxBundles.h"
#include "Platform/linux/ProcProcessManager.h"

#include "tests/fakes/FakeProcessManager.h"
#include "tests/fakes/FakeWindowSystem.h"
#include "tests/unit/process/ChildProcess.h"
#include "tests/unit/process/EventLoop.h"
#include "tests/unit/process/TestBundles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <list>

#include <unistd.h>

using namespace Qt::StringLiterals;
using zt::ProcessSerialNumber;
using Event = zt::ProcessManager::Event;

namespace {

const QString sampleName = QStringLiteral("Sample");
constexpr std::uint32_t sampleSignature = 0x736D504C;

struct RealCase {
    std::int32_t start() {
        children.emplace_back(std::vector<std::string>{TestBundles::program(bundle), "600"});
        return children.back().pid();
    }
    void end(std::int32_t pid) {
        const auto child = std::ranges::find(children, pid, &ChildProcess::pid);
        children.erase(child);
    }
    void bringToFront(std::int32_t pid) {
        windows.front = pid;
        if (windows.tellFrontChanged)
            windows.tellFrontChanged();
    }
    static std::int32_t ownPid() { return ::getpid(); }

    TestBundles bundles;
    QString bundle = bundles.add(
        sampleName, {{u"CFBundleName"_s, sampleName}, {u"CFBundleSignature"_s, u"smPL"_s}});
    FakeWindowSystem windows;
    zt::LinuxBundles reader{u"/usr/bin/none"_s};
    zt::ProcProcessManager manager{reader, windows};
    std::list<ChildProcess> children;
};

struct FakeCase {
    FakeCase() {
        manager.start(1, {.name = u"tests"_s, .isApplication = false});
        manager.setCurrent(1);
    }
    std::int32_t start() {
        manager.start(++lastPid, {.name = sampleName, .signature = sampleSignature});
        return lastPid;
    }
    void end(std::int32_t pid) { manager.end(pid); }
    void bringToFront(std::int32_t pid) { manager.bringToFront(pid); }
    static std::int32_t ownPid() { return 1; }

    FakeProcessManager manager;
    std::int32_t lastPid = 1;
};

} // namespace

template <typename Case>
class ProcessManagerContractTest : public testing::Test {
protected:
    zt::ProcessManager &manager() { return implementation.manager; }

    // The applications that this test has started, in the order of the list.
    QList<ProcessSerialNumber> listed(const QList<ProcessSerialNumber> &started) {
        QList<ProcessSerialNumber> own;
        for (const ProcessSerialNumber process : manager().runningApplications()) {
            if (started.contains(process))
                own << process;
        }
        return own;
    }

    ProcessSerialNumber start() { return *manager().processWithPid(implementation.start()); }

    Case implementation;
};

using ProcessManagers = testing::Types<RealCase, FakeCase>;
TYPED_TEST_SUITE(ProcessManagerContractTest, ProcessManagers);

TYPED_TEST(ProcessManagerContractTest, applicationsAreListedByTheirStart) {
    QList<ProcessSerialNumber> started;
    for (int count = 0; count < 3; ++count) {
        // The order of those that begin in the same hundredth of a second is not told.
        usleep(20'000);
        started << this->start();
    }
    EXPECT_EQ(this->listed(started), started);
}

TYPED_TEST(ProcessManagerContractTest, anIdAndASerialNumberLeadToEachOther) {
    const std::int32_t pid = this->implementation.start();
    const auto process = this->manager().processWithPid(pid);
    ASSERT_TRUE(process);
    EXPECT_EQ(this->manager().pidOf(*process), pid);
    EXPECT_EQ(this->manager().processWithPid(pid), process);
}

TYPED_TEST(ProcessManagerContractTest, factsOfARunningProcessAreKnown) {
    const ProcessSerialNumber process = this->start();
    const auto information = this->manager().information(process);
    ASSERT_TRUE(information);
    EXPECT_EQ(information->name, sampleName);
    EXPECT_EQ(information->signature, sampleSignature);
}

TYPED_TEST(ProcessManagerContractTest, nothingIsKnownOfAProcessThatHasEnded) {
    const std::int32_t pid = this->implementation.start();
    const ProcessSerialNumber process = *this->manager().processWithPid(pid);
    this->implementation.end(pid);
    EXPECT_FALSE(this->manager().pidOf(process));
    EXPECT_FALSE(this->manager().processWithPid(pid));
    EXPECT_FALSE(this->manager().information(process));
    EXPECT_FALSE(this->manager().displayName(process));
    EXPECT_FALSE(this->manager().bundleLocation(process));
    EXPECT_TRUE(this->manager().informationDictionary(process).isEmpty());
    EXPECT_FALSE(this->manager().startTime(pid));
    EXPECT_FALSE(this->manager().userProcessorTime(pid));
    EXPECT_TRUE(this->listed({process}).isEmpty());
}

TYPED_TEST(ProcessManagerContractTest, thisProcessIsKnown) {
    const auto current = this->manager().currentProcess();
    ASSERT_TRUE(current);
    EXPECT_EQ(this->manager().pidOf(*current), this->implementation.ownPid());
}

TYPED_TEST(ProcessManagerContractTest, theListenerHearsOfStartsEndsAndTheFront) {
    std::vector<Event> events;
    this->manager().setEventListener([&](Event event) { events.push_back(event); });
    const auto hasHeard = [&](Event event) {
        return runLoopUntil([&] { return std::ranges::count(events, event) > 0; });
    };
    const std::int32_t pid = this->implementation.start();
    EXPECT_TRUE(hasHeard(Event::Launched));
    this->implementation.bringToFront(pid);
    EXPECT_TRUE(hasHeard(Event::FrontSwitched));
    this->implementation.end(pid);
    EXPECT_TRUE(hasHeard(Event::Terminated));
    this->manager().setEventListener({});
}

TYPED_TEST(ProcessManagerContractTest, noListenerHearsNothing) {
    int events = 0;
    this->manager().setEventListener([&](Event /*event*/) { ++events; });
    this->manager().setEventListener({});
    const std::int32_t pid = this->implementation.start();
    this->implementation.bringToFront(pid);
    this->implementation.end(pid);
    runLoopOnce();
    EXPECT_EQ(events, 0);
}

TYPED_TEST(ProcessManagerContractTest, whatThisUserRunsIsNoOtherUsers) {
    this->start();
    for (const zt::ForeignApplication &application : this->manager().applicationsOfOtherUsers())
        EXPECT_NE(application.name, sampleName);
}

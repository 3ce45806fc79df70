#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What every process manager does. A case has `manager`, and `start()`, which launches an
// application of the name and signature below and answers its process id, `end()` and
// `bringToFront()`, which take it, and `ownPid()`.

#include "Platform/ProcessManager.h"

#include "tests/Waiting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include <unistd.h> // usleep

inline const QString contractName = QStringLiteral("Sample");
inline constexpr std::uint32_t contractSignature = 0x736D504C; // "smPL"

template <typename Case>
class ProcessManagerContractTest : public testing::Test {
protected:
    zt::ProcessManager &manager() { return implementation.manager; }

    // The applications that this test has started, in the order of the list.
    QList<zt::ProcessSerialNumber> listed(const QList<zt::ProcessSerialNumber> &started) {
        QList<zt::ProcessSerialNumber> own;
        for (const zt::ProcessSerialNumber process : manager().runningApplications()) {
            if (started.contains(process))
                own << process;
        }
        return own;
    }

    zt::ProcessSerialNumber start() { return *manager().processWithPid(implementation.start()); }

    Case implementation;
};

TYPED_TEST_SUITE_P(ProcessManagerContractTest);

TYPED_TEST_P(ProcessManagerContractTest, applicationsAreListedByTheirStart) {
    QList<zt::ProcessSerialNumber> started;
    for (int count = 0; count < 3; ++count) {
        // The order of those that begin in the same hundredth of a second is not told.
        usleep(20'000);
        started << this->start();
    }
    EXPECT_EQ(this->listed(started), started);
}

TYPED_TEST_P(ProcessManagerContractTest, anIdAndASerialNumberLeadToEachOther) {
    const std::int32_t pid = this->implementation.start();
    const auto process = this->manager().processWithPid(pid);
    ASSERT_TRUE(process);
    EXPECT_EQ(this->manager().pidOf(*process), pid);
    EXPECT_EQ(this->manager().processWithPid(pid), process);
}

TYPED_TEST_P(ProcessManagerContractTest, factsOfARunningProcessAreKnown) {
    const zt::ProcessSerialNumber process = this->start();
    const auto information = this->manager().information(process);
    ASSERT_TRUE(information);
    EXPECT_EQ(information->name, contractName);
    EXPECT_EQ(information->signature, contractSignature);
}

TYPED_TEST_P(ProcessManagerContractTest, nothingIsKnownOfAProcessThatHasEnded) {
    const std::int32_t pid = this->implementation.start();
    const zt::ProcessSerialNumber process = *this->manager().processWithPid(pid);
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

TYPED_TEST_P(ProcessManagerContractTest, thisProcessIsKnown) {
    const auto current = this->manager().currentProcess();
    ASSERT_TRUE(current);
    EXPECT_EQ(this->manager().pidOf(*current), this->implementation.ownPid());
}

TYPED_TEST_P(ProcessManagerContractTest, theListenerHearsOfStartsEndsAndTheFront) {
    std::vector<zt::ProcessManager::Event> events;
    this->manager().setEventListener(
        [&](zt::ProcessManager::Event event) { events.push_back(event); });
    const auto hasHeard = [&](zt::ProcessManager::Event event) {
        return eventually([&] { return std::ranges::count(events, event) > 0; });
    };
    const std::int32_t pid = this->implementation.start();
    EXPECT_TRUE(hasHeard(zt::ProcessManager::Event::Launched));
    this->implementation.bringToFront(pid);
    EXPECT_TRUE(hasHeard(zt::ProcessManager::Event::FrontSwitched));
    this->implementation.end(pid);
    EXPECT_TRUE(hasHeard(zt::ProcessManager::Event::Terminated));
    this->manager().setEventListener({});
}

TYPED_TEST_P(ProcessManagerContractTest, noListenerHearsNothing) {
    int events = 0;
    this->manager().setEventListener([&](zt::ProcessManager::Event /*event*/) { ++events; });
    this->manager().setEventListener({});
    const std::int32_t pid = this->implementation.start();
    this->implementation.bringToFront(pid);
    this->implementation.end(pid);
    QCoreApplication::processEvents();
    EXPECT_EQ(events, 0);
}

TYPED_TEST_P(ProcessManagerContractTest, whatThisUserRunsIsNoOtherUsers) {
    this->start();
    for (const zt::ForeignApplication &application : this->manager().applicationsOfOtherUsers())
        EXPECT_NE(application.name, contractName);
}

REGISTER_TYPED_TEST_SUITE_P(ProcessManagerContractTest, applicationsAreListedByTheirStart,
                            anIdAndASerialNumberLeadToEachOther, factsOfARunningProcessAreKnown,
                            nothingIsKnownOfAProcessThatHasEnded, thisProcessIsKnown,
                            theListenerHearsOfStartsEndsAndTheFront, noListenerHearsNothing,
                            whatThisUserRunsIsNoOtherUsers);

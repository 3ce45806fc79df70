// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A thousand processes, many of which start and end while they are looked up.

#include "Platform/linux/LinuxBundles.h"
#include "Platform/linux/ProcProcessManager.h"

#include "tests/Waiting.h"
#include "tests/fakes/PlatformWith.h"
#include "tests/unit/process/ChildProcess.h"
#include "tests/unit/process/TestBundles.h"

#include "ZTStuff/ZTClasses/ZTProcess.h"

#include <QDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t processCount = 1000;
constexpr int lookUpCount = 100'000;
constexpr int lookUpsBetweenChanges = 50; // 2,000 processes are replaced by others on the way

qsizetype openDescriptors() {
    return QDir(u"/proc/self/fd"_s).entryList(QDir::NoDotAndDotDot | QDir::AllEntries).size();
}

class ProcessStressTest : public testing::Test {
protected:
    ProcessStressTest() { ZTProcess::platformChanged(); }
    ~ProcessStressTest() override {
        m_manager.setEventListener({});
        ZTProcess::platformChanged();
    }

    struct Running {
        ChildProcess child;
        qsizetype bundle = 0;
        std::weak_ptr<ZTProcess> object;
    };

    void start() {
        const qsizetype bundle = m_starts++ % m_bundlePaths.size();
        m_running.push_back(
            {ChildProcess({TestBundles::program(m_bundlePaths[bundle]), "600"}), bundle, {}});
    }

    // Ends some process and starts another one.
    void replaceOne() {
        Running &old = m_running[m_random() % m_running.size()];
        std::swap(old, m_running.back());
        m_ended.push_back(m_running.back().object);
        m_running.pop_back();
        start();
    }

    // Whether the object that is found is that of the process.
    void lookUpOne() {
        Running &running = m_running[m_random() % m_running.size()];
        const ZTProcess::Pointer found = ZTProcess::processWithPID(running.child.pid());
        ASSERT_TRUE(found);
        ASSERT_EQ(found->unixPID(), running.child.pid());
        ASSERT_EQ(found->path(), m_bundlePaths[running.bundle]);
        const ZTProcess::Pointer known = running.object.lock();
        ASSERT_TRUE(!known || known == found);
        running.object = found;
    }

    // The ids of the listed processes that this test has started, in order.
    QList<std::int32_t> listedPids() const {
        QList<std::int32_t> pids;
        for (const ZTProcess::Pointer &process : ZTProcess::allProcesses()) {
            if (m_bundlePaths.contains(process->path().value_or(QString())))
                pids << process->unixPID();
        }
        std::ranges::sort(pids);
        return pids;
    }

    static QStringList makeBundles(const TestBundles &bundles) {
        QStringList paths;
        for (int number = 0; number < 20; ++number)
            paths << bundles.add(u"Sample %1"_s.arg(number));
        return paths;
    }

    TestBundles m_bundles;
    const QStringList m_bundlePaths = makeBundles(m_bundles);
    FakePlatform m_fakes;
    zt::LinuxBundles m_reader{u"/usr/bin/none"_s};
    zt::ProcProcessManager m_manager{m_reader, m_fakes.windowSystem};
    zt::Platform m_services = platformWith(m_fakes, {.processManager = &m_manager});
    zt::ScopedPlatform m_current{m_services};
    std::mt19937 m_random{4711};
    std::vector<Running> m_running;
    std::vector<std::weak_ptr<ZTProcess>> m_ended;
    qsizetype m_starts = 0;
};

TEST_F(ProcessStressTest, everyLookUpFindsItsProcessAndNothingStaysBehind) {
    const qsizetype descriptorsBefore = openDescriptors();
    m_running.reserve(processCount);
    while (m_running.size() < processCount)
        start();
    for (int lookUp = 0; lookUp < lookUpCount; ++lookUp) {
        lookUpOne();
        if (HasFatalFailure())
            return;
        if (lookUp % lookUpsBetweenChanges == 0) {
            replaceOne();
            QCoreApplication::processEvents();
        }
    }
    // The list knows exactly those that run.
    QList<std::int32_t> expected;
    for (const Running &running : m_running)
        expected << running.child.pid();
    std::ranges::sort(expected);
    EXPECT_EQ(listedPids(), expected);

    // Once the watch has told of the ends, no object of an ended process is left.
    const auto isGone = [](const std::weak_ptr<ZTProcess> &object) { return object.expired(); };
    EXPECT_TRUE(eventually([&] { return std::ranges::all_of(m_ended, isGone); }));
    for (const Running &running : m_running)
        m_ended.push_back(running.object);
    m_running.clear();
    EXPECT_TRUE(eventually([&] { return std::ranges::all_of(m_ended, isGone); }));
    EXPECT_TRUE(listedPids().isEmpty());
    // The descriptors that held the processes are closed again.
    EXPECT_LE(openDescriptors(), descriptorsBefore + 8);
}

} // namespace

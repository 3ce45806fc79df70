// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The process manager on this machine's own processes.

#include "Platform/linux/LinuxBundles.h"
#include "Platform/linux/ProcProcessManager.h"

#include "tests/Waiting.h"
#include "tests/fakes/FakeWindowSystem.h"
#include "tests/unit/process/ChildProcess.h"
#include "tests/unit/process/TestBundles.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <signal.h> // SIGSTOP
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using zt::ProcessSerialNumber;

namespace {

class RealProcessesTest : public testing::Test {
protected:
    static ChildProcess run(const QString &bundle) {
        return ChildProcess({TestBundles::program(bundle), "600"});
    }

    ProcessSerialNumber serialNumber(const ChildProcess &child) const {
        return m_manager.processWithPid(child.pid()).value_or(ProcessSerialNumber());
    }

    bool isListed(ProcessSerialNumber process) const {
        return m_manager.runningApplications().contains(process);
    }

    QString location(const ChildProcess &child) const {
        return m_manager.bundleLocation(serialNumber(child)).value_or(QString());
    }

    TestBundles m_bundles;
    FakeWindowSystem m_windows;
    zt::LinuxBundles m_reader{u"/usr/bin/none"_s};
    zt::ProcProcessManager m_manager{m_reader, m_windows};
};

TEST_F(RealProcessesTest, aRenamedBundleIsFoundWhereItIs) {
    const QString bundle = m_bundles.add(u"X"_s);
    const ChildProcess child = run(bundle);
    ASSERT_TRUE(isListed(serialNumber(child)));
    ASSERT_TRUE(QDir().rename(bundle, m_bundles.path(u"Y.app"_s)));
    EXPECT_EQ(location(child), m_bundles.path(u"Y.app"_s));
    EXPECT_TRUE(isListed(serialNumber(child)));
}

TEST_F(RealProcessesTest, aBundleInTheTrashIsFoundThere) {
    const QString bundle = m_bundles.add(u"X"_s);
    const ChildProcess child = run(bundle);
    QDir().mkpath(m_bundles.path(u".Trash/files"_s));
    ASSERT_TRUE(QDir().rename(bundle, m_bundles.path(u".Trash/files/X.app"_s)));
    EXPECT_EQ(location(child), m_bundles.path(u".Trash/files/X.app"_s));
}

TEST_F(RealProcessesTest, aDeletedBundleKeepsItsLastPath) {
    const QString bundle = m_bundles.add(u"X"_s, {{u"CFBundleSignature"_s, u"exEX"_s}});
    const ChildProcess child = run(bundle);
    ASSERT_TRUE(isListed(serialNumber(child)));
    ASSERT_TRUE(QDir(bundle).removeRecursively());
    EXPECT_EQ(location(child), bundle);
    EXPECT_TRUE(isListed(serialNumber(child)));
    EXPECT_EQ(m_manager.information(serialNumber(child))->signature, 0x65784558U);
}

TEST_F(RealProcessesTest, aScriptCountsByItsOwnPath) {
    const QString bundle = m_bundles.add(u"X"_s);
    const QString script = m_bundles.write(u"X.app/Contents/Linux/run"_s, "#!/bin/sh\nread line\n");
    m_bundles.makeExecutable(script);
    const ChildProcess child({script.toStdString()}, ChildProcess::Input::Lines);
    EXPECT_TRUE(isListed(serialNumber(child)));
    EXPECT_EQ(location(child), bundle);
}

TEST_F(RealProcessesTest, aProgramThatIsGivenABundleDoesNotRunFromIt) {
    const QString bundle = m_bundles.add(u"X"_s);
    const ChildProcess child(
        {"/usr/bin/tail", "-n", "0", "-f", (bundle + u"/Contents/Info.plist"_s).toStdString()});
    EXPECT_FALSE(isListed(serialNumber(child)));
}

TEST_F(RealProcessesTest, aProcessThatLoadsAnotherProgramIsTheSameProcess) {
    const QString bundle = m_bundles.add(u"X"_s);
    ChildProcess child(
        {"/bin/sh", "-c", "read line; exec \"$0\" 600", TestBundles::program(bundle)},
        ChildProcess::Input::Lines);
    const ProcessSerialNumber before = serialNumber(child);
    EXPECT_FALSE(isListed(before));
    child.sendLine("go");
    EXPECT_TRUE(eventuallyWithoutEvents([&] { return isListed(before); }));
    EXPECT_EQ(location(child), bundle);
}

TEST_F(RealProcessesTest, aBundleThatIsReplacedLeavesTheOldOneToItsProcess) {
    const QString bundle = m_bundles.add(u"X"_s, {{u"CFBundleName"_s, u"Old"_s}});
    const ChildProcess before = run(bundle);
    ASSERT_EQ(m_manager.information(serialNumber(before))->name, u"Old"_s);
    ASSERT_TRUE(QDir(bundle).removeRecursively());
    m_bundles.add(u"X"_s, {{u"CFBundleName"_s, u"New"_s}});
    const ChildProcess after = run(bundle);
    EXPECT_EQ(m_manager.information(serialNumber(before))->name, u"Old"_s);
    EXPECT_EQ(m_manager.information(serialNumber(after))->name, u"New"_s);
}

TEST_F(RealProcessesTest, aZombieHasEnded) {
    ChildProcess child = run(m_bundles.add(u"X"_s));
    const ProcessSerialNumber process = serialNumber(child);
    child.kill();
    EXPECT_FALSE(m_manager.pidOf(process));
    EXPECT_FALSE(isListed(process));
    EXPECT_FALSE(m_manager.processWithPid(child.pid()));
}

TEST_F(RealProcessesTest, theStartIsToldToTheTick) {
    const auto before = std::chrono::system_clock::now();
    const ChildProcess child({"/bin/sleep", "600"});
    const auto after = std::chrono::system_clock::now();
    const auto start = m_manager.startTime(child.pid());
    ASSERT_TRUE(start);
    // The kernel counts in hundredths of a second and rounds down.
    EXPECT_GE(*start, before - 10ms - 1ms);
    EXPECT_LE(*start, after + 1ms);
}

TEST_F(RealProcessesTest, aBusyProcessUsesProcessorTime) {
    const ChildProcess child({"/bin/sh", "-c", "while :; do :; done"});
    EXPECT_TRUE(
        eventuallyWithoutEvents([&] { return m_manager.userProcessorTime(child.pid()) > 0.0; }));
}

TEST_F(RealProcessesTest, thisProcessIsTheLauncherOfItsChild) {
    const ChildProcess child = run(m_bundles.add(u"X"_s));
    const QVariantMap launcher = m_manager.launcherInformation(serialNumber(child));
    EXPECT_EQ(launcher.value(u"pid"_s), ::getpid());
    EXPECT_EQ(launcher.value(u"FileCreator"_s), u"????"_s);
    const auto self = m_manager.currentProcess();
    ASSERT_TRUE(self);
    EXPECT_EQ(m_manager.launcherInformation(*self).value(u"pid"_s), ::getppid());
}

TEST_F(RealProcessesTest, aProcessThatIsTracedHasADebugger) {
    const ChildProcess child = run(m_bundles.add(u"X"_s));
    const ProcessSerialNumber process = serialNumber(child);
    EXPECT_FALSE(m_manager.isBeingDebugged(process));
    if (::ptrace(PTRACE_SEIZE, child.pid(), nullptr, nullptr) != 0)
        GTEST_SKIP() << "tracing is not allowed here";
    EXPECT_TRUE(m_manager.isBeingDebugged(process));
    child.sendSignal(SIGSTOP); // only a process that has stopped can be let go
    ASSERT_EQ(::waitpid(child.pid(), nullptr, 0), child.pid());
    ASSERT_EQ(::ptrace(PTRACE_DETACH, child.pid(), nullptr, nullptr), 0);
    EXPECT_FALSE(m_manager.isBeingDebugged(process));
}

TEST_F(RealProcessesTest, aStoppedProcessIsWokenUp) {
    const ChildProcess child({"/bin/sleep", "600"});
    const zt::ProcFs procFs;
    const auto stateIs = [&](char state) {
        return eventuallyWithoutEvents([&] { return procFs.stat(child.pid())->state == state; });
    };
    child.sendSignal(SIGSTOP);
    ASSERT_TRUE(stateIs('T'));
    ProcessSerialNumber another = serialNumber(child);
    another.low += 1;
    m_manager.wakeUp(another);
    EXPECT_EQ(procFs.stat(child.pid())->state, 'T');
    m_manager.wakeUp(serialNumber(child));
    EXPECT_TRUE(stateIs('S'));
}

} // namespace

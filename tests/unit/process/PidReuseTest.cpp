// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Ids that are used again. This needs a process namespace of its own, in which the next id can be
// chosen; the test starts itself anew there.

#include "Platform/linux/LinuxBundles.h"
#include "Platform/linux/ProcProcessManager.h"

#include "tests/Waiting.h"
#include "tests/fakes/FakeWindowSystem.h"
#include "tests/unit/process/ChildProcess.h"
#include "tests/unit/process/TestBundles.h"

#include <QFile>
#include <QProcess>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using zt::ProcessSerialNumber;

namespace {

constexpr const char *insideVariable = "VELMORA_TEST_OWN_PROCESS_NAMESPACE";

QStringList namespaceCommand() {
    return {u"unshare"_s, u"--user"_s,       u"--map-root-user"_s, u"--pid"_s,
            u"--fork"_s,  u"--kill-child"_s, u"--mount-proc"_s};
}

bool canMakeNamespaces() {
    QStringList command = namespaceCommand() << u"true"_s;
    const QString program = command.takeFirst();
    return QProcess::execute(program, command) == 0;
}

// Runs this very test inside of a namespace. Its exit status.
int runInside() {
    const testing::TestInfo *test = testing::UnitTest::GetInstance()->current_test_info();
    QStringList command = namespaceCommand();
    const QString program = command.takeFirst();
    // The test is not the first process there, which would have to look after all others.
    command << u"sh"_s << u"-c"_s << u"\"$@\"; exit $?"_s << u"sh"_s
            << QFile::symLinkTarget(u"/proc/self/exe"_s)
            << u"--gtest_filter="_s + QString::fromUtf8(test->test_suite_name()) + u'.' +
                   QString::fromUtf8(test->name());
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromUtf8(insideVariable), u"1"_s);
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(program, command);
    process.waitForFinished(-1);
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

// Lets the next process have the id.
bool chooseNextId(pid_t pid) {
    QFile file(u"/proc/sys/kernel/ns_last_pid"_s);
    return file.open(QIODevice::WriteOnly) && file.write(QByteArray::number(pid - 1)) > 0;
}

// Starts a program that gets the id. The processes of the two must not begin in the same tick, in
// which no system gives out an id twice.
ChildProcess startWithId(pid_t pid, const std::vector<std::string> &commandLine) {
    usleep(20'000);
    EXPECT_TRUE(chooseNextId(pid));
    ChildProcess child(commandLine);
    EXPECT_EQ(child.pid(), pid);
    return child;
}

} // namespace

TEST(PidReuseTest, aProcessWithAnIdThatWasUsedBeforeIsAnotherOne) {
    if (!qEnvironmentVariableIsSet(insideVariable)) {
        if (!canMakeNamespaces())
            GTEST_SKIP() << "process namespaces cannot be made here";
        EXPECT_EQ(runInside(), 0);
        return;
    }
    const TestBundles bundles;
    const QString firstBundle = bundles.add(u"First"_s, {{u"CFBundleName"_s, u"First"_s}});
    const QString secondBundle = bundles.add(u"Second"_s, {{u"CFBundleName"_s, u"Second"_s}});
    FakeWindowSystem windows;
    const zt::LinuxBundles reader(u"/usr/bin/none"_s);
    zt::ProcProcessManager manager(reader, windows);
    std::vector<zt::ProcessManager::Event> events;
    manager.setEventListener([&](zt::ProcessManager::Event event) { events.push_back(event); });

    ChildProcess first({TestBundles::program(firstBundle), "600"});
    const pid_t pid = first.pid();
    const ProcessSerialNumber firstNumber = *manager.processWithPid(pid);
    EXPECT_EQ(manager.information(firstNumber)->name, u"First"_s);
    EXPECT_TRUE(eventually([&] { return events.size() == 1; }));
    for (int round = 0; round < 3; ++round) {
        first.kill();
        first.reap();
        first = startWithId(pid, {TestBundles::program(secondBundle), "600"});
        const auto secondNumber = manager.processWithPid(pid);
        ASSERT_TRUE(secondNumber);
        EXPECT_NE(*secondNumber, firstNumber);
        EXPECT_FALSE(manager.pidOf(firstNumber));
        EXPECT_FALSE(manager.information(firstNumber));
        EXPECT_FALSE(manager.bundleLocation(firstNumber));
        EXPECT_EQ(manager.information(*secondNumber)->name, u"Second"_s);
        EXPECT_EQ(manager.bundleLocation(*secondNumber), secondBundle);
        EXPECT_EQ(manager.runningApplications(), QList{*secondNumber});
    }
    // The listener hears of the end of the first one and of the start of the last.
    EXPECT_TRUE(eventually([&] {
        return std::ranges::count(events, zt::ProcessManager::Event::Terminated) >= 1 &&
               std::ranges::count(events, zt::ProcessManager::Event::Launched) >= 2;
    }));
}

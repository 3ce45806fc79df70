// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The process manager on a made-up process file system.

#include "Platform/linux/ProcProcessManager.h"

#include "Platform/linux/LinuxBundles.h"

#include "tests/fakes/FakeWindowSystem.h"
#include "tests/unit/process/ProcFolder.h"
#include "tests/unit/process/TestBundles.h"

#include <QDir>

#include <gtest/gtest.h>

#include <filesystem>

#include <unistd.h>

using namespace Qt::StringLiterals;
using zt::ProcessSerialNumber;

namespace {

constexpr std::int32_t pid = 4242;

class ProcProcessManagerTest : public testing::Test {
protected:
    ProcFolder::Process process(std::int32_t id, const std::string &program) const {
        return {.pid = id,
                .startTicks = static_cast<std::uint64_t>(id),
                .programLink = program,
                .arguments = {program},
                .workingFolder = "/",
                .user = ::geteuid()};
    }

    void run(std::int32_t id, const std::string &program) const {
        m_folder.add(process(id, program));
    }

    QList<std::int32_t> listedPids() const {
        QList<std::int32_t> pids;
        for (const ProcessSerialNumber listed : m_manager.runningApplications())
            pids << m_manager.pidOf(listed).value_or(0);
        return pids;
    }

    ProcessSerialNumber serialNumber(std::int32_t id = pid) const {
        return m_manager.processWithPid(id).value_or(ProcessSerialNumber());
    }

    std::optional<QString> name(std::int32_t id = pid) const {
        const auto information = m_manager.information(serialNumber(id));
        return information ? std::optional(information->name) : std::nullopt;
    }

    TestBundles m_bundles;
    ProcFolder m_folder;
    FakeWindowSystem m_windows;
    zt::LinuxBundles m_reader{u"/usr/bin/none"_s};
    zt::ProcProcessManager m_manager{m_reader, m_windows, m_folder.root()};
};

TEST_F(ProcProcessManagerTest, whatRunsFromABundleIsAnApplication) {
    const QString bundle =
        m_bundles.add(u"X"_s, {{u"CFBundleName"_s, u"Ex"_s}, {u"CFBundleSignature"_s, u"exEX"_s}});
    run(pid, TestBundles::program(bundle));
    EXPECT_EQ(listedPids(), QList{pid});
    EXPECT_EQ(m_manager.bundleLocation(serialNumber()), bundle);
    const auto information = m_manager.information(serialNumber());
    ASSERT_TRUE(information);
    EXPECT_EQ(information->name, u"Ex"_s);
    EXPECT_EQ(information->signature, 0x65784558U);
}

TEST_F(ProcProcessManagerTest, theOtherTwoLayoutsAreFoundToo) {
    const QVariantMap information = {{u"CFBundleName"_s, u"Ex"_s}};
    const QString flat = m_bundles.add(u"Flat"_s, information, TestBundles::Layout::Flat);
    const QString old = m_bundles.add(u"Old"_s, information, TestBundles::Layout::OldText);
    run(10, flat.toStdString() + "/program");
    run(11, old.toStdString() + "/program");
    EXPECT_EQ(listedPids(), (QList{10, 11}));
    EXPECT_EQ(m_manager.bundleLocation(serialNumber(10)), flat);
    EXPECT_EQ(m_manager.bundleLocation(serialNumber(11)), old);
    EXPECT_EQ(name(11), u"Ex"_s);
}

TEST_F(ProcProcessManagerTest, theInnermostBundleCounts) {
    const QString outer = m_bundles.add(u"Outer"_s);
    const QString inner = m_bundles.add(u"Outer.app/Contents/Inner"_s);
    run(pid, TestBundles::program(inner));
    EXPECT_EQ(m_manager.bundleLocation(serialNumber()), inner);
}

TEST_F(ProcProcessManagerTest, aFolderWithoutADictionaryIsNoBundle) {
    run(pid, m_bundles.write(u"Bare.app/program"_s, {}).toStdString());
    EXPECT_TRUE(listedPids().isEmpty());
}

TEST_F(ProcProcessManagerTest, otherProgramsAreNoApplications) {
    run(pid, "/usr/bin/sleep");
    EXPECT_TRUE(listedPids().isEmpty());
    EXPECT_EQ(name(), u"sleep"_s);
    EXPECT_EQ(m_manager.bundleLocation(serialNumber()), u"/usr/bin/sleep"_s);
    EXPECT_EQ(m_manager.information(serialNumber())->signature, 0x3F3F3F3FU);
}

TEST_F(ProcProcessManagerTest, anyProgramWithAWindowIsAnApplication) {
    run(pid, "/usr/bin/editor");
    m_windows.owners = {pid, 9999};
    EXPECT_EQ(listedPids(), QList{pid});
}

TEST_F(ProcProcessManagerTest, anApplicationStaysOneWhenItsWindowsAreHidden) {
    run(pid, "/usr/bin/editor");
    m_windows.owners = {pid};
    listedPids();
    m_windows.owners = {};
    EXPECT_EQ(listedPids(), QList{pid});
}

TEST_F(ProcProcessManagerTest, anotherProcessWithTheIdIsNoApplicationForThat) {
    run(pid, "/usr/bin/editor");
    m_windows.owners = {pid};
    listedPids();
    m_windows.owners = {};
    ProcFolder::Process other = process(pid, "/usr/bin/editor");
    other.startTicks += 1;
    m_folder.add(other);
    EXPECT_TRUE(listedPids().isEmpty());
}

TEST_F(ProcProcessManagerTest, applicationsOfOtherUsersAreLeftOut) {
    ProcFolder::Process other = process(pid, TestBundles::program(m_bundles.add(u"X"_s)));
    other.user = ::geteuid() + 1;
    m_folder.add(other);
    if (::geteuid() != 0)
        GTEST_SKIP() << "the folder of a process of another user cannot be made without rights";
    EXPECT_TRUE(listedPids().isEmpty());
    EXPECT_TRUE(m_manager.processWithPid(pid));
}

TEST_F(ProcProcessManagerTest, applicationsAreListedByTheirStart) {
    const std::string program = TestBundles::program(m_bundles.add(u"X"_s));
    for (const auto &[id, start] : {std::pair(10, 300), std::pair(20, 100), std::pair(30, 200)}) {
        ProcFolder::Process started = process(id, program);
        started.startTicks = static_cast<std::uint64_t>(start);
        m_folder.add(started);
    }
    EXPECT_EQ(listedPids(), (QList{20, 30, 10}));
}

TEST_F(ProcProcessManagerTest, aZombieHasNoSerialNumber) {
    ProcFolder::Process zombie = process(pid, TestBundles::program(m_bundles.add(u"X"_s)));
    m_folder.add(zombie);
    const ProcessSerialNumber running = serialNumber();
    zombie.state = 'Z';
    m_folder.add(zombie);
    EXPECT_FALSE(m_manager.processWithPid(pid));
    EXPECT_FALSE(m_manager.pidOf(running));
    EXPECT_FALSE(m_manager.information(running));
    EXPECT_TRUE(listedPids().isEmpty());
}

TEST_F(ProcProcessManagerTest, aReusedIdIsAnotherProcess) {
    run(pid, TestBundles::program(m_bundles.add(u"X"_s)));
    const ProcessSerialNumber first = serialNumber();
    ProcFolder::Process second = process(pid, "/usr/bin/other");
    second.startTicks += 1;
    m_folder.add(second);
    EXPECT_NE(serialNumber(), first);
    EXPECT_FALSE(m_manager.pidOf(first));
    EXPECT_FALSE(m_manager.information(first));
    EXPECT_FALSE(m_manager.displayName(first));
    EXPECT_FALSE(m_manager.bundleLocation(first));
    EXPECT_TRUE(m_manager.informationDictionary(first).isEmpty());
    EXPECT_EQ(name(), u"other"_s);
}

TEST_F(ProcProcessManagerTest, anotherProgramInTheSameProcessIsNoticed) {
    ProcFolder::Process shell = process(pid, "/bin/dash");
    m_folder.add(shell);
    EXPECT_TRUE(listedPids().isEmpty());
    shell.programLink = TestBundles::program(m_bundles.add(u"X"_s));
    shell.stackStart += 16;
    m_folder.add(shell);
    EXPECT_EQ(listedPids(), QList{pid});
}

TEST_F(ProcProcessManagerTest, anotherScriptOfTheSameInterpreterIsNoticed) {
    ProcFolder::Process shell = process(pid, "/bin/dash");
    m_folder.add(shell);
    EXPECT_TRUE(listedPids().isEmpty());
    const QString bundle = m_bundles.add(u"X"_s);
    shell.arguments = {"sh", m_bundles.write(u"X.app/run"_s, "echo\n").toStdString()};
    shell.stackStart += 16;
    m_folder.add(shell);
    EXPECT_EQ(listedPids(), QList{pid});
    EXPECT_EQ(m_manager.bundleLocation(serialNumber()), bundle);
}

TEST_F(ProcProcessManagerTest, aBundleThatIsMovedKeepsItsFacts) {
    const QString bundle = m_bundles.add(u"X"_s, {{u"CFBundleName"_s, u"Ex"_s}});
    ProcFolder::Process running = process(pid, TestBundles::program(bundle));
    m_folder.add(running);
    ASSERT_EQ(name(), u"Ex"_s);
    const QString moved = m_bundles.path(u"Trash/X.app"_s);
    QDir().mkpath(m_bundles.path(u"Trash"_s));
    ASSERT_TRUE(QDir().rename(bundle, moved));
    m_bundles.write(u"Trash/X.app/Contents/Info.plist"_s, "spoilt");
    running.programLink = TestBundles::program(moved);
    m_folder.add(running);
    EXPECT_EQ(m_manager.bundleLocation(serialNumber()), moved);
    EXPECT_EQ(name(), u"Ex"_s);
    EXPECT_EQ(listedPids(), QList{pid});
}

TEST_F(ProcProcessManagerTest, aBundleThatWasDeletedBeforeIsStillAnApplication) {
    run(pid, "/Applications/Gone.app/Contents/Linux/gone (deleted)");
    EXPECT_EQ(listedPids(), QList{pid});
    EXPECT_EQ(m_manager.bundleLocation(serialNumber()), u"/Applications/Gone.app"_s);
    EXPECT_EQ(name(), u"Gone"_s);
}

TEST_F(ProcProcessManagerTest, aScriptStaysInItsBundleWhenItsInterpreterIsReplaced) {
    const QString bundle = m_bundles.add(u"X"_s);
    ProcFolder::Process shell = process(pid, "/bin/dash");
    shell.arguments = {"sh", m_bundles.write(u"X.app/run"_s, "echo\n").toStdString()};
    m_folder.add(shell);
    ASSERT_EQ(m_manager.bundleLocation(serialNumber()), bundle);
    shell.programLink += " (deleted)";
    m_folder.add(shell);
    EXPECT_EQ(m_manager.bundleLocation(serialNumber()), bundle);
}

TEST_F(ProcProcessManagerTest, aProgramMayBeNamedAsIfItWereDeleted) {
    const QString program = m_bundles.write(u"tool (deleted)"_s, {});
    run(pid, program.toStdString());
    EXPECT_EQ(name(), u"tool (deleted)"_s);
    EXPECT_EQ(m_manager.bundleLocation(serialNumber()), program);
}

TEST_F(ProcProcessManagerTest, aProgramThatCannotBeReadIsNamedByItsProcess) {
    ProcFolder::Process hidden = process(pid, {});
    hidden.name = "a-long-program-";
    hidden.arguments = {"/opt/x/a-long-program-name", "x"};
    m_folder.add(hidden);
    EXPECT_EQ(name(), u"a-long-program-name"_s);
    hidden.arguments = {"another title"};
    hidden.startTicks += 1;
    m_folder.add(hidden);
    EXPECT_EQ(name(), u"a-long-program-"_s);
    EXPECT_FALSE(m_manager.bundleLocation(serialNumber()));
}

TEST_F(ProcProcessManagerTest, aNameHasNoMoreThan255Bytes) {
    const QString longName = QString(200, QChar(0x00E4)); // two bytes each
    run(pid, TestBundles::program(m_bundles.add(u"X"_s, {{u"CFBundleName"_s, longName}})));
    EXPECT_EQ(name(), longName.left(127));
}

TEST_F(ProcProcessManagerTest, aBundleWithoutANameIsNamedByItsProgram) {
    run(pid, TestBundles::program(m_bundles.add(u"X"_s)));
    EXPECT_EQ(name(), u"program"_s);
    EXPECT_EQ(m_manager.displayName(serialNumber()), u"program"_s);
}

TEST_F(ProcProcessManagerTest, aBundleMayHaveANameForUsers) {
    run(pid, TestBundles::program(m_bundles.add(
                 u"X"_s, {{u"CFBundleName"_s, u"Ex"_s}, {u"CFBundleDisplayName"_s, u"The Ex"_s}})));
    EXPECT_EQ(m_manager.displayName(serialNumber()), u"The Ex"_s);
    EXPECT_EQ(name(), u"Ex"_s);
}

TEST_F(ProcProcessManagerTest, aSignatureThatIsNoneIsLeftOut) {
    run(pid, TestBundles::program(m_bundles.add(u"X"_s, {{u"CFBundleSignature"_s, u"toolong"_s}})));
    EXPECT_EQ(m_manager.information(serialNumber())->signature, 0x3F3F3F3FU);
}

TEST_F(ProcProcessManagerTest, theDictionaryIsTheBundlesWithWhatTheSystemKnows) {
    const QString bundle = m_bundles.add(u"X"_s, {{u"CFBundleIdentifier"_s, u"example.x"_s}});
    run(pid, TestBundles::program(bundle));
    const QVariantMap dictionary = m_manager.informationDictionary(serialNumber());
    EXPECT_EQ(dictionary.value(u"CFBundleIdentifier"_s), u"example.x"_s);
    EXPECT_EQ(dictionary.value(u"CFBundleName"_s), u"program"_s);
    EXPECT_EQ(dictionary.value(u"BundlePath"_s), bundle);
    EXPECT_EQ(dictionary.value(u"pid"_s), pid);
    EXPECT_EQ(dictionary.value(u"FileCreator"_s), u"????"_s);
}

TEST_F(ProcProcessManagerTest, theFrontProcessOwnsTheActiveWindow) {
    run(pid, "/usr/bin/editor");
    EXPECT_FALSE(m_manager.frontProcess());
    m_windows.front = pid;
    EXPECT_EQ(m_manager.frontProcess(), serialNumber());
    m_windows.front = pid + 1;
    EXPECT_FALSE(m_manager.frontProcess());
}

TEST_F(ProcProcessManagerTest, thisProcessIsTheOneThatTheFolderSays) {
    EXPECT_FALSE(m_manager.currentProcess());
    run(pid, "/usr/bin/editor");
    m_folder.setSelf(pid);
    EXPECT_EQ(m_manager.currentProcess(), serialNumber());
}

TEST_F(ProcProcessManagerTest, processorTimeIsCountedInHundredths) {
    ProcFolder::Process busy = process(pid, "/usr/bin/busy");
    busy.userTicks = 6250;
    m_folder.add(busy);
    EXPECT_DOUBLE_EQ(m_manager.userProcessorTime(pid).value_or(-1), 62.5);
    EXPECT_FALSE(m_manager.userProcessorTime(pid + 1));
    EXPECT_FALSE(m_manager.userProcessorTime(0));
}

TEST_F(ProcProcessManagerTest, noProcessHasAnIdBelowOne) {
    EXPECT_FALSE(m_manager.processWithPid(0));
    EXPECT_FALSE(m_manager.processWithPid(-1));
    EXPECT_FALSE(m_manager.startTime(0));
    EXPECT_FALSE(m_manager.pidOf({}));
    EXPECT_FALSE(m_manager.information({}));
}

} // namespace

TEST_F(ProcProcessManagerTest, theParentIsTheLauncher) {
    ProcFolder::Process child = process(pid, "/usr/bin/child");
    child.parent = pid + 1;
    m_folder.add(child);
    const auto serial = m_manager.processWithPid(pid);
    ASSERT_TRUE(serial);
    EXPECT_TRUE(m_manager.launcherInformation(*serial).isEmpty()) << "a parent that has ended";
    run(pid + 1, "/usr/bin/parent");
    const QVariantMap launcher = m_manager.launcherInformation(*serial);
    EXPECT_EQ(launcher.value(u"pid"_s), pid + 1);
    EXPECT_EQ(launcher.value(u"CFBundleName"_s), u"parent"_s);
    EXPECT_EQ(launcher.value(u"FileCreator"_s), u"????"_s);
    ProcessSerialNumber other = *serial;
    other.low += 1;
    EXPECT_TRUE(m_manager.launcherInformation(other).isEmpty()) << "another process";
}

TEST_F(ProcProcessManagerTest, theSessionLaunchesLoginItems) {
    ProcFolder::Process child = process(pid, "/usr/bin/child");
    child.parent = pid + 1;
    m_folder.add(child);
    run(pid + 1, "/usr/bin/mate-session");
    const auto serial = m_manager.processWithPid(pid);
    EXPECT_EQ(m_manager.launcherInformation(*serial).value(u"FileCreator"_s), u"lgnw"_s);
    run(pid + 1, "/usr/lib/systemd/systemd");
    EXPECT_EQ(m_manager.launcherInformation(*serial).value(u"FileCreator"_s), u"????"_s);
    child.controlGroups = "0::/app.slice/app-child@autostart.service\n";
    m_folder.add(child);
    EXPECT_EQ(m_manager.launcherInformation(*serial).value(u"FileCreator"_s), u"lgnw"_s);
}

TEST_F(ProcProcessManagerTest, aTracerIsADebugger) {
    ProcFolder::Process traced = process(pid, "/usr/bin/child");
    m_folder.add(traced);
    const auto serial = m_manager.processWithPid(pid);
    EXPECT_FALSE(m_manager.isBeingDebugged(*serial));
    traced.tracer = 77;
    m_folder.add(traced);
    EXPECT_TRUE(m_manager.isBeingDebugged(*serial));
    ProcessSerialNumber other = *serial;
    other.low += 1;
    EXPECT_FALSE(m_manager.isBeingDebugged(other)) << "another process";
    m_folder.remove(pid);
    EXPECT_FALSE(m_manager.isBeingDebugged(*serial)) << "it has ended";
}

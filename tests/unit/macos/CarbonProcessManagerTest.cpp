// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/CarbonProcessManager.h"

#include "tests/fakes/FakeChildProcesses.h"
#include "tests/fakes/FakePlatform.h"
#include "tests/unit/macos/StandInTest.h"

using namespace Qt::StringLiterals;

class CarbonProcessManagerTest : public StandInTest {
protected:
    zt::ProcessSerialNumber start(standin::Application application) {
        standin::session.start(std::move(application));
        return *manager.processWithPid(standin::session.applications.back().pid);
    }

    FakeChildProcesses childProcesses;
    FakeBundles bundles;
    zt::CarbonProcessManager manager{childProcesses, bundles};
};

TEST_F(CarbonProcessManagerTest, namesAreReadFromTheirOwnEncoding) {
    const auto process = start({.pid = 5, .name = "Caf\x8E", .signature = 0x736D504C});
    EXPECT_EQ(manager.information(process)->name, u"Caf\u00E9"_s);
}

TEST_F(CarbonProcessManagerTest, aNameOfTheGreatestLengthIsReadWhole) {
    const auto process = start({.pid = 5, .name = std::string(255, 'n')});
    EXPECT_EQ(manager.information(process)->name, QString(255, u'n'));
}

TEST_F(CarbonProcessManagerTest, noSignatureIsTheOneThatSaysSo) {
    const auto process = start({.pid = 5, .name = "Sample", .signature = 0});
    EXPECT_EQ(manager.information(process)->signature, 0x3F3F3F3FU);
}

TEST_F(CarbonProcessManagerTest, theNumberThatStandsForWhoeverAsksIsReplaced) {
    const auto own = start({.pid = 5, .name = "tests"});
    standin::session.current = 5;
    standin::session.answersWithCurrentProcess = true;
    EXPECT_EQ(manager.currentProcess(), own);
}

TEST_F(CarbonProcessManagerTest, whereTheProcessIsAndHowItIsShownAreAsked) {
    const auto process = start({.pid = 5,
                                .name = "Sample",
                                .displayName = u"Sample Notes"_s,
                                .location = u"/Applications/Sample.app"_s,
                                .information = {{u"FileCreator"_s, u"smPL"_s}}});
    EXPECT_EQ(manager.displayName(process), u"Sample Notes"_s);
    EXPECT_EQ(manager.bundleLocation(process), u"/Applications/Sample.app"_s);
    EXPECT_EQ(manager.informationDictionary(process), (QVariantMap{{u"FileCreator"_s, u"smPL"_s}}));
}

TEST_F(CarbonProcessManagerTest, theLauncherIsFoundInTheRecord) {
    start({.pid = 2, .name = "loginwindow", .information = {{u"FileCreator"_s, u"lgnw"_s}}});
    const auto launched = start({.pid = 5, .name = "Sample", .launcher = 2});
    const auto orphan = start({.pid = 6, .name = "Other", .launcher = 77});
    EXPECT_EQ(manager.launcherInformation(launched).value(u"FileCreator"_s), u"lgnw"_s);
    EXPECT_TRUE(manager.launcherInformation(orphan).isEmpty());
}

TEST_F(CarbonProcessManagerTest, theKernelTellsTheStartAndWhetherADebuggerIsThere) {
    const auto process =
        start({.pid = 5, .name = "a", .startSeconds = 1'000, .startMicroseconds = 250'000});
    const auto traced = start({.pid = 6, .name = "b", .isTraced = true});
    EXPECT_EQ(manager.startTime(5)->time_since_epoch(), std::chrono::milliseconds(1'000'250));
    EXPECT_FALSE(manager.isBeingDebugged(process));
    EXPECT_TRUE(manager.isBeingDebugged(traced));
    EXPECT_FALSE(manager.startTime(7));
}

TEST_F(CarbonProcessManagerTest, theProcessToolTellsTheProcessorTime) {
    childProcesses.child.output = "   1:02.50\n";
    EXPECT_EQ(manager.userProcessorTime(5), 62.5);
    EXPECT_EQ(childProcesses.commandLines, QStringList{u"ps -o utime= -p 5"_s});
    childProcesses.child.output = "";
    EXPECT_EQ(manager.userProcessorTime(5), std::nullopt);
}

TEST_F(CarbonProcessManagerTest, wakingUpAsksForIt) {
    manager.wakeUp(start({.pid = 5, .name = "Sample"}));
    EXPECT_EQ(standin::session.requests, (decltype(standin::session.requests){{"wake up", 5}}));
}

TEST_F(CarbonProcessManagerTest, anEventIsHandledOnceItIsTold) {
    manager.setEventListener([](zt::ProcessManager::Event) {});
    EXPECT_EQ(standin::eventHandlers.send(kEventClassApplication, kEventAppLaunched), noErr);
    manager.setEventListener({});
}

TEST_F(CarbonProcessManagerTest, aListenerMayRemoveItself) {
    int heard = 0;
    manager.setEventListener([&](zt::ProcessManager::Event) {
        ++heard;
        manager.setEventListener({});
        ++heard; // what it holds is still there
    });
    start({.pid = 5, .name = "a"});
    start({.pid = 6, .name = "b"});
    EXPECT_EQ(heard, 2);
}

TEST_F(CarbonProcessManagerTest, withoutEventsNothingIsHeard) {
    standin::eventHandlers.isRefusing = true;
    manager.setEventListener([](zt::ProcessManager::Event) { ADD_FAILURE(); });
    start({.pid = 5, .name = "a"});
}

TEST_F(CarbonProcessManagerTest, applicationsOfOthersAreFoundInTheListOfProcesses) {
    bundles.add(u"/Applications/Sample Notes.app"_s,
                {{u"CFBundleName"_s, u"Notes"_s}, {u"CFBundleSignature"_s, u"smPL"_s}});
    childProcesses.child.output = "ann\n"
                                  "ann      /Applications/Sample Notes.app/Contents/MacOS/Notes\n"
                                  "_windows /usr/libexec/windows\n"
                                  "ben      /Applications/Sample Notes.app/Contents/MacOS/Notes\n";
    const QList<zt::ForeignApplication> expected = {
        {.name = u"Notes"_s,
         .signature = 0x736D504C,
         .location = u"/Applications/Sample Notes.app"_s,
         .userName = u"ben"_s}};
    EXPECT_EQ(manager.applicationsOfOtherUsers(), expected);
}

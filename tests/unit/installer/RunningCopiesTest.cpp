// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/installer/InstallerFixture.h"

#include "ZTStuff/ZTClasses/ZTProcess.h"
#include "tests/Waiting.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class RunningCopiesTest : public InstallerFixture {
protected:
    RunningCopiesTest() {
        platform.processManager.start(
            installerPid, {.name = u"VelmoraInstaller"_s, .signature = fourCharCode("DEMO")});
        platform.processManager.setCurrent(installerPid);
    }

    // An application that ends after so many polite requests.
    void run(std::int32_t pid, const QString &name, FourCharCode signature,
             int requests = FakeRunningApplicationScript::never,
             const std::optional<QString> &location = std::nullopt) {
        platform.processManager.start(pid,
                                      {.name = name, .signature = signature, .location = location});
        FakeRunningApplicationScript &script = platform.runningApplications.applications[pid];
        script.endsAfterPoliteRequest = requests;
        script.whenEnded = [this, pid] { platform.processManager.end(pid); };
    }

    void install() {
        field<QPushButton>("installButton")->click();
        ASSERT_TRUE(
            eventually([this] { return field<QPushButton>("installButton")->isEnabled(); }));
    }

    bool isInstalled() { return QFileInfo::exists(path(u"Applications/Demo.app"_s)); }

    // How often the log has the line.
    qsizetype count(const QString &line) { return platform.log.lines().count(line); }

    // Pauses of that length, sleeping between two looks at an application left out.
    qsizetype pauses(std::chrono::microseconds length) {
        return std::count(platform.clock.sleeps.begin(), platform.clock.sleeps.end(), length);
    }

    static constexpr std::int32_t installerPid = 100;
    static constexpr FourCharCode demo = fourCharCode("DEMO");
};

TEST_F(RunningCopiesTest, aSignatureMatchesAnyOfTheCodes) {
    EXPECT_TRUE(InstallerWinController::signatureIsInArray(demo, {u"ABCD"_s, u"DEMO"_s}));
    EXPECT_FALSE(InstallerWinController::signatureIsInArray(demo, {u"ABCD"_s}));
    EXPECT_FALSE(InstallerWinController::signatureIsInArray(demo, {}));
    EXPECT_FALSE(InstallerWinController::signatureIsInArray(demo, {u"DEMOS"_s, u"demo"_s}));
}

TEST_F(RunningCopiesTest, withoutACodeNothingIsQuit) {
    run(7, u"Demo"_s, demo);
    controller().quitProcesses();
    EXPECT_EQ(controller().processToQuitStillRunning(), std::nullopt);
    EXPECT_EQ(platform.runningApplications.applications[7].politeRequests, 0);
    EXPECT_TRUE(platform.log.lines().isEmpty());
}

TEST_F(RunningCopiesTest, twoCopiesAreQuitInOneSweepWithAPauseAfterEach) {
    run(7, u"Demo"_s, demo, 1);
    run(8, u"Demo Two"_s, demo, 1);
    run(9, u"Bystander"_s, fourCharCode("ELSE"), 1);
    start();
    install();
    EXPECT_TRUE(isInstalled());
    EXPECT_EQ(count(u"Quitting 'DEMO': Demo"_s), 1);
    EXPECT_EQ(count(u"Quitting 'DEMO': Demo Two"_s), 1);
    EXPECT_EQ(pauses(100ms), 2 + 1); // the last one belongs to the hand-over
    EXPECT_EQ(platform.runningApplications.applications[9].politeRequests, 0);
    EXPECT_EQ(pauses(1s), 0);
}

TEST_F(RunningCopiesTest, theInstallerItselfIsSpared) {
    platform.runningApplications.applications[installerPid].endsAfterPoliteRequest = 1;
    start();
    install();
    EXPECT_TRUE(isInstalled());
    EXPECT_EQ(platform.runningApplications.applications[installerPid].politeRequests, 0);
}

TEST_F(RunningCopiesTest, everyQuitCodeCounts) {
    run(7, u"Editor"_s, fourCharCode("EDIT"), 1);
    run(8, u"Viewer"_s, fourCharCode("VIEW"), 1);
    start({u"-quitCode"_s, u"EDIT"_s, u"VIEW"_s});
    install();
    EXPECT_EQ(count(u"Quitting 'EDIT': Editor"_s), 1);
    EXPECT_EQ(count(u"Quitting 'VIEW': Viewer"_s), 1);
    EXPECT_TRUE(isInstalled());
}

TEST_F(RunningCopiesTest, aCopyThatGivesWayAtTheSecondSweepIsReplaced) {
    // Deaf to force, and to all polite requests of the first sweep.
    run(7, u"Demo"_s, demo);
    start();
    auto &script = platform.runningApplications.applications[7];
    int holds = 0;
    script.whenHeld = [&script, &holds] {
        if (++holds == 2)
            script.endsAfterPoliteRequest = script.politeRequests + 1;
    };
    install();
    EXPECT_TRUE(isInstalled());
    EXPECT_EQ(count(u"Demo did not quit; will retry"_s), 1);
    EXPECT_EQ(count(u"Quitting 'DEMO': Demo"_s), 2);
    EXPECT_EQ(count(u"Still running 'DEMO': Demo"_s), 1);
    EXPECT_EQ(pauses(1s), 1);
}

TEST_F(RunningCopiesTest, aCopyThatNeverGivesWayStopsTheInstallation) {
    run(7, u"Demo"_s, demo);
    makeFile(u"Applications/Demo.app/old"_s, "old");
    start();
    install();
    EXPECT_TRUE(QFileInfo::exists(path(u"Applications/Demo.app/old"_s)));
    EXPECT_EQ(count(u"Quitting 'DEMO': Demo"_s), 4);
    EXPECT_EQ(count(u"Demo did not quit; will retry"_s), 1);
    EXPECT_EQ(count(u"Demo refused to quit; installation cancelled"_s), 1);
    EXPECT_EQ(pauses(1s), 3);
    EXPECT_EQ(text("messageField"), u"Demo cannot be running during the installation.\rQuit Demo, "
                                    "then click \"Install\" again."_s);
    EXPECT_TRUE(field<QPushButton>("cancelButton")->isEnabled());

    platform.runningApplications.applications[7].endsBeforePoliteRequest = 0;
    install();
    EXPECT_TRUE(QFileInfo::exists(path(u"Trash/Demo.app/old"_s)));
    EXPECT_EQ(text("introField"), u"Demo was successfully installed."_s);
}

TEST_F(RunningCopiesTest, theFirstThatRemainsIsReported) {
    run(7, u"First"_s, demo);
    run(8, u"Second"_s, demo);
    start();
    EXPECT_EQ(controller().processToQuitStillRunning(), u"First"_s);
    EXPECT_EQ(count(u"Still running 'DEMO': First"_s), 1);
    EXPECT_EQ(count(u"Still running 'DEMO': Second"_s), 0);
}

class RunningCopyAsDestinationTest : public RunningCopiesTest {
protected:
    std::optional<QString> found(const QStringList &codes) {
        start(QStringList{u"-productCode"_s} + codes);
        return controller().pathToProcessToReplace();
    }
};

TEST_F(RunningCopyAsDestinationTest, aRunningCopyIsWhereTheProductIsKept) {
    makeFolder(u"Tools"_s);
    run(7, u"Demo"_s, demo, 1, path(u"Tools/Demo.app"_s));
    EXPECT_EQ(found({u"DEMO"_s}), path(u"Tools/Demo.app"_s));
    EXPECT_EQ(text("pathField"), controller().localizedPath(path(u"Tools/Demo.app"_s)));
}

TEST_F(RunningCopyAsDestinationTest, withoutACodeOnTheCommandLineNobodyIsLookedFor) {
    run(7, u"Demo"_s, demo, 1, u"/Tools/Demo.app"_s);
    EXPECT_EQ(controller().pathToProcessToReplace(), std::nullopt);
}

TEST_F(RunningCopyAsDestinationTest, aCopyOnTheDistributionDiskIsNotADestination) {
    run(7, u"Demo"_s, demo, 1, u"/Volumes/Demo-Install/Demo.app"_s);
    EXPECT_EQ(found({u"DEMO"_s}), std::nullopt);
}

TEST_F(RunningCopyAsDestinationTest, theMainCodeComesBeforeAllOthers) {
    run(7, u"Second"_s, fourCharCode("SECO"), 1, u"/a/Second.app"_s);
    run(8, u"Main"_s, fourCharCode("MAIN"), 1, u"/b/Main.app"_s);
    EXPECT_EQ(found({u"MAIN"_s, u"SECO"_s}), u"/b/Main.app"_s);
}

TEST_F(RunningCopyAsDestinationTest, furtherCodesAreTriedInASecondPass) {
    run(7, u"Second"_s, fourCharCode("SECO"), 1, u"/a/Second.app"_s);
    EXPECT_EQ(found({u"MAIN"_s, u"SECO"_s}), u"/a/Second.app"_s);
}

TEST_F(RunningCopyAsDestinationTest, theInstallerIsNoCopyOfTheProduct) {
    EXPECT_EQ(found({u"DEMO"_s}), std::nullopt);
}

TEST_F(RunningCopyAsDestinationTest, aLoginItemComesBeforeARunningCopy) {
    run(7, u"Demo"_s, demo, 1, u"/Tools/Demo.app"_s);
    platform.loginItems.paths = {{path(u"Applications/Demo.app"_s)}};
    start({u"-productCode"_s, u"DEMO"_s});
    EXPECT_EQ(controller().findPreferredDestinationFor(u"Demo"_s),
              path(u"Applications/Demo.app"_s));
}

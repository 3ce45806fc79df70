// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/StagedCopy.h"
#include "tests/Waiting.h"
#include "tests/unit/installer/InstallerFixture.h"

#include <QProgressBar>
#include <QTabWidget>

#include <algorithm>

using namespace Qt::StringLiterals;

class InstallTest : public InstallerFixture {
protected:
    QString destination() { return path(u"Applications/Demo.app"_s); }

    void pressInstall() { field<QPushButton>("installButton")->click(); }

    // Presses Install and waits for the outcome.
    void install() {
        pressInstall();
        ASSERT_TRUE(
            eventually([this] { return field<QPushButton>("installButton")->isEnabled(); }));
    }
};

TEST_F(InstallTest, theProductIsCopiedToItsPlace) {
    start();
    install();
    EXPECT_TRUE(QFileInfo::exists(destination() + u"/Contents/Linux/Demo"_s));
    EXPECT_TRUE(QFileInfo::exists(product + u"/Contents/Linux/Demo"_s));
    EXPECT_EQ(text("introField"), u"Demo was successfully installed."_s);
    EXPECT_EQ(platform.workspace.notedChanges, (QStringList{destination(), destination()}));
    EXPECT_TRUE(platform.log.lines().contains(u"Install"_s));
}

TEST_F(InstallTest, anEarlierCopyGoesToTheTrash) {
    makeFile(u"Applications/Demo.app/old"_s, "old");
    start();
    install();
    EXPECT_TRUE(QFileInfo::exists(path(u"Trash/Demo.app/old"_s)));
    EXPECT_FALSE(QFileInfo::exists(destination() + u"/old"_s));
    EXPECT_TRUE(QFileInfo::exists(destination() + u"/Contents/Linux/Demo"_s));
}

TEST_F(InstallTest, interruptionsAreHeldOffWhileTheProductIsCopied) {
    makeFile(u"Applications/Demo.app/old"_s, "old");
    QStringList heldMeanwhile;
    platform.trash.whenAsked = [&] { heldMeanwhile = platform.interruptions.held(); };
    start();
    EXPECT_TRUE(platform.interruptions.held().isEmpty());
    install();
    EXPECT_EQ(heldMeanwhile, QStringList{u"Demo is being installed."_s});
    EXPECT_TRUE(platform.interruptions.held().isEmpty());
}

TEST_F(InstallTest, bothButtonsRestWhileTheInstallationRuns) {
    start();
    pressInstall();
    EXPECT_FALSE(field<QPushButton>("installButton")->isEnabled());
    EXPECT_FALSE(field<QPushButton>("cancelButton")->isEnabled());
    ASSERT_TRUE(eventually([this] { return field<QPushButton>("installButton")->isEnabled(); }));
    EXPECT_FALSE(shown("progressIndicator"));
}

TEST_F(InstallTest, anEarlierCopyThatCannotBeTrashedStaysAndIsReported) {
    makeFile(u"Applications/Demo.app/old"_s, "old");
    platform.trash.refuses = true;
    start();
    install();
    EXPECT_EQ(text("messageField"),
              u"Could not delete existing copy.\rTry installing Demo manually by copying it to the "
              "Applications folder."_s);
    EXPECT_TRUE(shown("messageField"));
    EXPECT_TRUE(QFileInfo::exists(destination() + u"/old"_s));
    EXPECT_TRUE(field<QPushButton>("cancelButton")->isEnabled());
    EXPECT_EQ(title("installButton"), u"Install"_s);
}

TEST_F(InstallTest, aSecondTryCanSucceed) {
    makeFile(u"Applications/Demo.app/old"_s, "old");
    platform.trash.refuses = true;
    start();
    install();
    platform.trash.refuses = false;
    install();
    EXPECT_EQ(text("introField"), u"Demo was successfully installed."_s);
    EXPECT_FALSE(shown("messageField"));
    EXPECT_TRUE(QFileInfo::exists(path(u"Trash/Demo.app/old"_s)));
}

TEST_F(InstallTest, stoppingLeavesNothingUnfinishedAndTellsOfTheTrash) {
    makeFile(u"Applications/Demo.app/old"_s, "old");
    platform.trash.whenAsked = [this] { controller().stopCopying(); };
    start();
    install();
    EXPECT_EQ(text("messageField"),
              u"The installation was stopped.\rThe earlier copy of Demo is in the Trash."_s);
    EXPECT_TRUE(QFileInfo::exists(path(u"Trash/Demo.app/old"_s)));
    EXPECT_TRUE(
        QDir(path(u"Applications"_s))
            .isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot));
    EXPECT_TRUE(platform.log.lines().contains(u"User stopped copying"_s));
}

TEST_F(InstallTest, afterStoppingTheInstallationCanBeTriedAgain) {
    makeFile(u"Applications/Demo.app/old"_s, "old");
    platform.trash.whenAsked = [this] { controller().stopCopying(); };
    start();
    install();
    install();
    EXPECT_EQ(text("introField"), u"Demo was successfully installed."_s);
    EXPECT_FALSE(shown("stopButton"));
}

TEST_F(InstallTest, whatFailedIsToldEvenWhenItWasToBeStopped) {
    makeFile(u"Disk/Suite/Demo.app/program"_s, "x");
    makeFile(u"Applications/Suite/Demo.app/old"_s, "old");
    platform.trash.refuses = true;
    platform.trash.whenAsked = [this] { controller().stopCopying(); };
    start({u"-sourcePath"_s, path(u"Disk/Suite/Demo.app"_s), u"-productCode"_s, u"DEMO"_s,
           u"-destinationPath"_s, path(u"Applications/Suite/Demo.app"_s)});
    install();
    EXPECT_EQ(text("messageField"), u"Could not delete existing copy."_s);
    EXPECT_TRUE(QFileInfo::exists(path(u"Applications/Suite/Demo.app/old"_s)));
}

TEST_F(InstallTest, theBarShowsHowMuchIsCopied) {
    makeFile(u"Disk/Demo.app/Contents/Resources/picture"_s, QByteArray(3 << 20, 'x'));
    start();
    auto *bar = field<QProgressBar>("copyProgress");
    QList<int> values;
    QObject::connect(bar, &QProgressBar::valueChanged, bar, [&](int value) { values << value; });
    install();
    const auto full = std::ranges::find(values, bar->maximum());
    EXPECT_NE(full, values.end());
    EXPECT_TRUE(std::is_sorted(values.begin(), full));
    EXPECT_FALSE(shown("copyProgress"));
    EXPECT_FALSE(shown("stopButton"));
}

TEST_F(InstallTest, onlyWhatComesFromAMediumIsCompared) {
    platform.workspace.volumes = {path(u"Disk"_s)};
    start();
    EXPECT_EQ(controller().proofFor(product), zt::Proof::Compared);
    EXPECT_EQ(controller().proofFor(path(u"Downloads/Demo.app"_s)), zt::Proof::None);
    install();
    EXPECT_EQ(text("introField"), u"Demo was successfully installed."_s);
}

TEST_F(InstallTest, aLinkToAMediumCountsAsTheMedium) {
    platform.workspace.volumes = {path(u"Disk"_s)};
    QFile::link(path(u"Disk"_s), path(u"Desktop link"_s));
    start();
    EXPECT_EQ(controller().proofFor(path(u"Desktop link/Demo.app"_s)), zt::Proof::Compared);
}

TEST_F(InstallTest, aMissingSourceIsReportedAndLosesNothing) {
    makeFile(u"Applications/Gone.app/old"_s, "old");
    start({u"-sourcePath"_s, path(u"Disk/Gone.app"_s), u"-productCode"_s, u"DEMO"_s});
    install();
    EXPECT_TRUE(text("messageField").startsWith(u"Installation failed.\r"_s));
    EXPECT_TRUE(QFileInfo::exists(path(u"Applications/Gone.app/old"_s)));
    EXPECT_TRUE(platform.log.lines().contains(u"ERROR -- Could not copy myself to "_s +
                                              path(u"Applications/Gone.app"_s)));
}

TEST_F(InstallTest, withAWrapperTheHintToCopyByHandIsLeftOut) {
    makeFile(u"Disk/Suite/Demo.app/program"_s, "x");
    makeFile(u"Applications/Suite/Demo.app/old"_s, "old");
    platform.trash.refuses = true;
    start({u"-sourcePath"_s, path(u"Disk/Suite/Demo.app"_s), u"-wrapperPath"_s,
           path(u"Disk/Suite"_s), u"-productCode"_s, u"DEMO"_s});
    install();
    EXPECT_EQ(text("messageField"), u"Could not delete existing copy."_s);
}

TEST_F(InstallTest, onTheReadMePageTheButtonOnlyMovesOn) {
    makeFile(u"ReadMe.txt"_s, "x");
    start({u"-readMePath"_s, path(u"ReadMe.txt"_s)});
    pressInstall();
    EXPECT_EQ(field<QTabWidget>("tabView")->currentIndex(), InstallerWinController::MainPage);
    EXPECT_TRUE(field<QPushButton>("installButton")->isEnabled());
    EXPECT_FALSE(QFileInfo::exists(destination()));
}

TEST_F(InstallTest, cancelGoesBackToTheReadMe) {
    makeFile(u"ReadMe.txt"_s, "x");
    start({u"-readMePath"_s, path(u"ReadMe.txt"_s)});
    controller().selectTab(InstallerWinController::MainPage);
    EXPECT_FALSE(quits([this] { controller().cancel(); }));
    EXPECT_EQ(field<QTabWidget>("tabView")->currentIndex(), InstallerWinController::ReadMePage);
    EXPECT_TRUE(quits([this] { controller().cancel(); }));
}

TEST_F(InstallTest, cancelQuitsWithoutAReadMe) {
    start();
    EXPECT_TRUE(quits([this] { controller().cancel(); }));
}

TEST_F(InstallTest, afterSuccessTheButtonQuits) {
    start();
    install();
    EXPECT_EQ(title("installButton"), u"OK"_s);
    EXPECT_TRUE(quits([this] { pressInstall(); }));
}

TEST_F(InstallTest, afterASetUpErrorTheButtonQuits) {
    platform.bundles.add(product, {});
    start();
    EXPECT_TRUE(quits([this] { pressInstall(); }));
    EXPECT_FALSE(QFileInfo::exists(destination()));
}

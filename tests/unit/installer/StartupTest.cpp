// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/installer/InstallerFixture.h"

#include "Installer/Sources/IconView.h"
#include "tests/Waiting.h"

#include <QMessageBox>
#include <QPixmap>
#include <QTabWidget>
#include <QTextBrowser>

using namespace Qt::StringLiterals;

class StartupTest : public InstallerFixture {
protected:
    int page() { return field<QTabWidget>("tabView")->currentIndex(); }
    QString readMeText() { return field<QTextBrowser>("readMeTextView")->toPlainText(); }
    QMessageBox *findAlert() { return controller().window().findChild<QMessageBox *>(); }
};

TEST_F(StartupTest, theLogIsRedirectedWhenAProductStartsTheInstaller) {
    start({u"-productName"_s, u"Demo"_s});
    EXPECT_EQ(redirectedTo,
              QStringList{QDir::homePath() + u"/Library/Logs/VelmoraInstaller.log"_s});
    EXPECT_FALSE(platform.log.lines().contains(u"direct invocation"_s));
}

TEST_F(StartupTest, aStartByHandLeavesTheStreamsAlone) {
    start({u"-productName"_s});
    EXPECT_TRUE(redirectedTo.isEmpty());
    EXPECT_EQ(platform.log.lines().first(), u"direct invocation"_s);
}

TEST_F(StartupTest, aChoiceOfLanguageFirstIsAStartByHand) {
    start({u"-AppleLanguages"_s, u"(de)"_s, u"-version"_s, u"3"_s});
    EXPECT_TRUE(redirectedTo.isEmpty());
}

TEST_F(StartupTest, theWindowTellsTheProductItsVersionAndItsPlace) {
    start();
    EXPECT_EQ(controller().window().windowTitle(), u"Install Demo"_s);
    EXPECT_EQ(text("nameField"), u"Demo 2.0"_s);
    EXPECT_TRUE(text("introField").contains(u"Demo"_s));
    EXPECT_FALSE(text("introField").contains(u'%'));
    EXPECT_TRUE(text("explanationField").contains(u"Demo"_s));
    EXPECT_EQ(text("pathField"), controller().localizedPath(path(u"Applications/Demo.app"_s)));
    EXPECT_TRUE(controller().window().isVisible());
    EXPECT_EQ(page(), InstallerWinController::MainPage);
    EXPECT_FALSE(shown("messageField"));
    EXPECT_FALSE(shown("checkmarkField"));
    EXPECT_FALSE(shown("helpButton"));
    EXPECT_EQ(title("installButton"), u"Install"_s);
    EXPECT_EQ(title("cancelButton"), u"Cancel"_s);
}

TEST_F(StartupTest, withoutAVersionTheNameStandsAlone) {
    platform.bundles.add(product, {{u"CFBundleSignature"_s, u"DEMO"_s}});
    start();
    EXPECT_EQ(text("nameField"), u"Demo"_s);
}

TEST_F(StartupTest, aNameThatLooksLikeAFormatOrMarkupShowsAsItIs) {
    start({u"-productName"_s, u"<b>100%@</b>"_s});
    EXPECT_EQ(text("nameField"), u"<b>100%@</b> 2.0"_s);
    EXPECT_EQ(controller().window().windowTitle(), u"Install <b>100%@</b>"_s);
    EXPECT_EQ(field("nameField")->textFormat(), Qt::PlainText);
}

TEST_F(StartupTest, documentationAddsASentenceAndTheHelpButton) {
    makeFile(u"Guide.html"_s, "<p>Guide</p>");
    start({u"-documentationPath"_s, path(u"Guide.html"_s)});
    EXPECT_TRUE(text("explanationField")
                    .startsWith(u"If you wish to read the documentation first, click the \"?\" "
                                "button. "_s));
    EXPECT_TRUE(shown("helpButton"));
}

TEST_F(StartupTest, aReadMeIsTheFirstPage) {
    makeFile(u"ReadMe.txt"_s, "Please read me.\n");
    start({u"-readMePath"_s, path(u"ReadMe.txt"_s)});
    EXPECT_EQ(page(), InstallerWinController::ReadMePage);
    EXPECT_EQ(title("installButton"), u"Continue"_s);
    EXPECT_EQ(title("cancelButton"), u"Cancel"_s);
    EXPECT_TRUE(eventually([this] { return readMeText().trimmed() == u"Please read me."; }));
    controller().selectTab(InstallerWinController::MainPage);
    EXPECT_EQ(title("installButton"), u"Install"_s);
    EXPECT_EQ(title("cancelButton"), u"Go Back"_s);
}

TEST_F(StartupTest, aReadMeIsDarkOnLightInEveryAppearance) {
    platform.appearance.setScheme(zt::Appearance::Scheme::Dark);
    makeFile(u"ReadMe.txt"_s, "x");
    start({u"-readMePath"_s, path(u"ReadMe.txt"_s)});
    const QPalette paper = field<QTextBrowser>("readMeTextView")->palette();
    EXPECT_GT(paper.color(QPalette::Base).lightness(), 200);
    EXPECT_LT(paper.color(QPalette::Text).lightness(), 80);
}

TEST_F(StartupTest, aReadMeThatIsMissingLeavesTheMainPageWithAWayBack) {
    start({u"-readMePath"_s, path(u"missing.txt"_s)});
    EXPECT_EQ(page(), InstallerWinController::MainPage);
    EXPECT_EQ(title("cancelButton"), u"Go Back"_s);
    controller().cancel();
    EXPECT_EQ(page(), InstallerWinController::ReadMePage);
}

TEST_F(StartupTest, aReadMeThatCannotBeShownSaysWhereItIs) {
    start({u"-readMePath"_s, path(u"Applications"_s)});
    EXPECT_EQ(page(), InstallerWinController::ReadMePage);
    EXPECT_TRUE(eventually([this] { return readMeText().contains(path(u"Applications"_s)); }));
}

TEST_F(StartupTest, theIconComesFromTheGivenFileFirst) {
    QPixmap red(16, 16);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save(path(u"icon.png"_s)));
    start({u"-iconPath"_s, path(u"icon.png"_s)});
    const QImage shownIcon = field<IconView>("iconField")->icon().pixmap(16, 16).toImage();
    EXPECT_EQ(shownIcon.pixelColor(8, 8), QColor(Qt::red));
    EXPECT_EQ(QApplication::windowIcon().pixmap(16, 16).toImage().pixelColor(8, 8),
              QColor(Qt::red));
    EXPECT_TRUE(platform.workspace.iconRequests.isEmpty());
}

TEST_F(StartupTest, anUnreadableIconFallsThroughToTheBundlesAndTheWorkspaces) {
    makeFile(u"icon.png"_s, "garbage");
    QPixmap blue(16, 16);
    blue.fill(Qt::blue);
    platform.workspace.icon = QIcon(blue);
    start({u"-iconPath"_s, path(u"icon.png"_s)});
    EXPECT_EQ(platform.workspace.iconRequests, QStringList{product});
    EXPECT_EQ(field<IconView>("iconField")->icon().pixmap(16, 16).toImage().pixelColor(8, 8),
              QColor(Qt::blue));
}

TEST_F(StartupTest, theBundlesIconIsFoundByItsExactNameToo) {
    QPixmap green(16, 16);
    green.fill(Qt::green);
    makeFolder(u"Disk/Demo.app/Contents/Resources"_s);
    ASSERT_TRUE(green.save(product + u"/Contents/Resources/Demo.png"_s));
    platform.bundles.add(
        product, {{u"CFBundleSignature"_s, u"DEMO"_s}, {u"CFBundleIconFile"_s, u"Demo.png"_s}});
    start();
    EXPECT_EQ(field<IconView>("iconField")->icon().pixmap(16, 16).toImage().pixelColor(8, 8),
              QColor(Qt::green));
    EXPECT_TRUE(platform.workspace.iconRequests.isEmpty());
}

TEST_F(StartupTest, anInstallerInNoProductShowsASetUpError) {
    addDoneSound(platform, path(u"Elsewhere/VelmoraInstaller.app"_s));
    start({u"-completionSound"_s, u"YES"_s});
    EXPECT_EQ(text("introField"), u"missing source path"_s);
    EXPECT_EQ(controller().window().windowTitle(), u""_s);
    EXPECT_EQ(title("installButton"), u"OK"_s);
    EXPECT_FALSE(shown("cancelButton"));
    EXPECT_EQ(platform.sounds.plays().size(), 1U);
    EXPECT_TRUE(platform.log.lines().contains(u"missing source path"_s));
    EXPECT_TRUE(controller().window().isVisible());
}

TEST_F(StartupTest, aSourceWithoutANameShowsASetUpError) {
    start({u"-sourcePath"_s, u""_s});
    EXPECT_EQ(text("introField"), u"missing program name"_s);
    EXPECT_EQ(controller().window().windowTitle(), u""_s);
}

TEST_F(StartupTest, aProductWithoutASignatureShowsASetUpErrorUnderItsTitle) {
    platform.bundles.add(product, {});
    start();
    EXPECT_EQ(text("introField"), u"missing product signature"_s);
    EXPECT_EQ(controller().window().windowTitle(), u"Install Demo"_s);
    EXPECT_EQ(text("nameField"), u""_s);
}

TEST_F(StartupTest, aSystemThatIsNewEnoughShowsNoAlert) {
    platform.systemVersion.bugFix = 1;
    start({u"-minSystemVersion"_s, u"12.4.1"_s});
    EXPECT_EQ(findAlert(), nullptr);
}

TEST_F(StartupTest, aSystemThatIsTooOldShowsTheAlert) {
    start({u"-minSystemVersion"_s, u"12.5"_s});
    QMessageBox *shownAlert = findAlert();
    ASSERT_NE(shownAlert, nullptr);
    EXPECT_EQ(shownAlert->text(), u"Demo 2.0 cannot be installed on this computer because it "
                                  "requires Mac OS X 12.5 or newer."_s);
    EXPECT_EQ(shownAlert->informativeText(),
              u"To check if an older version of Demo is available for your computer, please visit "
              "our software archive."_s);
    ASSERT_EQ(shownAlert->buttons().size(), 2);
    EXPECT_EQ(shownAlert->buttons().at(0)->text(), u"Quit"_s);
    EXPECT_EQ(shownAlert->buttons().at(1)->text(), u"Visit Archive"_s);
    EXPECT_EQ(shownAlert->windowModality(), Qt::WindowModal);
}

TEST_F(StartupTest, theAlertPrintsAMissingVersionAsSuch) {
    platform.bundles.add(
        product, {{u"CFBundleSignature"_s, u"DEMO"_s}, {u"LSMinimumSystemVersion"_s, u"99"_s}});
    start();
    ASSERT_NE(findAlert(), nullptr);
    EXPECT_TRUE(findAlert()->text().startsWith(u"Demo (null) cannot be installed"_s));
}

TEST_F(StartupTest, onlyTheSecondButtonVisitsTheArchive) {
    start({u"-minSystemVersion"_s, u"99"_s});
    findAlert()->buttons().at(0)->click();
    EXPECT_TRUE(platform.workspace.openedUrls.isEmpty());
    controller().systemVersionAlertDidEnd(1001);
    ASSERT_EQ(platform.workspace.openedUrls.size(), 1);
    EXPECT_EQ(platform.workspace.openedUrls.first().path(), u"/downloads/archive/"_s);
}

TEST_F(StartupTest, theWindowFollowsThePreferredAppearance) {
    const auto windowLightness = [] {
        return QApplication::palette().color(QPalette::Window).lightness();
    };
    platform.appearance.setScheme(zt::Appearance::Scheme::Dark);
    start();
    EXPECT_LT(windowLightness(), 80);
    platform.appearance.setScheme(zt::Appearance::Scheme::Light);
    EXPECT_GT(windowLightness(), 200);
    platform.appearance.setScheme(std::nullopt);
    EXPECT_GT(windowLightness(), 200);
}

TEST_F(StartupTest, closingTheWindowQuits) {
    EXPECT_TRUE(controller().applicationShouldTerminateAfterLastWindowClosed());
}

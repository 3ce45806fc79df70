// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/Waiting.h"
#include "tests/desktop/installer/InstallerWindowFixture.h"

using InstallerWindowTest = InstallerWindowFixture;

TEST_F(InstallerWindowTest, aProductIsInstalledFromTheReadMeToTheEnd) {
    write(destination() + u"/old"_s, "old");
    startSample({u"-readMePath"_s, sample() + u"/Contents/Resources/ReadMe.rtf"_s});
    EXPECT_EQ(page(), InstallerWinController::ReadMePage);
    EXPECT_TRUE(eventually([this] {
        return field<QTextBrowser>("readMeTextView")->toPlainText().contains(u"Sample Notes"_s);
    }));

    click(button("installButton"));
    ASSERT_TRUE(eventually([this] { return page() == InstallerWinController::MainPage; }));
    click(button("cancelButton"));
    ASSERT_TRUE(eventually([this] { return page() == InstallerWinController::ReadMePage; }));
    click(button("installButton"));
    ASSERT_TRUE(eventually([this] { return page() == InstallerWinController::MainPage; }));
    click(button("installButton"));
    ASSERT_TRUE(eventually([this] { return button("installButton")->text() == u"OK"_s; }));

    EXPECT_EQ(text("introField"), u"Sample Notes was successfully installed."_s);
    EXPECT_TRUE(field<QWidget>("checkmarkField")->isVisible());
    EXPECT_TRUE(QFileInfo(destination() + u"/Contents/Linux/SampleNotes"_s).isExecutable());
    const QString trash = QDir::homePath() + u"/.local/share/Trash/"_s;
    EXPECT_EQ(contentOf(trash + u"files/Sample Notes.app/old"_s), "old");
    EXPECT_TRUE(contentOf(trash + u"info/Sample Notes.app.trashinfo"_s)
                    .contains("Applications/Sample%20Notes.app"));
    click(button("installButton"));
    EXPECT_TRUE(quits());
}

TEST_F(InstallerWindowTest, theInstalledProductRunsAndTheDesktopKnowsIt) {
    startSample();
    click(button("installButton"));
    ASSERT_TRUE(eventually([this] { return button("installButton")->text() == u"OK"_s; }));
    EXPECT_EQ(QProcess::execute(u"xdotool"_s, {u"search"_s, u"--onlyvisible"_s, u"--name"_s,
                                               u"^Sample Notes$"_s}),
              0);
    EXPECT_TRUE(isOnScreen(&window())); // before the product's own window

    const QString entry =
        QDir::homePath() + u"/.local/share/applications/org.example.SampleNotes.desktop"_s;
    EXPECT_EQ(QProcess::execute(u"desktop-file-validate"_s, {entry}), 0);
    QProcess launcher;
    launcher.start(u"gio"_s, {u"launch"_s, entry});
    EXPECT_TRUE(launcher.waitForFinished());
    EXPECT_EQ(launcher.exitCode(), 0) << launcher.readAllStandardError().toStdString();
    EXPECT_TRUE(
        QFile::exists(QDir::homePath() +
                      u"/.local/share/icons/hicolor/48x48/apps/org.example.SampleNotes.png"_s));
}

TEST_F(InstallerWindowTest, theKeyboardAloneInstalls) {
    startSample({u"-readMePath"_s, sample() + u"/Contents/Resources/ReadMe.rtf"_s});
    type(u"Return"_s);
    ASSERT_TRUE(eventually([this] { return page() == InstallerWinController::MainPage; }));
    type(u"Escape"_s);
    ASSERT_TRUE(eventually([this] { return page() == InstallerWinController::ReadMePage; }));
    type(u"Return"_s);
    ASSERT_TRUE(eventually([this] { return page() == InstallerWinController::MainPage; }));
    type(u"Return"_s);
    ASSERT_TRUE(eventually([this] { return button("installButton")->text() == u"OK"_s; }));
    EXPECT_TRUE(QFileInfo::exists(destination()));
    type(u"Return"_s);
    EXPECT_TRUE(quits());
}

TEST_F(InstallerWindowTest, closingTheWindowQuits) {
    startSample();
    QTimer::singleShot(0, &window(), [this] { window().close(); });
    EXPECT_TRUE(quits());
}

TEST_F(InstallerWindowTest, escapeQuitsWhereThereIsNoWayBack) {
    startSample();
    type(u"Escape"_s);
    EXPECT_TRUE(quits());
}

TEST_F(InstallerWindowTest, aSystemThatIsTooOldCanOnlyBeLeft) {
    startSample({u"-minSystemVersion"_s, u"99"_s});
    auto *alert = window().findChild<QMessageBox *>();
    ASSERT_NE(alert, nullptr);
    ASSERT_TRUE(isOnScreen(alert));
    QTimer::singleShot(0, alert,
                       [alert] { click(qobject_cast<QPushButton *>(alert->buttons().at(0))); });
    EXPECT_TRUE(quits());
    EXPECT_FALSE(QFileInfo::exists(destination()));
}

TEST_F(InstallerWindowTest, theSecondButtonOfTheAlertVisitsTheArchive) {
    const QString opened = registerHandler(u"x-scheme-handler/https"_s);
    startSample({u"-minSystemVersion"_s, u"99"_s});
    auto *alert = window().findChild<QMessageBox *>();
    ASSERT_NE(alert, nullptr);
    ASSERT_TRUE(isOnScreen(alert));
    QTimer::singleShot(0, alert,
                       [alert] { click(qobject_cast<QPushButton *>(alert->buttons().at(1))); });
    EXPECT_TRUE(quits());
    ASSERT_TRUE(eventually([&opened] { return QFileInfo::exists(opened); }));
    EXPECT_TRUE(contentOf(opened).endsWith("/downloads/archive/"));
}

TEST_F(InstallerWindowTest, theHelpButtonOpensTheDocumentation) {
    const QString opened = registerHandler(u"text/html"_s);
    const QString guide = sample() + u"/Contents/Resources/Documentation.html"_s;
    startSample({u"-documentationPath"_s, guide});
    click(button("helpButton"));
    ASSERT_TRUE(eventually([&opened] { return QFileInfo::exists(opened); }));
    EXPECT_EQ(QUrl::fromUserInput(QString::fromUtf8(contentOf(opened))).toLocalFile(), guide);
}

struct SetUpErrorRow {
    const char *message;
    QStringList arguments;
};

TEST_F(InstallerWindowTest, everySetUpErrorIsShownAndQuits) {
    const SetUpErrorRow rows[] = {
        {"missing source path", {}},
        {"missing program name", {u"-sourcePath"_s, u""_s}},
        {"missing product signature", {u"-sourcePath"_s, path(u"Applications"_s)}},
    };
    for (const SetUpErrorRow &row : rows) {
        start(row.arguments);
        EXPECT_EQ(text("introField"), QString::fromLatin1(row.message));
        EXPECT_FALSE(button("cancelButton")->isVisible()) << row.message;
        click(button("installButton"));
        EXPECT_TRUE(quits()) << row.message;
    }
}

TEST_F(InstallerWindowTest, afterAFailureASecondTryCanSucceed) {
    const QString product = path(u"Disk/Sample Notes.app"_s);
    start({u"-sourcePath"_s, product, u"-destinationPath"_s, destination(), u"-productCode"_s,
           u"SmPN"_s});
    click(button("installButton"));
    ASSERT_TRUE(eventually([this] { return field<QLabel>("messageField")->isVisible(); }));
    EXPECT_EQ(text("messageField"),
              u"Installation failed.\rTry installing Sample Notes manually by "
              "copying it to the Applications folder."_s);
    EXPECT_TRUE(button("cancelButton")->isEnabled());
    EXPECT_TRUE(QDir(path(u"Applications"_s))
                    .isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));

    QDir().mkpath(path(u"Disk"_s));
    ASSERT_EQ(QProcess::execute(u"cp"_s, {u"-a"_s, sample(), product}), 0);
    click(button("installButton"));
    ASSERT_TRUE(eventually([this] { return button("installButton")->text() == u"OK"_s; }));
    EXPECT_FALSE(field<QLabel>("messageField")->isVisible());
    EXPECT_TRUE(QFileInfo::exists(destination()));
}

TEST_F(InstallerWindowTest, aTimedQuitEndsTheInstaller) {
    startSample({u"-completionQuit"_s, u"0.2"_s});
    click(button("installButton"));
    EXPECT_TRUE(quits());
    EXPECT_TRUE(QFileInfo::exists(destination()));
}

TEST_F(InstallerWindowTest, noTextIsCutOffHoweverLongItIs) {
    const QString longName = u"Wörter "_s.repeated(20) + QString(300, u'W');
    startSample({u"-productName"_s, longName});
    for (const char *name : {"nameField", "introField", "pathField", "explanationField"}) {
        const auto *label = field<QLabel>(name);
        EXPECT_GE(label->height(), label->heightForWidth(label->width())) << name;
    }
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The installer's own window on a real X server, with a real window manager, bus and Trash. The
// mouse and the keyboard are the X server's.

#include "Installer/Sources/InstallerWinController.h"
#include "Platform/NativePlatform.h"
#include "ZTStuff/ZTClasses/ZTProcess.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class InstallerWindowTest : public testing::Test {
protected:
    InstallerWindowTest() { QDir().mkpath(path(u"Applications"_s)); }

    QString path(const QString &relative) const { return m_folder.filePath(relative); }
    QString destination() const { return path(u"Applications/Sample Notes.app"_s); }
    static QString sample() { return QString::fromUtf8(SAMPLE_PRODUCT); }

    static void write(const QString &file, const QByteArray &content) {
        QDir().mkpath(QFileInfo(file).path());
        QFile out(file);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(content);
    }

    static QByteArray contentOf(const QString &file) {
        QFile in(file);
        return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
    }

    // Starts the installer for the sample product, or as the arguments say.
    void start(const QStringList &arguments) {
        m_controller.reset();
        m_current.reset();
        m_platform.reset();
        ZTProcess::platformChanged();
        m_arguments = QStringList{u"installer"_s} + arguments;
        m_platform = std::make_unique<zt::NativePlatform>(m_arguments);
        m_current = std::make_unique<zt::ScopedPlatform>(m_platform->services());
        m_controller = std::make_unique<InstallerWinController>(
            InstallerWinController::Environment{.platform = m_platform->services(),
                                                .argumentVector = m_arguments,
                                                .redirectStandardStreams = [](const QString &) {}});
        m_controller->awakeFromNib();
        ASSERT_TRUE(isOnScreen(&m_controller->window()));
    }

    // Waits until the window is active and stays where the window manager has put it.
    static bool isOnScreen(QWidget *view) {
        if (!QTest::qWaitForWindowActive(view, 10'000))
            return false;
        QPoint before;
        do {
            before = view->pos();
            QTest::qWait(60);
        } while (view->pos() != before);
        return true;
    }

    void startSample(const QStringList &more = {}) {
        start(QStringList{u"-sourcePath"_s, sample(), u"-destinationPath"_s, destination()} + more);
    }

    QDialog &window() { return m_controller->window(); }

    template <typename View>
    View *field(const char *name) {
        return window().findChild<View *>(QString::fromLatin1(name));
    }

    QPushButton *button(const char *name) { return field<QPushButton>(name); }
    QString text(const char *name) { return field<QLabel>(name)->text(); }
    int page() { return field<QTabWidget>("tabView")->currentIndex(); }

    // Clicks where the button is on the screen.
    static void click(const QPushButton *target) {
        ASSERT_TRUE(target->isVisible() && target->isEnabled());
        const QPoint place = target->mapToGlobal(target->rect().center());
        QProcess::execute(u"xdotool"_s, {u"mousemove"_s, QString::number(place.x()),
                                         QString::number(place.y()), u"click"_s, u"1"_s});
    }

    static void type(const QString &key) { QProcess::execute(u"xdotool"_s, {u"key"_s, key}); }

    // Lets the program run until the condition holds.
    template <typename Condition>
    static bool eventually(Condition condition) {
        return QTest::qWaitFor(condition, 20'000);
    }

    // Lets the program run until it quits by itself.
    static bool quits() {
        constexpr int timedOut = 77;
        QTimer::singleShot(20'000, qApp, [] { QApplication::exit(timedOut); });
        return QApplication::exec() != timedOut;
    }

    // Makes a program of the test's own the handler for a kind of file or address; it writes what
    // it is given into the answered file.
    QString registerHandler(const QString &type) {
        const QString record = path(u"opened"_s);
        const QString script = path(u"handler"_s);
        write(script, "#!/bin/sh\nprintf %s \"$1\" >'" + record.toUtf8() + ".new'\nmv '" +
                          record.toUtf8() + ".new' '" + record.toUtf8() + "'\n");
        QFile::setPermissions(script, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        const QString applications = QDir::homePath() + u"/.local/share/applications/"_s;
        write(applications + u"handler.desktop"_s,
              "[Desktop Entry]\nType=Application\nName=Handler\nExec=" + script.toUtf8() +
                  " %u\nMimeType=" + type.toUtf8() + ";\n");
        write(applications + u"mimeapps.list"_s,
              "[Default Applications]\n" + type.toUtf8() + "=handler.desktop\n");
        return record;
    }

private:
    QTemporaryDir m_folder;
    QStringList m_arguments;
    std::unique_ptr<zt::NativePlatform> m_platform;
    std::unique_ptr<zt::ScopedPlatform> m_current;
    std::unique_ptr<InstallerWinController> m_controller;
};

TEST_F(InstallerWindowTest, aProductIsInstalledFromTheReadMeToTheEnd) {
    write(destination() + u"/old"_s, "old");
    startSample({u"-readMePath"_s, sample() + u"/Contents/Resources/ReadMe.rtf"_s});
    EXPECT_EQ(page(), InstallerWinController::ReadMePage);
    EXPECT_TRUE(field<QTextBrowser>("readMeTextView")->toPlainText().contains(u"Sample Notes"_s));

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

// Starts a program; it ends with the test at the latest.
std::unique_ptr<QProcess> started(const QString &program) {
    auto process = std::make_unique<QProcess>();
    process->start(program, QStringList());
    EXPECT_TRUE(process->waitForStarted());
    return process;
}

TEST_F(InstallerWindowTest, runningCopiesOfTheProductAreQuitFirst) {
    ASSERT_EQ(QProcess::execute(u"cp"_s, {u"-a"_s, sample(), destination()}), 0);
    const QString program = destination() + u"/Contents/Linux/SampleNotes"_s;
    const auto first = started(program);
    const auto second = started(program);
    startSample();
    click(button("installButton"));
    ASSERT_TRUE(eventually([this] { return button("installButton")->text() == u"OK"_s; }));
    EXPECT_TRUE(eventually([&] {
        return first->state() == QProcess::NotRunning && second->state() == QProcess::NotRunning;
    }));
    EXPECT_TRUE(QFileInfo::exists(program));
}

TEST_F(InstallerWindowTest, aProductThatComesBackEachTimeStopsTheInstallationUntilItStaysAway) {
    const QString product = path(u"Disk/Clingy.app"_s);
    const QString program = product + u"/Contents/Linux/Clingy"_s;
    write(product + u"/Contents/Info.plist"_s,
          "<plist version=\"1.0\"><dict><key>CFBundleExecutable</key><string>Clingy</string>"
          "<key>CFBundleName</key><string>Clingy</string>"
          "<key>CFBundleSignature</key><string>Clng</string></dict></plist>");
    write(program, "#!/bin/sh\nwhile :; do sleep 0.05; done\n");
    QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    auto clingy = started(program);
    int comebacks = 0;
    QObject::connect(clingy.get(), &QProcess::finished, clingy.get(),
                     [&clingy, &comebacks, program] {
                         ++comebacks;
                         clingy->start(program, QStringList());
                     });
    start({u"-sourcePath"_s, product, u"-destinationPath"_s, path(u"Applications/Clingy.app"_s)});
    click(button("installButton"));
    ASSERT_TRUE(eventually([this] { return field<QLabel>("messageField")->isVisible(); }));
    EXPECT_EQ(text("messageField"), u"Clingy cannot be running during the installation.\rQuit "
                                    "Clingy, then click \"Install\" again."_s);
    EXPECT_EQ(comebacks, 4);
    EXPECT_FALSE(QFileInfo::exists(path(u"Applications/Clingy.app"_s)));

    QObject::disconnect(clingy.get(), &QProcess::finished, nullptr, nullptr);
    click(button("installButton"));
    ASSERT_TRUE(eventually([this] { return button("installButton")->text() == u"OK"_s; }));
    EXPECT_TRUE(QFileInfo::exists(path(u"Applications/Clingy.app"_s)));
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

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}

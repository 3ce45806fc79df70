#pragma once

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

class InstallerWindowFixture : public testing::Test {
protected:
    InstallerWindowFixture() { QDir().mkpath(path(u"Applications"_s)); }

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

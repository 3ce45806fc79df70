#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A controller on made-up services, with a product of the test's own on the disk.

#include "Installer/Sources/InstallerWinController.h"

#include "ZTStuff/ZTClasses/ZTProcess.h"

#include "tests/fakes/FakePlatform.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

class InstallerFixture : public testing::Test {
protected:
    InstallerFixture() {
        using namespace Qt::StringLiterals;
        ZTProcess::platformChanged();
        makeFile(u"Disk/Demo.app/Contents/Linux/Demo"_s, "program");
        makeFolder(u"Applications"_s);
        makeFolder(u"Trash"_s);
        product = path(u"Disk/Demo.app"_s);
        platform.bundles.add(product, {{u"CFBundleSignature"_s, u"DEMO"_s},
                                       {u"CFBundleShortVersionString"_s, u"2.0"_s}});
        platform.bundles.setMainBundle(product + u"/Contents/Resources/VelmoraInstaller.app"_s);
        platform.workspace.localApplications = {path(u"Applications"_s)};
        QPixmap picture(16, 16);
        picture.fill(Qt::green);
        platform.workspace.icon = QIcon(picture);
        platform.trash.folder = path(u"Trash"_s).toStdString();
    }

    QString path(const QString &relative) const { return folder.filePath(relative); }

    void makeFolder(const QString &relative) { QDir().mkpath(path(relative)); }

    void makeFile(const QString &relative, const QByteArray &content) {
        QDir().mkpath(QFileInfo(path(relative)).path());
        QFile file(path(relative));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    // Makes the bundle the installer's own, with the sound "Done" in it.
    static void addDoneSound(FakePlatform &services, const QString &installer) {
        const QString sound = installer + QStringLiteral("/Contents/Resources/Done.wav");
        QDir().mkpath(QFileInfo(sound).path());
        QFile file(sound);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        services.bundles.setMainBundle(installer);
        services.sounds.files.insert(sound, {1000, 1, std::vector<float>(300, 0.1F)});
    }

    // Makes the controller with the arguments behind the program's name. Does not start it up.
    InstallerWinController &controller(const QStringList &arguments = {}) {
        if (!m_controller) {
            m_controller =
                std::make_unique<InstallerWinController>(InstallerWinController::Environment{
                    .platform = platform.services,
                    .argumentVector = QStringList{QStringLiteral("installer")} + arguments,
                    .redirectStandardStreams = [this](const QString &file) {
                        redirectedTo << file;
                    }});
        }
        return *m_controller;
    }

    // The same, started up.
    InstallerWinController &start(const QStringList &arguments = {}) {
        controller(arguments).awakeFromNib();
        return *m_controller;
    }

    template <typename View = QLabel>
    View *field(const char *name) {
        auto *view = m_controller->window().findChild<View *>(QString::fromLatin1(name));
        EXPECT_NE(view, nullptr) << name;
        return view;
    }

    QString text(const char *name) { return field(name)->text(); }
    QString title(const char *name) { return field<QPushButton>(name)->text(); }
    // Shown, or to be shown as soon as its page is.
    bool shown(const char *name) { return !field<QWidget>(name)->isHidden(); }

    // Runs the event loop until the condition holds; the test's own time limit ends a failure.
    template <typename Condition>
    void waitUntil(Condition condition) {
        while (!condition())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    }

    // Whether the action makes the application quit.
    template <typename Action>
    bool quits(Action action) {
        constexpr int stayed = 77;
        QTimer::singleShot(0, &m_controller->window(), action);
        QTimer::singleShot(50, &m_controller->window(), [] { QApplication::exit(stayed); });
        return QApplication::exec() != stayed;
    }

    QTemporaryDir folder;
    FakePlatform platform;
    QString product;
    QStringList redirectedTo;

private:
    std::unique_ptr<InstallerWinController> m_controller;
};

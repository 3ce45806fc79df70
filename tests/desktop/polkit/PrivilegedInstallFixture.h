#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The installer as a user runs it who may not write to the applications folder.

#include "tests/Waiting.h"
#include "tests/desktop/polkit/PolkitAgent.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

inline const QString destination = u"/Applications/Sample Notes.app"_s;
inline const QString failed =
    u"ERROR -- Could not copy myself to /Applications with authorization"_s;

inline QString productInBuildFolder() {
    // Next to the folders of the tests.
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           u"/../../../Sample Notes.app"_s);
}

class PrivilegedInstallTest : public testing::Test {
protected:
    ~PrivilegedInstallTest() override {
        if (m_installer.state() != QProcess::NotRunning) {
            m_installer.kill();
            m_installer.waitForFinished();
        }
        if (HasFailure())
            ADD_FAILURE() << log().toStdString();
    }

    // Starts the product's own installer and waits for its window.
    void start(const QString &product = productInBuildFolder()) {
        m_installer.start(product + u"/Contents/Resources/VelmoraInstaller.app/Contents/Linux/"
                                    "VelmoraInstaller"_s,
                          {u"-destinationPath"_s, destination});
        ASSERT_TRUE(m_installer.waitForStarted());
        ASSERT_TRUE(eventually([] { return hasWindow(u"Install Sample Notes"_s); }));
        focus(u"Install Sample Notes"_s);
    }

    PolkitAgent &answer(PolkitAgent::Answer answer) {
        m_agent = std::make_unique<PolkitAgent>(answer);
        EXPECT_TRUE(m_agent->registerFor(m_installer.processId()));
        return *m_agent;
    }

    static void pressInstall() { QProcess::execute(u"xdotool"_s, {u"key"_s, u"Return"_s}); }

    static bool hasWindow(const QString &title) {
        return QProcess::execute(u"xdotool"_s, {u"search"_s, u"--onlyvisible"_s, u"--name"_s,
                                                u'^' + title + u'$'}) == 0;
    }

    static void focus(const QString &title) {
        QProcess::execute(u"xdotool"_s, {u"search"_s, u"--name"_s, u'^' + title + u'$',
                                         u"windowactivate"_s, u"--sync"_s});
    }

    static QString log() {
        QFile file(QDir::homePath() + u"/Library/Logs/VelmoraInstaller.log"_s);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    static bool isLogged(const QString &text) { return log().contains(text); }
    static bool isEventuallyLogged(const QString &text) {
        return eventually([&] { return isLogged(text); });
    }

    static QStringList contentOfApplications() {
        return QDir(u"/Applications"_s)
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    // A copy of the product that belongs to this user.
    static QString ownCopy(const QString &folder) {
        QDir().mkpath(folder);
        QProcess::execute(u"cp"_s, {u"-r"_s, productInBuildFolder(), folder});
        return folder + u"/Sample Notes.app"_s;
    }

    QProcess m_installer;

private:
    std::unique_ptr<PolkitAgent> m_agent;
};

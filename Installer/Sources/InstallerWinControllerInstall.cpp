// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/InstallerWinController.h"

#include "Installer/Sources/LocalizedString.h"
#include "Platform/Clock.h"
#include "Platform/Sounds.h"
#include "Platform/UserDefaults.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"
#include "ZTStuff/ZTClasses/ZTInstallerInterface.h"

#include <QApplication>
#include <QFileInfo>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

void InstallerWinController::install() {
    if (m_finished) {
        QApplication::quit();
        return;
    }
    if (m_ui.tabView->currentIndex() == ReadMePage) {
        selectTab(MainPage);
        return;
    }
    m_forcesAuthorization = m_heldKeys.optionWasHeld();
    m_copyStop = {};
    m_ui.stopButton->setEnabled(true);
    m_ui.installButton->setEnabled(false);
    m_ui.cancelButton->setEnabled(false);
    // While the product is copied the sound server is found, so that the end does not wait for it.
    if (wantsDoneSound() && !m_platform.userDefaults.boolForKey(u"nosound"_s))
        m_platform.sounds.getReady();
    m_installThread = std::jthread([this](const std::stop_token &stop) { installThread(stop); });
}

void InstallerWinController::cancel() {
    if (m_arguments.contains(ZTInstallerKeyReadMePath) &&
        m_ui.tabView->currentIndex() == MainPage) {
        selectTab(ReadMePage);
        return;
    }
    QApplication::quit();
}

void InstallerWinController::installThread(const std::stop_token &stop) {
    ZTLog("Install");
    onMainThread([this] { animateProgress(Progress::Running); });
    std::optional<QString> message;
    if (const auto name = quitRunningCopies(stop)) {
        ZTLog("%@ refused to quit; installation cancelled", *name);
        message = ZTFormat(localizedString("%1$@ cannot be running during the installation.\r"
                                           "Quit %1$@, then click \"Install\" again."),
                           *name);
    } else if (const auto messageKey = installMyselfInDestination(stop)) {
        message = messageKey->isEmpty() ? *messageKey : failureMessage(*messageKey);
    }
    onMainThread([this, message] { installationFinished(message); });
}

// Answers the name of an application that would not quit.
std::optional<QString>
InstallerWinController::quitRunningCopies(const std::stop_token &stop) const {
    constexpr int retries = 3;
    quitProcesses();
    const auto name = processToQuitStillRunning();
    if (!name)
        return std::nullopt;
    ZTLog("%@ did not quit; will retry", *name);
    for (int retry = 0; retry < retries && !stop.stop_requested(); ++retry) {
        m_platform.clock.sleepFor(1s);
        quitProcesses();
        if (!processToQuitStillRunning())
            break;
    }
    return processToQuitStillRunning();
}

QString InstallerWinController::failureMessage(const QString &messageKey) const {
    QString message = ZTFormat(localizedString(messageKey.toUtf8().constData()), productName());
    if (m_copyStop.stop_requested()) {
        // Whoever stops has changed their mind, and has to know what became of what they had.
        const QString destination = argument(ZTInstallerKeyDestinationPath).value_or(QString());
        if (m_hadEarlierCopy && !QFileInfo::exists(destination)) {
            message += ZTFormat(
                "\r%@", ZTFormat(localizedString("The earlier copy of %1$@ is in the Trash."),
                                 productName()));
        }
        return message;
    }
    // A wrapped product cannot be installed by copying one item.
    if (!m_arguments.contains(ZTInstallerKeyWrapperPath)) {
        message += ZTFormat("\r%@", ZTFormat(localizedString("Try installing %1$@ manually by "
                                                             "copying it to the Applications "
                                                             "folder."),
                                             productName()));
    }
    return message;
}

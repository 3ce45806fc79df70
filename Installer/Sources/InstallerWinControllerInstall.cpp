// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/InstallerWinController.h"

#include "Installer/Sources/Announcement.h"
#include "Installer/Sources/LocalizedString.h"
#include "Platform/Sounds.h"
#include "Platform/UserDefaults.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"
#include "ZTStuff/ZTClasses/ZTInstallerInterface.h"

#include <QApplication>

using namespace Qt::StringLiterals;

void InstallerWinController::install() {
    if (m_finished) {
        QApplication::quit();
        return;
    }
    if (m_ui.tabView->currentIndex() == ReadMePage) {
        selectTab(MainPage);
        announce(*m_ui.introField);
        return;
    }
    setForcesAuthorization(m_heldKeys.optionWasHeld());
    forgetStop();
    endForecasting();
    m_ui.logButton->hide();
    m_ui.stopButton->setEnabled(true);
    announce(*m_ui.introField, ZTFormat(localizedString("%@ is being installed."), productName()));
    m_ui.installButton->setEnabled(false);
    m_ui.cancelButton->setEnabled(false);
    // While the product is copied the sound server is found, so that the end does not wait for it.
    if (wantsDoneSound() && !platform().userDefaults.boolForKey(u"nosound"_s))
        platform().sounds.getReady();
    m_installThread = std::jthread([this](const std::stop_token &stop) { installThread(stop); });
}

void InstallerWinController::cancel() {
    if (arguments().contains(ZTInstallerKeyReadMePath) &&
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

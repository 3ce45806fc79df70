// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/InstallerWinController.h"

#include "Installer/Sources/Announcement.h"
#include "Installer/Sources/IconFile.h"
#include "Installer/Sources/LocalizedString.h"
#include "Installer/Sources/LogWindow.h"
#include "Platform/Clock.h"
#include "Platform/Log.h"
#include "Platform/UserDefaults.h"
#include "Platform/Workspace.h"
#include "ZTStuff/CocoaExtensions/SoundExtensions.h"
#include "ZTStuff/CocoaExtensions/ZTSound.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/NumberReading.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"
#include "ZTStuff/ZTClasses/ZTInstallerInterface.h"

#include <QApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// A longer delay than a month is as good as none, and would not fit a timer.
constexpr float longestQuitDelay = 2'000'000; // seconds

} // namespace

void InstallerWinController::installationFinished(const std::optional<QString> &message) {
    if (message) {
        m_ui.messageField->setText(*message);
        m_ui.messageField->setVisible(!message->isEmpty());
        m_ui.logButton->setVisible(!message->isEmpty());
        m_ui.cancelButton->setEnabled(true);
        if (!message->isEmpty())
            announce(*m_ui.messageField);
    } else {
        showFinalMessage("%@ was successfully installed.");
        if (const auto path =
                platform().bundles.mainBundle().pathForResource(u"Checkmark"_s, u"svg"_s))
            m_ui.checkmarkField->setIcon(loadIcon(*path).value_or(QIcon()));
        m_ui.checkmarkField->show();
        m_ui.cancelButton->hide();
        m_ui.cancelButton->setEnabled(false);
        if (!platform().userDefaults.boolForKey(u"nosound"_s))
            playDoneSound();
    }
    m_ui.installButton->setEnabled(true);
    m_ui.installButton->setFocus();
    animateProgress(Progress::Stopped);
    growToFit();
    applyTimedQuit();
}

void InstallerWinController::applyTimedQuit() {
    const auto text = argument(ZTInstallerCompletionQuit);
    if (!text)
        return;
    const float seconds = floatValue(*text);
    ZTLog("quit delay: %1.1f", seconds);
    if (seconds > 0) {
        const auto delay = std::chrono::duration_cast<std::chrono::milliseconds>(
            std::chrono::duration<float>(std::min(seconds, longestQuitDelay)));
        platform().clock.callAfter(delay, [] { QApplication::quit(); });
    }
}

void InstallerWinController::showFinalMessage(const char *messageKey) {
    m_ui.cancelButton->hide();
    m_ui.installButton->setText(localizedString("OK"));
    m_ui.pathField->hide();
    m_ui.explanationField->hide();
    m_ui.messageField->hide();
    m_ui.helpButton->hide();
    m_ui.logButton->hide();
    m_ui.introField->setText(ZTFormat(localizedString(messageKey), productName()));
    m_finished = true;
    describeInstallButton();
    announce(*m_ui.introField);
    assignShortcuts();
}

bool InstallerWinController::wantsDoneSound() const {
    return argument(ZTInstallerCompletionSound) == u"YES"_s;
}

void InstallerWinController::playDoneSound() {
    if (!wantsDoneSound())
        return;
    const ZTSound::Pointer sound = ZTSound::soundNamed(u"Done"_s);
    if (!sound)
        return;
    sound->setVolume(SoundExtensions::alertVolume());
    SoundExtensions::playAsSoundEffect(*sound);
}

void InstallerWinController::openDocumentation() {
    const auto path = argument(ZTInstallerKeyDocumentationPath);
    if (!path) {
        ZTLog("documentation path missing");
        platform().workspace.beep();
        return;
    }
    platform().workspace.openFile(*path);
}

void InstallerWinController::showLog() {
    QStringList lines;
    for (const std::string &line : platform().log.recentLines())
        lines << QString::fromUtf8(line.data(), static_cast<qsizetype>(line.size()));
    auto *log = new LogWindow(lines.join(u'\n'), &m_window);
    log->setAttribute(Qt::WA_DeleteOnClose);
    log->open();
}

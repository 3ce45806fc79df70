// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the main page tells before Install is pressed.

#include "Installer/Sources/InstallerWinController.h"

#include "Installer/Sources/Announcement.h"
#include "ZTStuff/ZTClasses/ZTProcess.h"

#include <QEvent>

#include <algorithm>

bool InstallerWinController::eventFilter(QObject *watched, QEvent *event) {
    if (watched == &m_window && event->type() == QEvent::WindowActivate)
        refreshForecast();
    return QObject::eventFilter(watched, event);
}

void InstallerWinController::beginForecasting() {
    if (m_finished || m_installThread.joinable())
        return;
    m_isForecasting = true;
    ZTProcess::installNotifications();
    m_launchEndCount = ZTProcess::applicationLaunchEndCount();
    m_processObservation = NotificationCenter::defaultCenter().addObserver(
        ZTProcessChangeNotification, [this](const Notification & /*notification*/) {
            // That another application came to the front is of no matter.
            const std::int32_t count = ZTProcess::applicationLaunchEndCount();
            if (std::exchange(m_launchEndCount, count) != count)
                refreshForecast();
        });
    refreshForecast();
}

void InstallerWinController::endForecasting() {
    m_isForecasting = false;
    m_forecastThread.request_stop();
    m_processObservation = {};
    m_ui.forecastField->setLines({});
    m_ui.forecastField->hide();
    describeInstallButton();
}

void InstallerWinController::refreshForecast() {
    if (!m_isForecasting)
        return;
    // What has changed meanwhile is looked at once more when this look is over.
    if (std::exchange(m_forecastIsUnderWay, true)) {
        m_forecastIsStale = true;
        return;
    }
    m_forecastIsStale = false;
    m_forecastThread = std::jthread([this](const std::stop_token &stop) {
        const Forecast found = forecast(stop);
        onMainThread([this, found] {
            m_forecastIsUnderWay = false;
            if (m_isForecasting)
                showForecast(found);
            if (m_forecastIsStale)
                refreshForecast();
        });
    });
}

void InstallerWinController::showForecast(const Forecast &found) {
    const QList<ForecastLine> lines = forecastLines(found);
    if (lines == m_ui.forecastField->lines())
        return;
    m_ui.forecastField->setLines(lines);
    m_ui.forecastField->setVisible(!lines.isEmpty());
    describeInstallButton();
    // Only what wants something done interrupts.
    if (!lines.isEmpty() && lines.first().kind == ForecastLine::Kind::Problem)
        announce(*m_ui.forecastField, m_ui.forecastField->text());
    growToFit();
}

// What will happen is read out when the button that does it gets the focus.
void InstallerWinController::describeInstallButton() {
    const bool installs = m_ui.tabView->currentIndex() == MainPage && !m_finished;
    m_ui.installButton->setAccessibleDescription(installs ? m_ui.forecastField->text() : QString());
}

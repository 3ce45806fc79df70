#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The installer's central object: an installation with a window, which it fills, and whose buttons
// it answers.

#include "Installer/Sources/HeldKeys.h"
#include "Installer/Sources/Installation.h"
#include "ZTStuff/CocoaExtensions/FollowedAppearance.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/NotificationCenter.h"
#include "ui_InstallerWindow.h"

#include <QDialog>
#include <QObject>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <thread>

// One for each process. Thread: main, unless an operation says otherwise.
class InstallerWinController final : public QObject, public Installation {
    Q_OBJECT

public:
    // What the controller needs of the process around it. The platform must be the current one and
    // outlive the controller.
    struct Environment {
        const zt::Platform &platform;
        QStringList argumentVector; // element 0 included
        std::function<void(const QString &path)> redirectStandardStreams;
    };

    enum Page { ReadMePage = 0, MainPage = 1 };

    explicit InstallerWinController(Environment environment);
    // Asks a running installation to stop and waits for its thread.
    ~InstallerWinController() override;
    InstallerWinController(const InstallerWinController &) = delete;
    InstallerWinController &operator=(const InstallerWinController &) = delete;

    // The window, set up but not shown before awakeFromNib.
    QDialog &window() { return m_window; }

    // Closing the window quits the installer: always true.
    bool applicationShouldTerminateAfterLastWindowClosed() const;

    // The start-up sequence, to be run once: redirects the log, completes the arguments, fills the
    // window and shows it with its first page, a set-up error, or the alert that the system is too
    // old.
    void awakeFromNib();

    // Shows a page and titles the buttons for it.
    void selectTab(int pageIndex);

    // Ends start-up: shows the error as the final message.
    void showSetupError(const QString &message);

    // The end of the alert that the system is too old: visits the archive when the second button
    // was pressed, and quits.
    static constexpr int secondButtonReturnCode = 1001;
    void systemVersionAlertDidEnd(int returnCode);

    // Button actions.
    void install();
    void cancel();
    void openDocumentation();
    // Shows the log of this run in a window of its own.
    void showLog();

    void animateProgress(Progress progress) override;

    // Shows the outcome of an installation: no message for success, else the message, empty to show
    // none.
    void installationFinished(const std::optional<QString> &message);

    // The window's last state: one message, and a button that quits. The key takes the product name
    // for its placeholder.
    void showFinalMessage(const char *messageKey);

    // Plays the sound "Done" as loud as alerts are and where alerts are heard, if the arguments ask
    // for it. Silent when anything about sound is missing.
    void playDoneSound();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // A key for each button: Option with the first letter of its title that no other button has.
    void assignShortcuts();

    // Start-up, step by step.
    void fillIcon();
    void fillTexts();
    void fillReadMe(const QString &path);
    void showWindow();
    // Makes the window taller when the main page needs it, as far as the screen allows.
    void growToFit();
    int fittingHeight(int width) const;
    void showSystemVersionAlert();

    // The installation, from its first step to its outcome. Thread: install.
    void installThread(const std::stop_token &stop);

    // What would happen, told from the first painting of the window until Install is pressed. It is
    // found out beside the main thread, and again whenever it may have changed.
    void beginForecasting();
    void endForecasting();
    void refreshForecast();
    void showForecast(const Forecast &found);
    void describeInstallButton();

    bool wantsDoneSound() const;
    void showCopyProgress(const zt::CopyProgress &progress) override;
    void hideCopyProgress() override;
    void applyTimedQuit();

    Environment m_environment;
    FollowedAppearance m_followedAppearance; // before the window, which is made in it
    QDialog m_window;
    Ui::InstallerWindow m_ui;
    bool m_finished = false;
    HeldKeys m_heldKeys;
    bool m_isForecasting = false;
    bool m_forecastIsUnderWay = false;
    bool m_forecastIsStale = false;
    std::int32_t m_launchEndCount = 0;
    NotificationCenter::Observation m_processObservation;
    std::jthread m_forecastThread;
    std::jthread m_installThread;
};

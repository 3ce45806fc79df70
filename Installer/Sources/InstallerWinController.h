#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The installer's central object: fills the window, answers its buttons and runs the installation.

#include "Installer/Sources/HeldKeys.h"
#include "Platform/Bundles.h"
#include "Platform/Platform.h"
#include "ZTStuff/CocoaExtensions/FollowedAppearance.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/FourCharCode.h"
#include "ui_InstallerWindow.h"

#include <QDialog>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <thread>

class QMessageBox;

namespace zt {
struct CopyProgress;
enum class Proof;
} // namespace zt

// One for each process. Thread: main, unless an operation says otherwise.
class InstallerWinController final : public QObject {
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

    // Where the installed product should go, and how paths are shown.
    std::optional<QString> findPreferredDestinationFor(const QString &productName) const;
    std::optional<QString> autoLaunchPathFor(const QString &productName) const;
    std::optional<QString> pathToProcessToReplace() const;
    bool isInUnsupportedFolder(const std::optional<QString> &path) const;
    QString applicationsDirectory() const;
    bool canWriteToFileOrDirectory(const QString &path) const;
    bool canWriteToPath(const QString &path) const;
    bool canWriteToFile(const QString &path) const;
    bool canWriteToDirectory(const QString &folder) const;
    QString localizedPath(const QString &path) const;
    QString recursiveLocalizedPath(const QString &path) const;

    // Quitting what must not run meanwhile. The installer itself is always spared, also when it
    // bears one of the signatures. Thread: install.

    // Whether one of the four-character codes is the signature.
    static bool signatureIsInArray(FourCharCode signature, const QStringList &codes);
    // Asks every running application with one of the quit codes to end, one after the other.
    void quitProcesses() const;
    // The name of the first of them that still runs.
    std::optional<QString> processToQuitStillRunning() const;

    // Putting the product in its place. Thread: install.

    // Copies the product, with an administrator's rights where this user lacks them or the Option
    // key was held, then makes it known to the desktop and launches it. No value for success, an
    // empty text when the user did not give consent, else the key of a message.
    std::optional<QString> installMyselfInDestination(const std::stop_token &stop = {});
    // Whether the copy is compared with the product at last: a disk that is carried about may read
    // differently each time.
    zt::Proof proofFor(const QString &source) const;
    // Has the privileged tool copy the product. Whether it did; `canceled`, which may be null, is
    // told whether it was the user who did not want it.
    bool authorizedInstall(const QString &source, const QString &to,
                           const std::optional<QString> &wrap, bool *canceled,
                           const std::stop_token &stop = {});

    // Button actions.
    void install();
    void cancel();
    void openDocumentation();

    enum class Progress { Running, Stopped };
    void animateProgress(Progress progress);

    // Stops the copy, as long as the product has not appeared at its destination. Thread: any.
    void stopCopying();

    // Shows the outcome of an installation: no message for success, else the message, empty to show
    // none.
    void installationFinished(const std::optional<QString> &message);

    // The window's last state: one message, and a button that quits. The key takes the product name
    // for its placeholder.
    void showFinalMessage(const char *messageKey);

    // Plays the sound "Done" as loud as alerts are and where alerts are heard, if the arguments ask
    // for it. Silent when anything about sound is missing.
    void playDoneSound();

private:
    // Start-up, step by step.
    bool completeArguments(const std::optional<zt::Bundle> &product);
    void fillIcon(const std::optional<zt::Bundle> &product);
    void fillTexts(const std::optional<QString> &version);
    void fillReadMe();
    void showWindow();
    void showSystemVersionAlert(const std::optional<QString> &version,
                                const QString &minimumSystemVersion);

    // Has the operation run on the main thread, without waiting for it. Thread: any.
    template <typename Operation>
    void onMainThread(Operation operation) {
        QMetaObject::invokeMethod(this, std::move(operation), Qt::QueuedConnection);
    }

    // The installation. Thread: install.
    void installThread(const std::stop_token &stop);
    std::optional<QString> quitRunningCopies(const std::stop_token &stop) const;
    std::optional<QString> copyDirectly(const std::stop_token &stop);
    void handOver(const std::stop_token &stop);
    bool hasIcon(const QString &path, const std::stop_token &stop);
    QString failureMessage(const QString &messageKey) const;

    bool wantsDoneSound() const;
    void showCopyProgress(const zt::CopyProgress &progress);
    void hideCopyProgress();
    void applyTimedQuit();
    void announce(QWidget *field);

    std::optional<QString> argument(const QString &key) const;
    QString productName() const;

    Environment m_environment;
    const zt::Platform &m_platform;
    FollowedAppearance m_followedAppearance; // before the window, which is made in it
    QDialog m_window;
    Ui::InstallerWindow m_ui;
    QVariantMap m_arguments; // fixed once start-up is done; the install thread reads it
    bool m_finished = false;
    HeldKeys m_heldKeys;
    bool m_forcesAuthorization = false; // set before the install thread starts
    std::stop_source m_copyStop;        // likewise
    bool m_hadEarlierCopy = false;      // the install thread's own
    std::jthread m_installThread;
};

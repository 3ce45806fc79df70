#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// An installation, apart from how it is shown: what is to be installed and where, what must not run
// meanwhile, and the copy itself.

#include "Installer/Sources/Forecast.h"
#include "Installer/Sources/LocalizedString.h"
#include "Platform/Bundles.h"
#include "Platform/Interruptions.h"
#include "Platform/Platform.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/FourCharCode.h"

#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <memory>
#include <optional>
#include <stop_token>

namespace zt {
enum class CopiedRights;
enum class Proof;
struct CopyProgress;
} // namespace zt

// What shows it derives from it. Thread: main, unless an operation says otherwise.
class Installation {
public:
    // The platform must be the current one and outlive the installation.
    explicit Installation(const zt::Platform &platform);
    virtual ~Installation();
    Installation(const Installation &) = delete;
    Installation &operator=(const Installation &) = delete;

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

    // What the installation would do now. Changes nothing; what takes its time is the counting of
    // the product's bytes, which stops when that is asked for. Thread: any, once the arguments are
    // complete.
    Forecast forecast(const std::stop_token &stop = {}) const;

    // Stops the copy, as long as the product has not appeared at its destination. Thread: any.
    void stopCopying();

protected:
    // What is shown while the installation runs.
    enum class Progress { Running, Stopped };
    virtual void animateProgress(Progress progress) = 0;
    virtual void showCopyProgress(const zt::CopyProgress &progress) = 0;
    virtual void hideCopyProgress() = 0;

    // The arguments, to be completed in this order. A step that fails answers what is missing.
    void extractArguments(const QStringList &argumentVector);
    // Finds out which bundle is the product, and its name.
    std::optional<QString> findProduct();
    // Finds out the destination and all that is left; the destination also on failure.
    std::optional<QString> completeArguments();

    // The arguments are fixed once they are complete. Thread: any, from then on.
    const QVariantMap &arguments() const { return m_arguments; }
    std::optional<QString> argument(const QString &key) const;
    QString productName() const;
    QString sourcePath() const;
    QString destinationPath() const;

    // About the product that was found.
    const std::optional<zt::Bundle> &product() const { return m_product; }
    std::optional<QString> version() const;
    std::optional<QString> minimumSystemVersion() const;
    bool systemIsSupported() const;

    const zt::Platform &platform() const { return m_platform; }

    // Has the operation run on the main thread, without waiting for it. Thread: any.
    template <typename Operation>
    void onMainThread(Operation operation) {
        QMetaObject::invokeMethod(&m_mainThread, std::move(operation), Qt::QueuedConnection);
    }

    // Before the install thread starts.
    void forgetStop() { m_copyStop = {}; }
    void setForcesAuthorization(bool forces) { m_forcesAuthorization = forces; }

    // The steps of an installation. Thread: install.

    // Answers the name of an application that would not quit.
    std::optional<QString> quitRunningCopies(const std::stop_token &stop) const;
    // Copies with the rights that this process has. The key of a message on failure.
    std::optional<QString> copyDirectly(const std::stop_token &stop, zt::CopiedRights rights);
    static inline const QString stoppedMessageKey =
        localizationKey("The installation was stopped."); // when that is why it did not succeed
    void registerProduct() const;
    // The message under the key, with what the user can do now.
    QString failureMessage(const QString &messageKey) const;

private:
    void handOver(const std::stop_token &stop);
    std::unique_ptr<zt::InterruptionHold> holdOffInterruptions() const;
    bool hasIcon(const QString &path, const std::stop_token &stop);

    const zt::Platform &m_platform;
    QObject m_mainThread; // what is to run there, and goes when the installation goes
    QVariantMap m_arguments;
    std::optional<zt::Bundle> m_product;
    bool m_forcesAuthorization = false;
    std::stop_source m_copyStop;
    bool m_hadEarlierCopy = false; // the install thread's own
};

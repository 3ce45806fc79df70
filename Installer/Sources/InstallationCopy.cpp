// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/Installation.h"

#include "Installer/Sources/AuthorizedExecute.h"
#include "Installer/Sources/LocalizedString.h"
#include "Installer/train/InstallFunction.h"
#include "Platform/Clock.h"
#include "Platform/Log.h"
#include "Platform/Workspace.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/PathComponents.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"
#include "ZTStuff/ZTClasses/ZTInstallerInterface.h"
#include "ZTStuff/ZTClasses/ZTProcess.h"

#include <QFile>
#include <QFileInfo>
#include <QIcon>

#include <future>
#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// The path without links in it, also when its last part does not exist yet: the privileged tool
// goes through none.
QString withoutLinks(const QString &path) {
    const QString canonical = QFileInfo(path).canonicalFilePath();
    const QString parent = deletingLastPathComponent(path);
    if (!canonical.isEmpty() || parent.size() >= path.size())
        return canonical.isEmpty() ? path : canonical;
    return appendingPathComponent(withoutLinks(parent), lastPathComponent(path));
}

// The same for an item that is itself meant, also when it is a link.
QString withoutLinksOnTheWay(const QString &path) {
    return appendingPathComponent(withoutLinks(deletingLastPathComponent(path)),
                                  lastPathComponent(path));
}

} // namespace

std::optional<QString> Installation::installMyselfInDestination(const std::stop_token &stop) {
    const QString destination = destinationPath();
    const bool isWritable = canWriteToPath(destination);
    if (m_forcesAuthorization)
        ZTLog("enforcing authorization");
    if (isWritable && !m_forcesAuthorization) {
        if (auto failure = copyDirectly(stop, zt::CopiedRights::All))
            return failure;
    } else {
        bool canceled = false;
        if (!authorizedInstall(sourcePath(), destination, argument(ZTInstallerKeyWrapperPath),
                               &canceled, stop)) {
            if (canceled) {
                ZTLog("User canceled authorization");
                return QString();
            }
            ZTLog("ERROR -- Could not copy myself to /Applications with authorization");
            return localizationKey("Authorized copying failed.");
        }
    }
    handOver(stop);
    return std::nullopt;
}

zt::Proof Installation::proofFor(const QString &source) const {
    return m_platform.workspace.volumeOf(withoutLinks(source)) ? zt::Proof::Compared
                                                               : zt::Proof::None;
}

std::optional<QString> Installation::copyDirectly(const std::stop_token &stop,
                                                  zt::CopiedRights rights) {
    const auto bytes = [this](const QString &key) {
        return QFile::encodeName(argument(key).value_or(QString())).toStdString();
    };
    InstallPaths paths{.source = bytes(ZTInstallerKeySourcePath),
                       .destination = bytes(ZTInstallerKeyDestinationPath),
                       .wrapper = std::nullopt};
    if (m_arguments.contains(ZTInstallerKeyWrapperPath))
        paths.wrapper = bytes(ZTInstallerKeyWrapperPath);
    const QFileInfo earlierCopy(destinationPath());
    m_hadEarlierCopy = earlierCopy.exists() || earlierCopy.isSymLink();
    const auto hold = holdOffInterruptions();
    const std::stop_callback passOn(stop, [this] { m_copyStop.request_stop(); });
    const InstallResult result = InstallApplication(
        paths, {.trash = m_platform.trash,
                .log = [this](std::string_view line) { m_platform.log.writeLine(line); },
                .noteFileSystemChanged =
                    [this](const std::string &path) {
                        m_platform.workspace.noteFileSystemChanged(QFile::decodeName(path.c_str()));
                    },
                .stop = m_copyStop.get_token(),
                .progress =
                    [this](const zt::CopyProgress &progress) {
                        onMainThread([this, progress] { showCopyProgress(progress); });
                    },
                .rights = rights,
                .proof = proofFor(sourcePath())});
    onMainThread([this] { hideCopyProgress(); });
    switch (result) {
    case InstallResult::Success:
        return std::nullopt;
    case InstallResult::TrashFailed:
        return localizationKey("Could not delete existing copy.");
    case InstallResult::CopyFailed:
        break;
    }
    if (m_copyStop.stop_requested())
        return stoppedMessageKey;
    return localizationKey("Installation failed.");
}

void Installation::stopCopying() {
    ZTLog("User stopped copying");
    m_copyStop.request_stop();
}

bool Installation::authorizedInstall(const QString &source, const QString &to,
                                     const std::optional<QString> &wrap, bool *canceled,
                                     const std::stop_token &stop) {
    if (canceled)
        *canceled = false;
    if (to.trimmed().isEmpty() || source.trimmed().isEmpty())
        return false;
    // Nothing is to move while the system's own dialog waits for an answer.
    onMainThread([this] { animateProgress(Progress::Stopped); });
    const auto authorization = m_platform.authorization.create();
    if (!authorization)
        return false;
    zt::PrivilegedCommand command;
    command.tool = m_platform.bundles.mainBundle().pathForResource(u"train"_s).value_or(QString());
    const QString destination = withoutLinksOnTheWay(to);
    command.arguments = {withoutLinks(source), destination};
    if (wrap)
        command.arguments << withoutLinks(*wrap);
    command.input = m_platform.workspace.registrationForTool(source, destination);
    const std::int32_t status = authorization->requestRight(command, stop);
    if (status != zt::AuthorizationStatus::success) {
        if (canceled)
            *canceled = status == zt::AuthorizationStatus::canceled;
        return false;
    }
    onMainThread([this] { animateProgress(Progress::Running); });
    const auto hold = holdOffInterruptions();
    return AuthorizedExecute(*authorization, command) == 0;
}

std::unique_ptr<zt::InterruptionHold> Installation::holdOffInterruptions() const {
    return m_platform.interruptions.holdOff(
        ZTFormat(localizedString("%@ is being installed."), productName()));
}

// Whether the desktop has an icon for the item. Icons belong to the main thread.
bool Installation::hasIcon(const QString &path, const std::stop_token &stop) {
    const auto answer = std::make_shared<std::promise<bool>>();
    std::future<bool> found = answer->get_future();
    onMainThread([this, path, answer] {
        answer->set_value(!m_platform.workspace.iconForFile(path).isNull());
    });
    // The main thread may be waiting for this one to end.
    while (found.wait_for(20ms) != std::future_status::ready) {
        if (stop.stop_requested())
            return false;
    }
    return found.get();
}

void Installation::registerProduct() const {
    ZTLog("registered app: %d", m_platform.workspace.registerApplication(destinationPath()));
}

// Makes the installed product known and launches it. Whatever fails here, the product is in place.
void Installation::handOver(const std::stop_token &stop) {
    constexpr int launchRetries = 10;
    const QString destination = destinationPath();
    zt::Workspace &workspace = m_platform.workspace;
    ZTLog("successfully copied");
    workspace.noteFileSystemChanged(destination);
    ZTLog("launching %@", destination);
    m_platform.clock.sleepFor(500ms);
    registerProduct();
    m_platform.clock.sleepFor(100ms);
    if (!stop.stop_requested() && !hasIcon(destination, stop)) {
        ZTLog("did not get icon");
        m_platform.clock.sleepFor(1s);
        ZTLog("retry; %@", hasIcon(destination, stop) ? u"succeeded"_s : u"failed"_s);
    }
    bool isOpen = workspace.openFile(destination);
    ZTLog("launched immediately: %d", int(isOpen));
    for (int retry = 0; !isOpen && retry < launchRetries && !stop.stop_requested(); ++retry) {
        m_platform.clock.sleepFor(500ms);
        ZTLog("retry opening");
        isOpen = workspace.openFile(destination);
        ZTLog("launched: %d", int(isOpen));
    }
    // The message that all went well is to be seen over the product's windows.
    if (const auto self = ZTProcess::currentProcess())
        self->setFrontProcessFrontWindowOnly();
}

QString Installation::failureMessage(const QString &messageKey) const {
    QString message = ZTFormat(localizedString(messageKey.toUtf8().constData()), productName());
    if (m_copyStop.stop_requested()) {
        // Whoever stops has changed their mind, and has to know what became of what they had.
        if (m_hadEarlierCopy && !QFileInfo::exists(destinationPath())) {
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

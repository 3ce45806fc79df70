// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/UnattendedInstallation.h"

#include "Installer/Sources/LocalizedString.h"
#include "Platform/Workspace.h"
#include "Platform/posix/TreeCopy.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/PathComponents.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"

#include <QEventLoop>
#include <QFileInfo>

#include <thread>

namespace {

// A message as it stands in a window has several.
QString inOneLine(QString message) {
    return message.replace(u'\r', u' ');
}

} // namespace

UnattendedInstallation::UnattendedInstallation(Environment environment)
    : Installation(environment.platform)
    , m_environment(std::move(environment)) {}

UnattendedInstallation::Outcome UnattendedInstallation::install() {
    Outcome outcome;
    auto found = badArguments();
    if (!found)
        found = obstacle();
    if (found) {
        outcome = *std::move(found);
    } else {
        m_progress.emplace(productName(), m_environment.progressTarget,
                           m_environment.writeProgress);
        QEventLoop loop;
        const std::jthread thread([&] {
            outcome = installThread();
            // Behind all that was to be shown.
            onMainThread([&loop] { loop.quit(); });
        });
        loop.exec();
    }
    ZTLog("unattended: status %d, %@", static_cast<int>(outcome.status), outcome.message);
    return outcome;
}

UnattendedInstallation::Prospect UnattendedInstallation::check() {
    if (auto mistake = badArguments())
        return {.outcome = *std::move(mistake)};
    Prospect prospect{.forecast = forecast(m_stop.get_token()), .outcome = {}};
    if (auto found = obstacle()) {
        prospect.outcome = *std::move(found);
    } else if (prospect.forecast->space.isTooLittle()) {
        prospect.outcome = {
            ExitStatus::CopyFailed,
            ZTFormat(localizedString("There is too little space for %@."), productName())};
    } else {
        prospect.outcome.message = ZTFormat(localizedString("%@ can be installed."), productName());
    }
    return prospect;
}

std::optional<UnattendedInstallation::Outcome> UnattendedInstallation::badArguments() {
    extractArguments(m_environment.argumentVector);
    auto mistake = findProduct();
    if (!mistake)
        mistake = completeArguments();
    if (!mistake && !QFileInfo(sourcePath()).isDir())
        mistake = ZTFormat(localizedString("There is no product at %@."), sourcePath());
    return mistake ? std::optional(Outcome{ExitStatus::BadArguments, *mistake}) : std::nullopt;
}

std::optional<UnattendedInstallation::Outcome> UnattendedInstallation::obstacle() const {
    if (!systemIsSupported()) {
        return Outcome{
            ExitStatus::SystemTooOld,
            ZTFormat(localizedString("%1$@ %2$@ cannot be installed on this computer because it "
                                     "requires Mac OS X %3$@ or newer."),
                     productName(), version(), minimumSystemVersion())};
    }
    if (!canWriteToPath(destinationPath())) {
        return Outcome{ExitStatus::NotAuthorised,
                       ZTFormat(localizedString("Only an administrator may install %1$@ in %2$@. "
                                                "Run the installer with sudo, or choose another "
                                                "place with -destinationPath."),
                                productName(), deletingLastPathComponent(destinationPath()))};
    }
    return std::nullopt;
}

UnattendedInstallation::Outcome UnattendedInstallation::installThread() {
    const std::stop_token stop = m_stop.get_token();
    ZTLog("Install");
    const auto runningCopy = quitRunningCopies(stop);
    if (stop.stop_requested())
        return {ExitStatus::Cancelled, localizedString(stoppedMessageKey.toUtf8().constData())};
    if (runningCopy) {
        ZTLog("%@ refused to quit; installation cancelled", *runningCopy);
        return {ExitStatus::ProductRunning,
                ZTFormat(localizedString("%1$@ cannot be running during the installation. Quit "
                                         "%1$@, then start the installation again."),
                         *runningCopy)};
    }
    const zt::CopiedRights rights = m_environment.registerForAllUsers
                                        ? zt::CopiedRights::ReadingAndRunning
                                        : zt::CopiedRights::All;
    if (const auto messageKey = copyDirectly(stop, rights)) {
        const bool isStopped = *messageKey == stoppedMessageKey;
        return {isStopped ? ExitStatus::Cancelled : ExitStatus::CopyFailed,
                inOneLine(failureMessage(*messageKey))};
    }
    ZTLog("successfully copied");
    platform().workspace.noteFileSystemChanged(destinationPath());
    registerWhereItCounts();
    return {ExitStatus::Done,
            ZTFormat(localizedString("%@ was successfully installed."), productName())};
}

void UnattendedInstallation::registerWhereItCounts() const {
    const auto &forAllUsers = m_environment.registerForAllUsers;
    const QString destination = destinationPath();
    if (!forAllUsers ||
        !forAllUsers(platform().workspace.registrationForTool(destination, destination),
                     destination))
        registerProduct();
}

void UnattendedInstallation::animateProgress(Progress /*progress*/) {}

void UnattendedInstallation::showCopyProgress(const zt::CopyProgress &progress) {
    m_progress->show(progress.bytesDone, progress.bytesInAll);
}

void UnattendedInstallation::hideCopyProgress() {
    m_progress->end();
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the installation would do.

#include "Installer/Sources/Installation.h"

#include "Installer/Sources/ProgramsToQuit.h"
#include "Platform/FileSystems.h"
#include "Platform/ProcessManager.h"
#include "Platform/posix/TreeSize.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/PathComponents.h"
#include "ZTStuff/ZTClasses/ZTInstallerInterface.h"
#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include <QFile>
#include <QFileInfo>

#include <fcntl.h> // AT_FDCWD

using namespace Qt::StringLiterals;

namespace {

// The innermost folder on the way to the item that exists: whose volume it will be on.
QString existingAncestor(const QString &path) {
    QString ancestor = path;
    while (ancestor.size() > 1 && !QFileInfo::exists(ancestor))
        ancestor = deletingLastPathComponent(ancestor);
    return ancestor;
}

std::optional<std::uint64_t> sizeOf(const QString &item, const std::stop_token &stop) {
    // What is copied is what the path leads to.
    const QString path = QFileInfo(item).canonicalFilePath();
    if (path.isEmpty())
        return std::nullopt;
    const std::string name = QFile::encodeName(path).toStdString();
    const zt::Result<std::uint64_t> size =
        zt::treeSize({.folder = AT_FDCWD, .name = name, .path = name}, stop);
    return size ? std::optional(*size) : std::nullopt;
}

QList<Forecast::RunningCopy> runningCopies(const zt::ProcessManager &processManager,
                                           const ProgramsToQuit &toQuit) {
    QList<Forecast::RunningCopy> copies;
    for (const auto &process : ZTProcess::allProcesses()) {
        if (!toQuit.contain(*process))
            continue;
        copies << Forecast::RunningCopy{.name = process->name().value_or(QString()),
                                        .path = process->path().value_or(QString()),
                                        .otherUser = std::nullopt};
    }
    for (const zt::ForeignApplication &application : processManager.applicationsOfOtherUsers()) {
        if (!toQuit.contain(application.signature))
            continue;
        copies << Forecast::RunningCopy{.name = application.name,
                                        .path = application.location,
                                        .otherUser = application.userName};
    }
    return copies;
}

std::optional<Forecast::ExistingCopy> existingCopyAt(const QString &path,
                                                     const zt::Bundles &bundles,
                                                     const std::optional<QString> &newVersion) {
    const QFileInfo item(path);
    if (!item.exists() && !item.isSymLink())
        return std::nullopt;
    Forecast::ExistingCopy copy;
    if (const auto bundle = bundles.bundleAtPath(path))
        copy.version = bundle->stringForKey(u"CFBundleShortVersionString"_s);
    if (copy.version && newVersion)
        copy.ordering = ZTUtilities::compareVersion(*copy.version, *newVersion);
    return copy;
}

} // namespace

Forecast Installation::forecast(const std::stop_token &stop) const {
    const QString destination = destinationPath();
    Forecast forecast{
        .productName = productName(),
        .version = version(),
        .source = sourcePath(),
        .destination = destination,
        .runningCopies =
            runningCopies(m_platform.processManager,
                          ProgramsToQuit(m_arguments.value(ZTInstallerKeyQuitCode).toStringList())),
        .existingCopy = existingCopyAt(destination, m_platform.bundles, version()),
        .space = {},
        .needsAdministrator = !canWriteToPath(destination),
        .systemTooOld = !systemIsSupported(),
        .minimumSystemVersion = minimumSystemVersion(),
    };
    if (const auto available =
            m_platform.fileSystems.availableBytesFor(existingAncestor(destination)))
        forecast.space.available = *available;
    forecast.space.needed = sizeOf(forecast.source, stop);
    return forecast;
}

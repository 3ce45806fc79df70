// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/Installation.h"

#include "Platform/LoginItems.h"
#include "Platform/Workspace.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/PathComponents.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"
#include "ZTStuff/ZTClasses/ZTInstallerInterface.h"
#include "ZTStuff/ZTClasses/ZTProcess.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

QString abbreviatingWithTilde(const QString &path) {
    const QString home = QDir::homePath();
    if (path == home)
        return u"~"_s;
    return path.startsWith(home + u'/') ? u'~' + path.mid(home.size()) : path;
}

} // namespace

std::optional<QString> Installation::findPreferredDestinationFor(const QString &productName) const {
    auto loginItem = autoLaunchPathFor(productName);
    ZTLog("autolaunch = %@", loginItem);
    if (loginItem && !isInUnsupportedFolder(loginItem))
        return loginItem;
    return pathToProcessToReplace();
}

std::optional<QString> Installation::autoLaunchPathFor(const QString &productName) const {
    const auto items = m_platform.loginItems.resolvedPaths();
    if (!items)
        return std::nullopt;
    for (const std::optional<QString> &path : *items) {
        if (path && lastPathComponent(*path).startsWith(productName))
            return path;
    }
    return std::nullopt;
}

std::optional<QString> Installation::pathToProcessToReplace() const {
    const QStringList codes = m_arguments.value(ZTInstallerKeyProductCode).toStringList();
    if (codes.isEmpty())
        return std::nullopt;
    const auto self = ZTProcess::currentProcess();
    const auto pathOfFirst = [&](auto matches) -> std::optional<QString> {
        for (const auto &process : ZTProcess::allProcesses()) {
            if (!matches(process->signature()) || process->isEqual(self.get()))
                continue;
            if (auto path = process->path(); !isInUnsupportedFolder(path))
                return path;
        }
        return std::nullopt;
    };
    // The main signature goes before all others, whatever the order of the processes.
    const FourCharCode mainCode = UTGetOSTypeFromString(codes.first());
    auto path = pathOfFirst([&](FourCharCode signature) { return signature == mainCode; });
    if (!path && codes.size() >= 2) {
        path = pathOfFirst(
            [&](FourCharCode signature) { return signatureIsInArray(signature, codes); });
    }
    return path;
}

bool Installation::isInUnsupportedFolder(const std::optional<QString> &path) const {
    if (!path)
        return false;
    const bool developerBuild = path->contains(u"/build") && path->contains(u"/wex/");
    const bool distributionDisk = path->contains(u"/Volumes/") && path->contains(u"-Install");
    const bool trash = path->contains(u"/Trash/") || path->contains(u"/.Trash/");
    return developerBuild || distributionDisk || trash || path->startsWith(u"/private/var/");
}

QString Installation::applicationsDirectory() const {
    const QStringList local =
        m_platform.workspace.applicationsFolders(zt::Workspace::Domain::Local);
    QString system = local.isEmpty() ? QString() : expandingTilde(local.last());
    if (!system.isEmpty() && canWriteToFileOrDirectory(system))
        return system;
    ZTLog("Can't write to /Applications, checking ~/Applications");
    const QStringList own = m_platform.workspace.applicationsFolders(zt::Workspace::Domain::User);
    const std::optional<QString> user =
        own.isEmpty() ? std::nullopt : std::optional(expandingTilde(own.last()));
    ZTLog("User applicationsDirectory: %@", user);
    return user && canWriteToFileOrDirectory(*user) ? *user : system;
}

bool Installation::canWriteToFileOrDirectory(const QString &path) const {
    return QFileInfo(path).isWritable();
}

bool Installation::canWriteToPath(const QString &path) const {
    if (QFileInfo::exists(path) && !canWriteToFileOrDirectory(path)) {
        ZTLog("Cannot write to item %@", path);
        return false;
    }
    QString ancestor = deletingLastPathComponent(path);
    while (ancestor.size() > 1 && !QFileInfo::exists(ancestor))
        ancestor = deletingLastPathComponent(ancestor);
    if (canWriteToFileOrDirectory(ancestor))
        return true;
    ZTLog("Cannot write to folder %@", ancestor);
    return false;
}

bool Installation::canWriteToFile(const QString &path) const {
    return QFile(path).open(QIODevice::ReadWrite | QIODevice::ExistingOnly);
}

bool Installation::canWriteToDirectory(const QString &folder) const {
    const auto probePath = [&folder](unsigned number) {
        return appendingPathComponent(folder, ZTFormat("temp-%X", number));
    };
    // The first name and the further ones come from generators with states of their own, so that a
    // program that seeds one of them the same way each time still finds a free name.
    QString path = probePath(static_cast<unsigned>(random()));
    while (QFileInfo::exists(path))
        path = probePath(static_cast<unsigned>(std::rand()));
    QFile probe(path);
    if (!probe.open(QIODevice::ReadWrite))
        return false;
    probe.close();
    probe.remove();
    return true;
}

QString Installation::localizedPath(const QString &path) const {
    return recursiveLocalizedPath(abbreviatingWithTilde(path));
}

QString Installation::recursiveLocalizedPath(const QString &path) const {
    if (path.size() < 3)
        return path;
    const QString name = m_platform.workspace.displayName(expandingTilde(path));
    return appendingPathComponent(recursiveLocalizedPath(deletingLastPathComponent(path)), name);
}

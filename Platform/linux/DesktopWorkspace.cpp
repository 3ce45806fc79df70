// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/DesktopWorkspace.h"

#include "Platform/Bundles.h"
#include "Platform/Clock.h"
#include "Platform/Log.h"
#include "Platform/WindowSystem.h"
#include "Platform/linux/AliasTarget.h"
#include "Platform/linux/BundleIconFile.h"
#include "Platform/linux/BundleLaunch.h"
#include "Platform/linux/GLibPointer.h"
#include "Platform/linux/GioLibrary.h"
#include "Platform/linux/MediaVolume.h"
#include "Platform/linux/registration/BundleRecord.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QMimeDatabase>

#include <csignal> // kill

using namespace Qt::StringLiterals;

namespace zt {

namespace {

using namespace std::chrono_literals;

constexpr auto patienceForWindow = 3s;
constexpr auto pollInterval = 20ms;

// The localized name in a folder's ".directory" file, as file managers show it.
QString folderName(const QString &path) {
    const GLibPointer<GKeyFile> file(g_key_file_new());
    const QByteArray record = QFile::encodeName(path + u"/.directory"_s);
    if (!g_key_file_load_from_file(file.get(), record.constData(), G_KEY_FILE_NONE, nullptr))
        return {};
    const GLibPointer<gchar> name(g_key_file_get_locale_string(
        file.get(), G_KEY_FILE_DESKTOP_GROUP, G_KEY_FILE_DESKTOP_KEY_NAME, nullptr, nullptr));
    return QString::fromUtf8(name.get());
}

} // namespace

DesktopWorkspace::DesktopWorkspace(Folders folders, const Services &services)
    : m_folders(std::move(folders))
    , m_services(services)
    , m_registration({m_folders.userData, m_folders.systemData}, services.log) {}

QIcon DesktopWorkspace::iconForFile(const QString &path) {
    if (!QFileInfo::exists(path))
        return {};
    if (const auto bundle = m_services.bundles.bundleAtPath(path)) {
        if (const auto iconPath = iconFileOf(*bundle))
            return QIcon(*iconPath);
        return QIcon::fromTheme(u"application-x-executable"_s);
    }
    const QMimeType type = QMimeDatabase().mimeTypeForFile(path);
    return QIcon::fromTheme(type.iconName(), QIcon::fromTheme(type.genericIconName()));
}

// Comes back once the program shows its first window, so that who wants to be seen before it can
// be; a program without windows is not waited for long.
bool DesktopWorkspace::launch(const Bundle &bundle) {
    const auto pid = launchBundle(bundle, m_folders.home);
    if (!pid)
        return false;
    const auto deadline = m_services.clock.steadyNow() + patienceForWindow;
    while (m_services.clock.steadyNow() < deadline && ::kill(*pid, 0) == 0 &&
           !m_services.windowSystem.processesWithWindows().contains(*pid))
        m_services.clock.sleepFor(pollInterval);
    return true;
}

bool DesktopWorkspace::openFile(const QString &path) {
    if (const auto bundle = m_services.bundles.bundleAtPath(path))
        return launch(*bundle);
    return QFileInfo::exists(path) && openUrl(QUrl::fromLocalFile(path));
}

// A document's handler is found by a program of its own: that may ask the bus, or a file system
// that does not answer.
void DesktopWorkspace::startOpening(const QString &path) {
    if (const auto bundle = m_services.bundles.bundleAtPath(path)) {
        launchBundle(*bundle, m_folders.home);
    } else if (!path.isEmpty() && QFileInfo::exists(path)) {
        launchProgram({u"/usr/bin/gio"_s, u"open"_s, QFileInfo(path).absoluteFilePath()},
                      m_folders.home);
    }
}

std::optional<QString> DesktopWorkspace::targetOfAlias(const QString &path) const {
    return zt::targetOfAlias(path);
}

std::optional<QString> DesktopWorkspace::volumeOf(const QString &path) const {
    if (!path.startsWith(m_folders.root))
        return std::nullopt;
    const auto volume = mediaVolumeOf(path.mid(m_folders.root.size()));
    return volume ? std::optional(m_folders.root + *volume) : std::nullopt;
}

bool DesktopWorkspace::openUrl(const QUrl &url) {
    const GioLibrary *const gio = gioLibrary();
    return gio &&
           gio->g_app_info_launch_default_for_uri(url.toEncoded().constData(), nullptr, nullptr);
}

QString DesktopWorkspace::displayName(const QString &path) const {
    const QString name = QDir::cleanPath(path).section(u'/', -1);
    if (name.isEmpty())
        return u"/"_s;
    // Bundles show without their extension, as other programs do.
    const QString bundleSuffix = u".app"_s;
    if (name.endsWith(bundleSuffix) && name.size() > bundleSuffix.size())
        return name.chopped(bundleSuffix.size());
    const QString localized = folderName(path);
    return localized.isEmpty() ? name : localized;
}

std::int32_t DesktopWorkspace::registerApplication(const QString &path) {
    const auto bundle = m_services.bundles.bundleAtPath(path);
    const Result<ApplicationRecord> record =
        bundle ? recordOfBundle(*bundle, path)
               : Error{"register", QFile::encodeName(path).toStdString(), "it is no bundle"};
    const Result<void> registered =
        record ? m_registration.registerForUser(*record) : Result<void>(record.error());
    if (registered)
        return 0;
    m_services.log.writeLine(registered.error().text());
    return bundle ? RegistrationError::cannotWrite : RegistrationError::notAnApplication;
}

QByteArray DesktopWorkspace::registrationForTool(const QString &bundle,
                                                 const QString &destination) {
    const auto source = m_services.bundles.bundleAtPath(bundle);
    const Result<ApplicationRecord> record =
        source ? recordOfBundle(*source, destination)
               : Error{"register", QFile::encodeName(bundle).toStdString(), "it is no bundle"};
    if (record)
        return QByteArray::fromStdString(packedRecord(*record));
    m_services.log.writeLine(record.error().text());
    return {};
}

void DesktopWorkspace::noteFileSystemChanged(const QString &path) {
    // Programs that watch folders through the kernel learn of changes by themselves. This tells
    // those that keep listings of folders that cannot be watched, such as network volumes.
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    QDBusMessage added =
        QDBusMessage::createSignal(u"/"_s, u"org.kde.KDirNotify"_s, u"FilesAdded"_s);
    added << QUrl::fromLocalFile(QFileInfo(path).path()).toString(QUrl::FullyEncoded);
    bus.send(added);
}

QStringList DesktopWorkspace::applicationsFolders(Domain domain) const {
    switch (domain) {
    case Domain::Local:
        return {m_folders.root + u"/Applications"_s};
    case Domain::User:
        return {m_folders.home + u"/Applications"_s};
    }
    return {};
}

void DesktopWorkspace::beep() {
    QApplication::beep();
}

} // namespace zt

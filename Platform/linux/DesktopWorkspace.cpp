// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/DesktopWorkspace.h"

#include "Platform/Bundles.h"
#include "Platform/linux/GLibPointer.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDir>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace zt {

namespace {

std::optional<QString> iconPathOf(const Bundle &bundle) {
    for (const QString &key : {u"CFBundleIconFile"_s, u"NSIcon"_s}) {
        const auto name = bundle.stringForKey(key);
        if (!name)
            continue;
        for (const QString &type : {u"icns"_s, QString(), u"svg"_s, u"png"_s}) {
            if (auto path = bundle.pathForResource(*name, type))
                return path;
        }
    }
    return std::nullopt;
}

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

DesktopWorkspace::DesktopWorkspace(Folders folders, const Bundles &bundles)
    : m_folders(std::move(folders))
    , m_bundles(bundles) {}

QIcon DesktopWorkspace::iconForFile(const QString &path) {
    if (!QFileInfo::exists(path))
        return {};
    if (const auto bundle = m_bundles.bundleAtPath(path)) {
        if (const auto iconPath = iconPathOf(*bundle))
            return QIcon(*iconPath);
        return QIcon::fromTheme(u"application-x-executable"_s);
    }
    const QMimeType type = QMimeDatabase().mimeTypeForFile(path);
    return QIcon::fromTheme(type.iconName(), QIcon::fromTheme(type.genericIconName()));
}

bool DesktopWorkspace::openFile(const QString &path) {
    if (const auto bundle = m_bundles.bundleAtPath(path)) {
        return !bundle->executablePath().isEmpty() &&
               QProcess::startDetached(bundle->executablePath(), {}, m_folders.home);
    }
    return QFileInfo::exists(path) && openUrl(QUrl::fromLocalFile(path));
}

bool DesktopWorkspace::openUrl(const QUrl &url) {
    return g_app_info_launch_default_for_uri(url.toEncoded().constData(), nullptr, nullptr);
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

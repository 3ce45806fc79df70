// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/AliasTarget.h"

#include "Platform/linux/GLibPointer.h"
#include "Platform/posix/FileContents.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>

#include <cstring>

using namespace Qt::StringLiterals;

namespace zt {

namespace {

constexpr std::size_t largestEntry = 65536;
constexpr int longestChain = 40; // as many as the kernel follows links

// Desktops know entries by this ending, too.
std::optional<QString> targetOfLinkEntry(const QString &path) {
    if (!path.endsWith(".desktop"_L1) || !QFileInfo(path).isFile())
        return std::nullopt;
    const Result<std::string> content =
        readSmallFile(QFile::encodeName(path).toStdString(), largestEntry);
    const auto target =
        content ? pathInLinkEntry(QByteArray::fromStdString(*content)) : std::nullopt;
    return target ? std::optional(QFile::decodeName(*target)) : std::nullopt;
}

bool isThisMachine(const char *host) {
    return !host || *host == '\0' || std::strcmp(host, "localhost") == 0 ||
           QSysInfo::machineHostName() == QString::fromUtf8(host);
}

} // namespace

std::optional<QByteArray> pathInLinkEntry(const QByteArray &entry) {
    const auto length = static_cast<gsize>(entry.size());
    const GLibPointer<GKeyFile> file(g_key_file_new());
    if (length == 0 ||
        !g_key_file_load_from_data(file.get(), entry.constData(), length, G_KEY_FILE_NONE, nullptr))
        return std::nullopt;
    const auto value = [&file](const char *key) {
        return GLibPointer<gchar>(
            g_key_file_get_string(file.get(), G_KEY_FILE_DESKTOP_GROUP, key, nullptr));
    };
    const GLibPointer<gchar> type = value(G_KEY_FILE_DESKTOP_KEY_TYPE);
    const GLibPointer<gchar> address = value(G_KEY_FILE_DESKTOP_KEY_URL);
    if (!type || !address || std::strcmp(type.get(), G_KEY_FILE_DESKTOP_TYPE_LINK) != 0)
        return std::nullopt;
    gchar *host = nullptr;
    const GLibPointer<gchar> path(g_filename_from_uri(address.get(), &host, nullptr));
    const GLibPointer<gchar> ownedHost(host);
    return path && isThisMachine(host) ? std::optional(QByteArray(path.get())) : std::nullopt;
}

std::optional<QString> targetOfAlias(const QString &path) {
    if (path.isEmpty())
        return std::nullopt;
    // A slash at the end would have the link followed already.
    QString item = QDir::cleanPath(path);
    bool isAlias = QFileInfo(item).isSymLink();
    for (int link = 0; link < longestChain; ++link) {
        const QFileInfo end(item);
        if (!end.exists()) // a missing target, or a loop of links
            return std::nullopt;
        item = end.canonicalFilePath();
        const auto target = targetOfLinkEntry(item);
        if (!target)
            return isAlias ? std::optional(item) : std::nullopt;
        item = *target;
        isAlias = true;
    }
    return std::nullopt;
}

} // namespace zt

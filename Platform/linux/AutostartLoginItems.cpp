// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/AutostartLoginItems.h"

#include "Platform/Bundles.h"
#include "Platform/linux/GLibPointer.h"
#include "Platform/linux/GioLibrary.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstring>
#include <string_view>

using namespace Qt::StringLiterals;

namespace zt {

namespace {

bool isSwitchedOff(const GioLibrary &gio, GDesktopAppInfo *entry) {
    if (gio.g_desktop_app_info_get_is_hidden(entry) ||
        !gio.g_desktop_app_info_get_show_in(entry, nullptr))
        return true;
    const char *const enabled = "X-GNOME-Autostart-enabled";
    return gio.g_desktop_app_info_has_key(entry, enabled) &&
           !gio.g_desktop_app_info_get_boolean(entry, enabled);
}

// The program in an argument list: the first word, or behind "env" the first that sets no variable.
const char *programIn(char *const *words) {
    const std::string_view first = *words;
    if (first == "env" || first.ends_with("/env")) {
        ++words;
        while (*words && (std::strchr(*words, '=') || **words == '-'))
            ++words;
    }
    return *words;
}

std::optional<QString> programPath(const GioLibrary &gio, GDesktopAppInfo *entry) {
    // The interface is the object itself; the library's own cast would need the library linked.
    const char *commandLine = gio.g_app_info_get_commandline(reinterpret_cast<GAppInfo *>(entry));
    gchar **list = nullptr;
    if (!commandLine || !g_shell_parse_argv(commandLine, nullptr, &list, nullptr))
        return std::nullopt;
    const GLibPointer<gchar *> words(list);
    const char *program = programIn(list);
    if (!program)
        return std::nullopt;
    const GLibPointer<gchar> path(g_find_program_in_path(program));
    if (!path)
        return std::nullopt;
    const QString resolved = QFileInfo(QFile::decodeName(path.get())).canonicalFilePath();
    return resolved.isEmpty() ? std::nullopt : std::optional(resolved);
}

// The library answers no entry at all for one that is hidden, whose program is missing or that is
// no desktop entry; only the key file tells the first from the others.
bool isMarkedHidden(const QByteArray &path) {
    const GLibPointer<GKeyFile> file(g_key_file_new());
    return g_key_file_load_from_file(file.get(), path.constData(), G_KEY_FILE_NONE, nullptr) &&
           g_key_file_get_boolean(file.get(), G_KEY_FILE_DESKTOP_GROUP,
                                  G_KEY_FILE_DESKTOP_KEY_HIDDEN, nullptr);
}

} // namespace

AutostartLoginItems::AutostartLoginItems(QString configurationFolder, const Bundles &bundles)
    : m_configurationFolder(std::move(configurationFolder))
    , m_bundles(bundles) {}

std::optional<std::vector<std::optional<QString>>> AutostartLoginItems::resolvedPaths() const {
    const QDir folder(m_configurationFolder + u"/autostart"_s);
    const GioLibrary *const gio = folder.isReadable() ? gioLibrary() : nullptr;
    if (!gio)
        return std::nullopt;
    std::vector<std::optional<QString>> paths;
    const QStringList names = folder.entryList({u"*.desktop"_s}, QDir::Files, QDir::Name);
    for (const QString &name : names) {
        const QByteArray file = QFile::encodeName(folder.filePath(name));
        if (isMarkedHidden(file))
            continue;
        const GioPointer<GDesktopAppInfo> entry(
            gio->g_desktop_app_info_new_from_filename(file.constData()));
        if (entry && isSwitchedOff(*gio, entry.get()))
            continue;
        std::optional<QString> path = entry ? programPath(*gio, entry.get()) : std::nullopt;
        if (path) {
            if (const auto bundle = m_bundles.bundleEnclosing(*path))
                path = bundle->path();
        }
        paths.push_back(path);
    }
    return paths;
}

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/registration/DesktopRegistration.h"

#include "Platform/Log.h"
#include "Platform/linux/registration/DataFolder.h"
#include "Platform/posix/SystemCalls.h"

#include <QDir>
#include <QFile>

namespace zt {

namespace {

UniqueFd openDataFolder(const QString &path) {
    return openAt(AT_FDCWD, QFile::encodeName(path).constData(),
                  O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

} // namespace

bool DesktopRegistration::isRegisteredForAll(const ApplicationRecord &record) const {
    for (const QString &path : m_folders.system) {
        const UniqueFd folder = openDataFolder(path);
        const std::string program =
            folder ? programOfEntry(folder.get(), record.identifier) : std::string();
        if (!program.empty()) // the folders that follow do not count any more
            return program == record.bundlePath + '/' + record.executable;
    }
    return false;
}

Result<void> DesktopRegistration::registerForUser(const ApplicationRecord &record) const {
    const std::string path = QFile::encodeName(m_folders.user).toStdString();
    if (isRegisteredForAll(record)) {
        const UniqueFd folder = openDataFolder(m_folders.user);
        if (!folder || programOfEntry(folder.get(), record.identifier).empty())
            return {};
        if (Result<void> removed = removeEntry(folder.get(), record.identifier); !removed)
            return removed;
    } else {
        QDir().mkpath(m_folders.user);
        const UniqueFd folder = openDataFolder(m_folders.user);
        if (!folder)
            return Error::fromErrno("open folder", path);
        if (Result<void> written = writeRegistration(folder.get(), record); !written)
            return written;
    }
    refreshCaches(path, record, [this](std::string_view line) { m_log.writeLine(line); });
    return {};
}

} // namespace zt

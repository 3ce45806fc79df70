// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/registration/DataFolder.h"

#include "Platform/linux/registration/DesktopEntry.h"
#include "Platform/posix/SystemCalls.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>

namespace zt {

namespace {

constexpr int folderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

enum class Missing { IsMade, IsFailure };

// Opens the folder below another one, by a relative path that leads through no link. Nothing is
// owned, and errno set, on failure.
UniqueFd openFolderBelow(int parent, std::string_view path, Missing missing) {
    UniqueFd folder(::fcntl(parent, F_DUPFD_CLOEXEC, 0));
    for (std::size_t begin = 0; folder && begin < path.size();) {
        const std::size_t end = std::min(path.find('/', begin), path.size());
        const std::string name(path.substr(begin, end - begin));
        begin = end + 1;
        if (missing == Missing::IsMade && ::mkdirat(folder.get(), name.c_str(), 0755) != 0 &&
            errno != EEXIST)
            return {};
        folder = openAt(folder.get(), name.c_str(), folderFlags);
    }
    return folder;
}

// The file appears under its name once it is whole.
Result<void> writeFile(int dataFolder, std::string_view folderPath, const std::string &name,
                       std::string_view content) {
    const UniqueFd folder = openFolderBelow(dataFolder, folderPath, Missing::IsMade);
    if (!folder)
        return Error::fromErrno("open folder", std::string(folderPath));
    const std::string path = std::string(folderPath) + '/' + name;
    const std::string unfinished = '.' + name + ".new";
    ::unlinkat(folder.get(), unfinished.c_str(), 0); // of a run that was cut short
    const UniqueFd file = openAt(folder.get(), unfinished.c_str(),
                                 O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0644);
    const bool isWritten =
        file && ::fchmod(file.get(), 0644) == 0 && writeFully(file.get(), content) &&
        flushToMedium(file.get()) &&
        ::renameat(folder.get(), unfinished.c_str(), folder.get(), name.c_str()) == 0;
    if (isWritten)
        return {};
    Error error = Error::fromErrno("write", path);
    ::unlinkat(folder.get(), unfinished.c_str(), 0);
    return error;
}

std::string iconFolder(unsigned size) {
    if (size == ApplicationRecord::Icon::scalable)
        return "icons/hicolor/scalable/apps";
    const std::string number = std::to_string(size);
    return "icons/hicolor/" + number + 'x' + number + "/apps";
}

std::string iconName(const std::string &identifier, unsigned size) {
    return identifier + (size == ApplicationRecord::Icon::scalable ? ".svg" : ".png");
}

// An icon of an earlier version in a size that this one does not have would go on being shown.
void removeOtherIcons(int dataFolder, const ApplicationRecord &record) {
    const auto removeUnlessThere = [&](unsigned size) {
        for (const auto &icon : record.icons) {
            if (icon.size == size)
                return;
        }
        const UniqueFd folder = openFolderBelow(dataFolder, iconFolder(size), Missing::IsFailure);
        if (folder)
            ::unlinkat(folder.get(), iconName(record.identifier, size).c_str(), 0);
    };
    removeUnlessThere(ApplicationRecord::Icon::scalable);
    for (const unsigned size : iconSizes)
        removeUnlessThere(size);
}

std::string entryName(const std::string &identifier) {
    return identifier + ".desktop";
}

} // namespace

Result<void> writeRegistration(int dataFolder, const ApplicationRecord &record) {
    if (Result<void> acceptable = checkRecord(record); !acceptable)
        return acceptable;
    for (const auto &icon : record.icons) {
        if (Result<void> written = writeFile(dataFolder, iconFolder(icon.size),
                                             iconName(record.identifier, icon.size), icon.content);
            !written)
            return written;
    }
    removeOtherIcons(dataFolder, record);
    if (!record.newFileTypes.empty()) {
        if (Result<void> written = writeFile(dataFolder, "mime/packages",
                                             record.identifier + ".xml", mimePackageText(record));
            !written)
            return written;
    }
    return writeFile(dataFolder, "applications", entryName(record.identifier),
                     desktopEntryText(record));
}

Result<void> removeEntry(int dataFolder, const std::string &identifier) {
    const UniqueFd folder = openFolderBelow(dataFolder, "applications", Missing::IsFailure);
    const std::string name = entryName(identifier);
    if (folder && ::unlinkat(folder.get(), name.c_str(), 0) != 0 && errno != ENOENT)
        return Error::fromErrno("remove", name);
    return {};
}

std::string programOfEntry(int dataFolder, const std::string &identifier) {
    const UniqueFd folder = openFolderBelow(dataFolder, "applications", Missing::IsFailure);
    const UniqueFd file = folder ? openAt(folder.get(), entryName(identifier).c_str(),
                                          O_RDONLY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK)
                                 : UniqueFd();
    std::array<char, 65536> bytes{};
    const ssize_t count = file ? readFully(file.get(), bytes.data(), bytes.size()) : 0;
    const std::string_view text(bytes.data(), count > 0 ? std::size_t(count) : 0);
    constexpr std::string_view key = "\nTryExec=";
    const std::size_t begin = text.find(key);
    if (begin == std::string_view::npos)
        return {};
    std::string_view value = text.substr(begin + key.size());
    value = value.substr(0, value.find('\n'));
    std::string path; // backslashes are the only escapes that paths without control characters have
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] == '\\' && i + 1 < value.size())
            ++i;
        path += value[i];
    }
    return path;
}

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/TreeSize.h"

#include "Platform/macos/ItemCopy.h"
#include "Platform/posix/SystemCalls.h"

#include <dirent.h>

#include <memory>
#include <string_view>

namespace zt {

namespace {

struct FolderDeleter {
    void operator()(DIR *folder) const { ::closedir(folder); }
};

Result<std::uint64_t> sizeOfFolder(const ItemPlace &item, const std::stop_token &stop) {
    UniqueFd opened = openAt(item.folder, item.name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW);
    const std::unique_ptr<DIR, FolderDeleter> folder(opened ? ::fdopendir(opened.get()) : nullptr);
    if (!folder)
        return Error::fromErrno("open", item.path);
    const int descriptor = opened.release(); // the folder closes it
    std::uint64_t size = 0;
    errno = 0;
    while (const dirent *const entry = ::readdir(folder.get())) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") {
            const Result<std::uint64_t> part =
                treeSize({descriptor, entry->d_name, item.path + '/' + entry->d_name}, stop);
            if (!part)
                return part;
            size += *part;
        }
        errno = 0;
    }
    if (errno != 0)
        return Error::fromErrno("read", item.path);
    return size;
}

} // namespace

Result<std::uint64_t> treeSize(const ItemPlace &item, const std::stop_token &stop) {
    if (stop.stop_requested())
        return stoppedCopyError(item.path);
    const std::optional<struct stat> status = statusAt(item.folder, item.name.c_str());
    if (!status)
        return Error::fromErrno("find", item.path);
    if (S_ISDIR(status->st_mode))
        return sizeOfFolder(item, stop);
    return S_ISREG(status->st_mode) ? std::uint64_t(status->st_size) : 0;
}

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/train/TrustedFolder.h"

#include "Platform/posix/SystemCalls.h"

#include <linux/magic.h> // FUSE_SUPER_MAGIC
#include <sys/vfs.h>

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace zt {

namespace {

constexpr std::array<std::string_view, 13> systemFolders = {
    "/bin",  "/boot", "/dev", "/etc",  "/lib", "/lib32", "/lib64",
    "/proc", "/root", "/run", "/sbin", "/sys", "/var",
};

bool isAtOrBelow(std::string_view path, std::string_view folder) {
    return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

Error notTrusted(std::string path, std::string reason) {
    return {"trust", std::move(path), std::move(reason), EPERM};
}

Result<void> checkTrusted(int folder, const std::string &path) {
    const std::optional<struct stat> status = statusOf(folder);
    struct statfs volume = {};
    if (!status || retryInterrupted([&] { return ::fstatfs(folder, &volume); }) != 0)
        return Error::fromErrno("examine", path);
    if (std::string reason = reasonNotToTrust(*status); !reason.empty())
        return notTrusted(path, std::move(reason));
    // Such a volume is a program, which a user may have started: it shows whatever it likes.
    if (volume.f_type == FUSE_SUPER_MAGIC)
        return notTrusted(path, "it lies on a volume that a program makes up");
    return {};
}

} // namespace

std::string reasonNotToTrust(const struct stat &folder) {
    if (folder.st_uid != 0)
        return "it belongs to another user than root";
    if ((folder.st_mode & S_IWGRP) != 0)
        return "its group, or somebody by its access list, may write to it";
    if ((folder.st_mode & S_IWOTH) != 0)
        return "everybody may write to it";
    return {};
}

Result<UniqueFd> openTrustedFolder(const std::string &path) {
    constexpr int flags = O_DIRECTORY | O_NOFOLLOW;
    UniqueFd folder = openAt(AT_FDCWD, "/", O_PATH | flags);
    if (!folder)
        return Error::fromErrno("open", "/");
    if (Result<void> checked = checkTrusted(folder.get(), "/"); !checked)
        return checked.error();
    for (std::size_t begin = 1; begin < path.size();) {
        const std::size_t end = std::min(path.find('/', begin), path.size());
        folder = openAt(folder.get(), path.substr(begin, end - begin).c_str(), O_PATH | flags);
        if (!folder)
            return Error::fromErrno("open", path.substr(0, end));
        if (Result<void> checked = checkTrusted(folder.get(), path.substr(0, end)); !checked)
            return checked.error();
        begin = end + 1;
    }
    UniqueFd readable = openAt(folder.get(), ".", O_RDONLY | O_DIRECTORY);
    if (!readable)
        return Error::fromErrno("open", path);
    return readable;
}

bool belongsToTheSystem(const std::string &path) {
    if (path == "/")
        return true;
    // Of all that lies there, one folder is left to what an administrator installs by hand.
    if (isAtOrBelow(path, "/usr"))
        return !isAtOrBelow(path, "/usr/local");
    return std::any_of(systemFolders.begin(), systemFolders.end(),
                       [&](std::string_view folder) { return isAtOrBelow(path, folder); });
}

} // namespace zt

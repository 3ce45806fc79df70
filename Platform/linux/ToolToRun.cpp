// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/ToolToRun.h"

#include "Platform/posix/SystemCalls.h"

#include <sys/sendfile.h>
#include <sys/statvfs.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <utility>
#include <vector>

namespace zt {

namespace {

constexpr long fuseFileSystem = 0x65735546; // FUSE_SUPER_MAGIC of linux/magic.h

bool belongsToRootOrThisUser(const struct stat &item) {
    return item.st_uid == 0 || item.st_uid == ::getuid();
}

// Nobody else can change what is in the folder, or what root and this user have in it.
bool isSafeFolder(const struct stat &folder) {
    constexpr mode_t writableForOthers = S_IWGRP | S_IWOTH;
    const bool isSticky = (folder.st_mode & S_ISVTX) != 0;
    return belongsToRootOrThisUser(folder) &&
           ((folder.st_mode & writableForOthers) == 0 || isSticky);
}

std::optional<std::string> canonicalPath(const std::string &path) {
    char *const resolved = ::realpath(path.c_str(), nullptr);
    if (!resolved)
        return std::nullopt;
    std::string result = resolved;
    std::free(resolved);
    return result;
}

// Folders of this user's own, the one that lives shortest first.
std::vector<std::string> placesForCopies() {
    std::vector<std::string> places;
    for (const char *variable : {"XDG_RUNTIME_DIR", "TMPDIR"}) {
        const char *const value = std::getenv(variable);
        if (value && *value == '/')
            places.emplace_back(value);
    }
    places.emplace_back("/tmp");
    return places;
}

bool canRunProgramsFrom(const std::string &folder) {
    struct statvfs volume {};
    return ::statvfs(folder.c_str(), &volume) == 0 && (volume.f_flag & ST_NOEXEC) == 0;
}

Result<void> copyContent(int source, int target, const std::string &path) {
    constexpr std::size_t atOnce = std::size_t(1) << 20;
    for (;;) {
        const ssize_t count =
            retryInterrupted([&] { return ::sendfile(target, source, nullptr, atOnce); });
        if (count == 0)
            return {};
        if (count < 0)
            return Error::fromErrno("copy", path);
    }
}

} // namespace

bool isSafeWhereItLies(const std::string &toolPath) {
    const auto path = canonicalPath(toolPath);
    const auto file = path ? statusAt(AT_FDCWD, path->c_str()) : std::nullopt;
    if (!file || !S_ISREG(file->st_mode) || !belongsToRootOrThisUser(*file) ||
        (file->st_mode & (S_IWGRP | S_IWOTH)) != 0)
        return false;
    for (std::size_t slash = path->rfind('/'); slash != std::string::npos;
         slash = slash == 0 ? std::string::npos : path->rfind('/', slash - 1)) {
        const auto folder = statusAt(AT_FDCWD, slash == 0 ? "/" : path->substr(0, slash).c_str());
        if (!folder || !isSafeFolder(*folder))
            return false;
    }
    // Even root cannot look into what another user has mounted that way.
    struct statfs volume {};
    return ::statfs(path->c_str(), &volume) == 0 && volume.f_type != fuseFileSystem;
}

ToolToRun::ToolToRun(std::string path, std::string copyFolder)
    : m_path(std::move(path))
    , m_copyFolder(std::move(copyFolder)) {}

ToolToRun::ToolToRun(ToolToRun &&other) noexcept
    : m_path(std::move(other.m_path))
    , m_copyFolder(std::exchange(other.m_copyFolder, {})) {}

ToolToRun &ToolToRun::operator=(ToolToRun &&other) noexcept {
    if (this == &other)
        return *this;
    removeCopy();
    m_path = std::move(other.m_path);
    m_copyFolder = std::exchange(other.m_copyFolder, {});
    return *this;
}

ToolToRun::~ToolToRun() {
    removeCopy();
}

void ToolToRun::removeCopy() {
    if (m_copyFolder.empty())
        return;
    ::unlink(m_path.c_str());
    ::rmdir(m_copyFolder.c_str());
    m_copyFolder.clear();
}

Result<ToolToRun> ToolToRun::prepare(const std::string &toolPath) {
    if (isSafeWhereItLies(toolPath))
        return ToolToRun(*canonicalPath(toolPath));
    // What is opened here is what will run, whatever becomes of the path.
    const UniqueFd source = openAt(AT_FDCWD, toolPath.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY);
    if (!source)
        return Error::fromErrno("open", toolPath);
    for (const std::string &place : placesForCopies()) {
        std::string folder = place + "/velmora-XXXXXX";
        if (!canRunProgramsFrom(place) || !::mkdtemp(folder.data()))
            continue;
        ToolToRun copy(folder + "/train", folder); // removes itself on failure
        const UniqueFd target =
            openAt(AT_FDCWD, copy.path().c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0700);
        if (!target)
            return Error::fromErrno("create", copy.path());
        if (Result<void> copied = copyContent(source.get(), target.get(), copy.path()); !copied)
            return copied.error();
        return copy;
    }
    return Error{"copy", toolPath, "there is no folder that programs can be run from"};
}

} // namespace zt

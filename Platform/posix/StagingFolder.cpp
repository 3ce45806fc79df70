// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/StagingFolder.h"

#include "Platform/posix/DirectoryReader.h"
#include "Platform/posix/FileSystemIdentity.h"
#include "Platform/posix/SystemCalls.h"
#include "Platform/posix/TreeRemoval.h"

#include <sys/file.h>
#include <sys/random.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <utility>
#include <vector>

namespace zt {

namespace {

constexpr std::string_view prefix = ".VelmoraInstaller-";
constexpr std::size_t randomDigits = 16;
constexpr std::string_view siblingSuffix = ".item";
constexpr int folderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW;

Result<std::string> newName() {
    std::uint64_t random = 0;
    if (::getrandom(&random, sizeof random, 0) != static_cast<ssize_t>(sizeof random))
        return Error::fromErrno("get", "random bytes");
    std::array<char, randomDigits + 1> digits = {};
    std::snprintf(digits.data(), digits.size(), "%016llx", static_cast<unsigned long long>(random));
    return std::string(prefix) + std::to_string(::getpid()) + '-' + digits.data();
}

enum class Lock { Taken, InOtherHands, Unsupported };

// Locks the folder unless another process has it locked, or has removed it meanwhile.
Lock lock(int parent, const std::string &name, int folder) {
    if (retryInterrupted([&] { return ::flock(folder, LOCK_EX | LOCK_NB); }) != 0)
        return errno == EWOULDBLOCK ? Lock::InOtherHands : Lock::Unsupported;
    const std::optional<struct stat> opened = statusOf(folder);
    const std::optional<struct stat> named = statusAt(parent, name.c_str());
    return opened && named && isSameItem(*opened, *named) ? Lock::Taken : Lock::InOtherHands;
}

// What the parent folder hands down to new folders must not get into copies.
bool clearInheritedRights(int folder) {
    static_cast<void>(::fremovexattr(folder, "system.posix_acl_default"));
    static_cast<void>(::fremovexattr(folder, "system.posix_acl_access"));
    return ::fchmod(folder, S_IRWXU) == 0;
}

void removeAbandoned(int parent, const std::string &name) {
    const UniqueFd folder = openAt(parent, name.c_str(), folderFlags);
    if (!folder)
        return;
    const std::optional<struct stat> status = statusOf(folder.get());
    if (!status || status->st_uid != FileSystemIdentity::current().user ||
        lock(parent, name, folder.get()) != Lock::Taken)
        return;
    if (removeTree(parent, (name + std::string(siblingSuffix)).c_str()))
        static_cast<void>(removeTree(parent, name.c_str()));
}

} // namespace

StagingFolder::StagingFolder(int parent, std::string name, std::string path, UniqueFd folder)
    : m_parent(parent)
    , m_name(std::move(name))
    , m_path(std::move(path))
    , m_folder(std::move(folder)) {}

StagingFolder::StagingFolder(StagingFolder &&other) noexcept
    : m_parent(other.m_parent)
    , m_name(std::exchange(other.m_name, {}))
    , m_path(std::move(other.m_path))
    , m_folder(std::move(other.m_folder)) {}

StagingFolder::~StagingFolder() {
    static_cast<void>(remove());
}

Result<StagingFolder> StagingFolder::make(int parent, const std::string &parentPath) {
    // Another process that sweeps just now may take the new folder for an abandoned one before it
    // is locked; the next name is free of that. Where nothing can be locked, nothing is swept.
    for (;;) {
        const Result<std::string> name = newName();
        if (!name)
            return name.error();
        std::string path = parentPath == "/" ? '/' + *name : parentPath + '/' + *name;
        if (::mkdirat(parent, name->c_str(), S_IRWXU) != 0)
            return Error::fromErrno("make folder", std::move(path));
        UniqueFd folder = openAt(parent, name->c_str(), folderFlags);
        if (!folder && errno == ENOENT)
            continue;
        if (folder && lock(parent, *name, folder.get()) == Lock::InOtherHands)
            continue;
        if (!folder || !clearInheritedRights(folder.get())) {
            Error error = Error::fromErrno("open", std::move(path));
            static_cast<void>(::unlinkat(parent, name->c_str(), AT_REMOVEDIR));
            return error;
        }
        return StagingFolder(parent, *name, std::move(path), std::move(folder));
    }
}

std::string StagingFolder::siblingName() const {
    return m_name + std::string(siblingSuffix);
}

Result<void> StagingFolder::remove() {
    if (m_name.empty())
        return {};
    if (Result<void> removed = removeTree(m_parent, siblingName().c_str()); !removed)
        return removed;
    Result<void> removed = removeTree(m_parent, m_name.c_str());
    if (removed)
        m_name.clear();
    return removed;
}

bool StagingFolder::isName(std::string_view name) {
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (!name.starts_with(prefix))
        return false;
    name.remove_prefix(prefix.size());
    const std::size_t dash = name.find('-');
    if (dash == 0 || dash == std::string_view::npos || name.size() - dash - 1 != randomDigits)
        return false;
    const std::string_view process = name.substr(0, dash);
    const std::string_view random = name.substr(dash + 1);
    return std::all_of(process.begin(), process.end(), isDigit) &&
           std::all_of(random.begin(), random.end(),
                       [&](char c) { return isDigit(c) || (c >= 'a' && c <= 'f'); });
}

void StagingFolder::sweep(int parent) {
    // Opened anew, for a position of its own.
    const UniqueFd folder = openAt(parent, ".", O_RDONLY | O_DIRECTORY);
    if (!folder)
        return;
    std::vector<std::string> found;
    alignas(std::uint64_t) std::array<std::byte, 16384> buffer;
    DirectoryReader reader(folder.get(), buffer);
    while (const DirectoryReader::Entry *entry = reader.next()) {
        if (isName(entry->name))
            found.emplace_back(entry->name);
    }
    for (const std::string &name : found)
        removeAbandoned(parent, name);
}

} // namespace zt

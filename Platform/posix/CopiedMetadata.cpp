// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/CopiedMetadata.h"

#include "Platform/posix/FileContents.h"
#include "Platform/posix/SystemCalls.h"

#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <ctime>
#include <utility>

namespace zt {

namespace {

constexpr mode_t permissionBits = S_IRWXU | S_IRWXG | S_IRWXO;

// What a copy takes over that only its owner may write to.
constexpr mode_t sharedBits = S_IRWXU | S_IRGRP | S_IXGRP | S_IROTH | S_IXOTH;

// The largest list of names and the largest value that Linux allows.
constexpr std::size_t maximumAttributeSize = std::size_t(64) * 1024;

// This process's mask for new files, without changing it as umask() would.
mode_t creationMask() {
    constexpr std::string_view label = "Umask:";
    const Result<std::string> status = readSmallFile("/proc/self/status", maximumAttributeSize);
    const std::size_t place = status ? status->find(label) : std::string::npos;
    // Without an answer every mode is taken to be masked, and is set.
    if (place == std::string::npos)
        return permissionBits;
    return static_cast<mode_t>(std::strtoul(status->c_str() + place + label.size(), nullptr, 8));
}

// The groups that this process may give its files to.
std::vector<gid_t> ownGroups() {
    const int count = ::getgroups(0, nullptr);
    std::vector<gid_t> groups(count > 0 ? static_cast<std::size_t>(count) : 0);
    if (!groups.empty() && ::getgroups(count, groups.data()) != count)
        groups.clear();
    groups.push_back(FileSystemIdentity::current().group);
    return groups;
}

// Names of attributes, each ended by a NUL; empty when there are none.
Result<std::string> attributeNames(int descriptor) {
    std::array<char, 1024> buffer;
    ssize_t size = ::flistxattr(descriptor, buffer.data(), buffer.size());
    if (size >= 0)
        return std::string(buffer.data(), static_cast<std::size_t>(size));
    if (errno == ENOTSUP)
        return std::string();
    if (errno != ERANGE)
        return Error::fromErrno("list the attributes of", {});
    std::string names(maximumAttributeSize, '\0');
    size = ::flistxattr(descriptor, names.data(), names.size());
    if (size < 0)
        return Error::fromErrno("list the attributes of", {});
    names.resize(static_cast<std::size_t>(size));
    return names;
}

bool isAccessList(std::string_view attribute) {
    return attribute.starts_with("system.posix_acl_");
}

// Attributes of the system's own, which only a privileged process sets.
bool needsPrivilege(std::string_view attribute) {
    return attribute.starts_with("security.") || attribute.starts_with("trusted.");
}

// Whether the file system cannot keep such an attribute, rather than fail to.
bool meansCannotKeep(int code) {
    return code == ENOTSUP || code == EPERM || code == EACCES || code == E2BIG || code == ENOSPC ||
           code == ERANGE || code == EINVAL;
}

bool isTakenOver(std::string_view attribute, CopiedRights rights) {
    return rights == CopiedRights::All || attribute.starts_with("user.");
}

mode_t modeWithoutLentRights(const struct stat &original) {
    const mode_t ofOwner = S_ISDIR(original.st_mode) ? S_IRWXU : S_IRUSR | S_IWUSR;
    return (original.st_mode & sharedBits) | ofOwner;
}

std::array<timespec, 2> timesOf(const struct stat &status) {
    return {status.st_atim, status.st_mtim};
}

} // namespace

CopiedMetadata::CopiedMetadata(const struct stat &newItem, CopiedRights rights,
                               const std::optional<FileSystemIdentity> &writer,
                               std::function<void(std::string_view)> note)
    : m_rights(rights)
    , m_writer(writer)
    , m_owner(writer.value_or(FileSystemIdentity::current()))
    , m_newUser(newItem.st_uid)
    , m_newGroup(newItem.st_gid)
    , m_mask(creationMask())
    , m_isPrivileged(m_owner.user == 0)
    , m_groups(ownGroups())
    , m_note(std::move(note)) {}

mode_t CopiedMetadata::creationMode(const struct stat &original, CopiedRights rights) {
    const mode_t taken = rights == CopiedRights::All ? permissionBits : sharedBits;
    return (original.st_mode & taken) | (S_ISDIR(original.st_mode) ? S_IRWXU : S_IWUSR);
}

bool CopiedMetadata::isModeOfCopy(const struct stat &original, const struct stat &copy,
                                  CopiedRights rights) {
    const mode_t mode = original.st_mode & ~static_cast<mode_t>(S_IFMT);
    const mode_t found = copy.st_mode & ~static_cast<mode_t>(S_IFMT);
    if (rights == CopiedRights::ReadingAndRunning)
        return found == modeWithoutLentRights(original);
    constexpr mode_t lendingBits = S_ISUID | S_ISGID;
    return (found & ~lendingBits) == (mode & ~lendingBits) && (found & ~mode) == 0;
}

Result<std::string>
CopiedMetadata::differingAttribute(int original, int copy, CopiedRights rights,
                                   const std::optional<FileSystemIdentity> &writer) {
    const Result<std::string> names = attributeNames(original);
    if (!names)
        return names.error();
    std::string ofOriginal(names->empty() ? 0 : maximumAttributeSize, '\0');
    std::string ofCopy(names->empty() ? 0 : maximumAttributeSize, '\0');
    for (std::size_t place = 0; place < names->size();) {
        std::string name = names->c_str() + place;
        place += name.size() + 1;
        if (needsPrivilege(name) || !isTakenOver(name, rights))
            continue;
        const ssize_t size =
            ::fgetxattr(original, name.c_str(), ofOriginal.data(), ofOriginal.size());
        if (size < 0)
            return Error::fromErrno("read the attribute " + name + " of", {});
        const ActingAs writing(writer);
        const ssize_t found = ::fgetxattr(copy, name.c_str(), ofCopy.data(), ofCopy.size());
        if (found < 0 && (errno == ENODATA || errno == ENOTSUP))
            continue;
        if (found != size || ofOriginal.compare(0, static_cast<std::size_t>(size), ofCopy, 0,
                                                static_cast<std::size_t>(size)) != 0)
            return name;
    }
    return std::string();
}

bool CopiedMetadata::mayGive(gid_t group) const {
    return m_isPrivileged || std::find(m_groups.begin(), m_groups.end(), group) != m_groups.end();
}

// New files get another owner than their writer where the folder or the file system decides it.
Result<CopiedMetadata::Ownership> CopiedMetadata::applyOwnOwner(int copy) const {
    Ownership ownership;
    if (m_newUser == m_owner.user && m_newGroup == m_owner.group)
        return ownership;
    if (::fchown(copy, m_owner.user, m_owner.group) != 0)
        return Error::fromErrno("set the owner of", {});
    ownership.wasSet = true;
    return ownership;
}

Result<CopiedMetadata::Ownership> CopiedMetadata::applyOwner(int copy,
                                                             const struct stat &status) const {
    const ActingAs writing(m_writer);
    if (m_rights == CopiedRights::ReadingAndRunning)
        return applyOwnOwner(copy);
    Ownership ownership{.userIsKept = status.st_uid == m_newUser,
                        .groupIsKept = status.st_gid == m_newGroup};
    const bool setsUser = !ownership.userIsKept && m_isPrivileged;
    const bool setsGroup = !ownership.groupIsKept && mayGive(status.st_gid);
    if (!setsUser && !setsGroup)
        return ownership;
    constexpr auto unchangedUser = static_cast<uid_t>(-1);
    constexpr auto unchangedGroup = static_cast<gid_t>(-1);
    if (::fchown(copy, setsUser ? status.st_uid : unchangedUser,
                 setsGroup ? status.st_gid : unchangedGroup) == 0) {
        ownership.userIsKept |= setsUser;
        ownership.groupIsKept |= setsGroup;
        ownership.wasSet = true;
    }
    return ownership;
}

bool CopiedMetadata::needsMode(const struct stat &status, mode_t mode,
                               const Ownership &ownership) const {
    return (creationMode(status, m_rights) & ~m_mask) != mode || ownership.wasSet;
}

mode_t CopiedMetadata::modeOf(const struct stat &status, const Ownership &ownership) const {
    mode_t mode = status.st_mode & ~static_cast<mode_t>(S_IFMT);
    if (m_rights == CopiedRights::ReadingAndRunning)
        return modeWithoutLentRights(status);
    if (!ownership.userIsKept)
        mode &= ~static_cast<mode_t>(S_ISUID);
    if (!ownership.groupIsKept && !S_ISDIR(status.st_mode))
        mode &= ~static_cast<mode_t>(S_ISGID);
    return mode;
}

Result<void> CopiedMetadata::copyAttribute(int original, int copy, const std::string &name) const {
    std::array<char, 1024> small;
    std::string large;
    const char *value = small.data();
    ssize_t size = ::fgetxattr(original, name.c_str(), small.data(), small.size());
    if (size < 0 && errno == ERANGE) {
        large.resize(maximumAttributeSize);
        size = ::fgetxattr(original, name.c_str(), large.data(), large.size());
        value = large.data();
    }
    if (size >= 0) {
        const ActingAs writing(m_writer);
        if (::fsetxattr(copy, name.c_str(), value, static_cast<std::size_t>(size), 0) == 0)
            return {};
    }
    // An attribute that was there a moment ago and is gone is not missed.
    if (errno == ENODATA || (needsPrivilege(name) && meansCannotKeep(errno)))
        return {};
    if (!meansCannotKeep(errno))
        return Error::fromErrno("copy the attribute " + name + " of", {});
    if (m_note && !m_hasNoted.exchange(true)) {
        m_note("Attributes such as " + name +
               " cannot be kept at the destination and are left out");
    }
    return {};
}

Result<void> CopiedMetadata::copyAttributes(int original, int copy, const std::string &names,
                                            bool accessLists) const {
    for (std::size_t place = 0; place < names.size();) {
        const std::string name = names.c_str() + place;
        place += name.size() + 1;
        if (isAccessList(name) != accessLists || !isTakenOver(name, m_rights))
            continue;
        if (Result<void> copied = copyAttribute(original, copy, name); !copied)
            return copied;
    }
    return {};
}

Result<void> CopiedMetadata::applyMode(int copy, const struct stat &status,
                                       const Ownership &ownership) const {
    const ActingAs writing(m_writer);
    const mode_t mode = modeOf(status, ownership);
    if (needsMode(status, mode, ownership) && ::fchmod(copy, mode) != 0)
        return Error::fromErrno("set the mode of", {});
    return {};
}

Result<void> CopiedMetadata::apply(int original, int copy, const struct stat &status) const {
    const Result<std::string> names = attributeNames(original);
    if (!names)
        return names.error();
    const Result<Ownership> ownership = applyOwner(copy, status);
    if (!ownership)
        return ownership.error();
    // Attributes come before the mode, which may forbid to set them; access lists after it, for it
    // would change them.
    if (Result<void> copied = copyAttributes(original, copy, *names, false); !copied)
        return copied;
    if (Result<void> applied = applyMode(copy, status, *ownership); !applied)
        return applied;
    if (Result<void> copied = copyAttributes(original, copy, *names, true); !copied)
        return copied;
    const ActingAs writing(m_writer);
    if (::futimens(copy, timesOf(status).data()) != 0)
        return Error::fromErrno("set the times of", {});
    return {};
}

Result<void> CopiedMetadata::applyToLink(int folder, const char *name,
                                         const struct stat &status) const {
    const ActingAs writing(m_writer);
    const FileSystemIdentity owner =
        m_rights == CopiedRights::All ? FileSystemIdentity{status.st_uid, status.st_gid} : m_owner;
    const bool hasOtherOwner = owner != FileSystemIdentity{m_newUser, m_newGroup};
    // A link's owner has no effect; where it cannot be kept, nothing is lost.
    if (m_isPrivileged && hasOtherOwner) {
        [[maybe_unused]] const int owned =
            ::fchownat(folder, name, owner.user, owner.group, AT_SYMLINK_NOFOLLOW);
    }
    if (::utimensat(folder, name, timesOf(status).data(), AT_SYMLINK_NOFOLLOW) != 0)
        return Error::fromErrno("set the times of", {});
    return {};
}

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/TreeRemoval.h"

#include "Platform/posix/DirectoryReader.h"
#include "Platform/posix/SystemCalls.h"

#include <dirent.h>
#include <sys/stat.h>

#include <array>
#include <cstdint>
#include <optional>

namespace zt {

namespace {

// Folders below this depth are moved up, so that descriptors and stack stay bounded.
constexpr int maximumDepth = 48;

struct MountPlace {
    std::uint64_t mount = 0; // the mount that the item is reached through
    bool isRoot = false;     // whether something is mounted right there
};

// An empty name stands for the open folder itself.
std::optional<MountPlace> mountPlace(int folder, const char *name) {
    struct statx status = {};
    if (::statx(folder, name, AT_EMPTY_PATH | AT_SYMLINK_NOFOLLOW, STATX_MNT_ID, &status) != 0)
        return std::nullopt;
    return MountPlace{status.stx_mnt_id, (status.stx_attributes & STATX_ATTR_MOUNT_ROOT) != 0};
}

class Removal {
public:
    Removal(int folder, const char *name) : m_folder(folder), m_name(name) {}

    Result<void> run();

private:
    bool removeItem(int folder, const char *name, unsigned char type, int depth);
    bool removeFolder(int parent, const char *name, int depth);
    bool emptyFolder(int folder, int depth);
    bool moveUp(int folder, const char *name);
    UniqueFd openFolder(int parent, const char *name) const;

    int m_folder;
    const char *m_name;
    std::uint64_t m_mount = 0;
    int m_root = -1;
    unsigned m_movedUp = 0;
};

UniqueFd Removal::openFolder(int parent, const char *name) const {
    constexpr int flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW;
    UniqueFd folder = openAt(parent, name, flags);
    if (!folder && errno == EACCES && ::fchmodat(parent, name, S_IRWXU, AT_SYMLINK_NOFOLLOW) == 0)
        folder = openAt(parent, name, flags);
    if (!folder)
        return folder;
    const std::optional<MountPlace> place = mountPlace(folder.get(), "");
    if (!place)
        return {};
    // A mounted volume is not part of the item: its content must not go with it.
    if (place->mount != m_mount || place->isRoot) {
        errno = EBUSY;
        return {};
    }
    return folder;
}

bool Removal::moveUp(int folder, const char *name) {
    for (;;) {
        const std::string higher = ".deep-" + std::to_string(m_movedUp++);
        if (renameWithoutReplacing(folder, name, m_root, higher.c_str()))
            return true;
        if (errno == EACCES && ::fchmodat(folder, name, S_IRWXU, AT_SYMLINK_NOFOLLOW) == 0 &&
            renameWithoutReplacing(folder, name, m_root, higher.c_str()))
            return true;
        if (errno != EEXIST)
            return false;
    }
}

bool Removal::removeItem(int folder, const char *name, unsigned char type, int depth) {
    if (type != DT_DIR) {
        if (::unlinkat(folder, name, 0) == 0 || errno == ENOENT)
            return true;
        if (errno != EISDIR)
            return false;
    }
    if (depth >= maximumDepth)
        return moveUp(folder, name);
    return removeFolder(folder, name, depth);
}

bool Removal::emptyFolder(int folder, int depth) {
    alignas(std::uint64_t) std::array<std::byte, 4096> buffer;
    // Removing while reading may hide entries from the reading, so it is repeated until it finds
    // nothing more.
    for (bool removedAny = true; removedAny;) {
        removedAny = false;
        if (::lseek(folder, 0, SEEK_SET) != 0)
            return false;
        DirectoryReader reader(folder, buffer);
        while (const DirectoryReader::Entry *entry = reader.next()) {
            if (!removeItem(folder, entry->name, entry->type, depth + 1))
                return false;
            removedAny = true;
        }
        if (reader.error() != 0) {
            errno = reader.error();
            return false;
        }
    }
    return true;
}

bool Removal::removeFolder(int parent, const char *name, int depth) {
    if (::unlinkat(parent, name, AT_REMOVEDIR) == 0 || errno == ENOENT)
        return true;
    if (errno != ENOTEMPTY && errno != EEXIST)
        return false;
    const UniqueFd folder = openFolder(parent, name);
    if (!folder)
        return false;
    if (depth == 0)
        m_root = folder.get();
    if (!emptyFolder(folder.get(), depth)) {
        // A folder that its owner may not change gives up its entries once it is opened up.
        if (errno != EACCES || ::fchmod(folder.get(), S_IRWXU) != 0 ||
            !emptyFolder(folder.get(), depth))
            return false;
    }
    return ::unlinkat(parent, name, AT_REMOVEDIR) == 0 || errno == ENOENT;
}

Result<void> Removal::run() {
    const std::optional<struct stat> status = statusAt(m_folder, m_name);
    if (!status) {
        if (errno == ENOENT)
            return {};
        return Error::fromErrno("remove", m_name);
    }
    const std::optional<MountPlace> place = mountPlace(m_folder, m_name);
    if (!place)
        return Error::fromErrno("remove", m_name);
    m_mount = place->mount;
    const unsigned char type = S_ISDIR(status->st_mode) ? DT_DIR : DT_REG;
    if (!removeItem(m_folder, m_name, type, 0))
        return Error::fromErrno("remove", m_name);
    return {};
}

} // namespace

Result<void> removeTree(int folder, const char *name) {
    return Removal(folder, name).run();
}

} // namespace zt

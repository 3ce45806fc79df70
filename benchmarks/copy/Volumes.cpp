// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "benchmarks/copy/Volumes.h"

#include "Platform/posix/SystemCalls.h"
#include "Platform/posix/TreeRemoval.h"

#include <linux/magic.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <utility>

namespace zt {

namespace {

constexpr std::uintmax_t imageSize = std::uintmax_t(16) << 30;

std::string fileSystemOf(const std::string &path) {
    struct statfs status = {};
    if (::statfs(path.c_str(), &status) != 0)
        return "disk";
    switch (static_cast<unsigned long>(status.f_type)) {
    case EXT4_SUPER_MAGIC:
        return "ext4";
    case XFS_SUPER_MAGIC:
        return "xfs";
    case BTRFS_SUPER_MAGIC:
        return "btrfs";
    default:
        return "disk";
    }
}

bool run(const std::string &command) {
    return std::system(("{ " + command + "; } >/dev/null 2>&1").c_str()) == 0; // NOLINT
}

// An empty folder, whatever an earlier run has left there.
std::optional<std::string> emptyFolder(const std::string &path) {
    std::error_code error;
    std::filesystem::remove_all(path, error);
    std::filesystem::create_directories(path, error);
    return error ? std::nullopt : std::optional(path);
}

} // namespace

std::optional<Volume> Volume::onDisk() {
    const std::optional<std::string> path = emptyFolder(DISK_FOLDER);
    if (!path)
        return std::nullopt;
    return Volume(*path, fileSystemOf(*path), {});
}

std::optional<Volume> Volume::inMemory() {
    struct statfs status = {};
    if (::statfs("/dev/shm", &status) != 0 || status.f_type != TMPFS_MAGIC)
        return std::nullopt;
    const std::optional<std::string> path =
        emptyFolder("/dev/shm/velmora-bench-" + std::to_string(::getpid()));
    if (!path)
        return std::nullopt;
    return Volume(*path, "tmpfs", {});
}

std::optional<Volume> Volume::inImage(const std::string &kind) {
    const std::string folder = std::string(DISK_FOLDER) + '-' + kind;
    const std::string image = folder + ".image";
    if (!emptyFolder(folder))
        return std::nullopt;
    const std::string force = kind == "ext4" ? " -F " : " -f ";
    // Past the page cache of the disk's own file system, or everything would be cached twice; and
    // without telling the disk what has become free, which takes longer there than the copies.
    const bool isMounted =
        run("PATH=$PATH:/usr/sbin:/sbin; rm -f '" + image + "' && truncate -s " +
            std::to_string(imageSize) + " '" + image + "' && mkfs." + kind + force + "'" + image +
            "' && loop=$(losetup --direct-io=on --find --show '" + image +
            "') && { mount -o nodiscard -t " + kind + " $loop '" + folder +
            "'; status=$?; losetup -d $loop; exit $status; }");
    if (!isMounted) {
        ::unlink(image.c_str());
        ::rmdir(folder.c_str());
        return std::nullopt;
    }
    return Volume(folder, kind, image);
}

Volume::Volume(Volume &&other) noexcept
    : m_path(std::exchange(other.m_path, {}))
    , m_fileSystem(std::move(other.m_fileSystem))
    , m_image(std::move(other.m_image)) {}

Volume::~Volume() {
    if (m_path.empty())
        return;
    if (m_image.empty()) {
        static_cast<void>(removeTree(AT_FDCWD, m_path.c_str()));
        return;
    }
    ::umount2(m_path.c_str(), MNT_DETACH);
    ::rmdir(m_path.c_str());
    ::unlink(m_image.c_str());
}

void Volume::removeAndSettle(const std::string &name) const {
    static_cast<void>(removeTree(AT_FDCWD, path(name).c_str()));
    const UniqueFd folder = openAt(AT_FDCWD, m_path.c_str(), O_RDONLY | O_DIRECTORY);
    if (folder)
        flushFileSystem(folder.get());
}

bool makeMountsPrivate() {
    return ::unshare(CLONE_NEWNS) == 0 &&
           ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

} // namespace zt

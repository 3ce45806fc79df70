// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/MountedFileSystems.h"

#include "Platform/linux/MountInfoText.h"
#include "Platform/posix/FileContents.h"
#include "Platform/posix/SystemCalls.h"

#include <QFile>

#include <sys/statvfs.h>
#include <sys/vfs.h> // statfs

namespace zt {

namespace {

// Machines that run many containers have thousands of mounts.
constexpr std::size_t maximumListSize = std::size_t{16} * 1024 * 1024;
constexpr std::size_t maximumDescriptorSize = std::size_t{64} * 1024;

} // namespace

MountedFileSystems::MountedFileSystems(std::string procRoot) : m_procRoot(std::move(procRoot)) {}

Result<QString> MountedFileSystems::typeNameFor(const QString &path) const {
    const QByteArray bytes = QFile::encodeName(path);
    const std::string object = bytes.toStdString();
    // Also has a volume mounted that is mounted when it is asked for.
    struct statfs volume = {};
    if (retryInterrupted([&] { return ::statfs(bytes.constData(), &volume); }) != 0)
        return Error::fromErrno("statfs", object);
    const UniqueFd item = openAt(AT_FDCWD, bytes.constData(), O_PATH);
    if (!item)
        return Error::fromErrno("open", object);

    // The number of a mount tells more than that of a device, which several parts of a volume may
    // have for themselves; and more than the kind in the answer above, which ext2 and ext4 share.
    const Result<std::string> descriptor = readSmallFile(
        m_procRoot + "/self/fdinfo/" + std::to_string(item.get()), maximumDescriptorSize);
    if (!descriptor)
        return descriptor.error();
    const std::optional<std::int64_t> number = parseMountNumber(*descriptor);
    const Result<std::string> list = readSmallFile(m_procRoot + "/self/mountinfo", maximumListSize);
    if (!list)
        return list.error();
    const std::optional<std::string> type = number ? parseMountType(*list, *number) : std::nullopt;
    if (!type)
        return Error{.operation = "find the mount of", .object = object, .cause = "not listed"};
    return QString::fromStdString(*type);
}

Result<std::uint64_t> MountedFileSystems::availableBytesFor(const QString &path) const {
    const QByteArray bytes = QFile::encodeName(path);
    struct statvfs volume = {};
    if (retryInterrupted([&] { return ::statvfs(bytes.constData(), &volume); }) != 0)
        return Error::fromErrno("statvfs", bytes.toStdString());
    return std::uint64_t{volume.f_bavail} * volume.f_frsize;
}

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/VolumeFileSystems.h"

#include "Platform/posix/SystemCalls.h"

#include <QFile>

#include <sys/mount.h> // statfs

namespace zt {

namespace {

Result<struct statfs> volumeOf(const QString &path) {
    const QByteArray bytes = QFile::encodeName(path);
    struct statfs volume = {};
    if (retryInterrupted([&] { return ::statfs(bytes.constData(), &volume); }) != 0)
        return Error::fromErrno("statfs", bytes.toStdString());
    return volume;
}

} // namespace

Result<QString> VolumeFileSystems::typeNameFor(const QString &path) const {
    const Result<struct statfs> volume = volumeOf(path);
    if (!volume)
        return volume.error();
    return QString::fromUtf8(volume->f_fstypename);
}

Result<std::uint64_t> VolumeFileSystems::availableBytesFor(const QString &path) const {
    const Result<struct statfs> volume = volumeOf(path);
    if (!volume)
        return volume.error();
    return std::uint64_t{volume->f_bavail} * volume->f_bsize;
}

} // namespace zt

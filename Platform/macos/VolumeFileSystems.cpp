// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/VolumeFileSystems.h"

#include "Platform/posix/SystemCalls.h"

#include <QFile>

#include <sys/mount.h> // statfs

namespace zt {

Result<QString> VolumeFileSystems::typeNameFor(const QString &path) const {
    const QByteArray bytes = QFile::encodeName(path);
    struct statfs volume = {};
    if (retryInterrupted([&] { return ::statfs(bytes.constData(), &volume); }) != 0)
        return Error::fromErrno("statfs", bytes.toStdString());
    return QString::fromUtf8(volume.f_fstypename);
}

} // namespace zt

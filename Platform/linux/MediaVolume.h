#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include <QString>

#include <optional>

namespace zt {

// The top folder of the volume that an absolute path lies on, by the places where disks are
// mounted: /Volumes/NAME, /media/USER/NAME, /run/media/USER/NAME, /mnt/NAME. No value for other
// paths. Does not look at the file system. Thread: any.
std::optional<QString> mediaVolumeOf(const QString &path);

} // namespace zt

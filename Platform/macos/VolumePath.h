#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Where volumes are found.

#include <QString>

#include <optional>

namespace zt {

// The top folder of the volume that an absolute path lies on, "/Volumes/NAME". No value for other
// paths. Does not look at the file system. Thread: any.
std::optional<QString> volumeOfPath(const QString &path);

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// How bundles lie on the disk.

#include <QString>

#include <optional>

namespace zt {

// The file with the information dictionary of the bundle at the path: in "Contents" for
// applications, on top for flat bundles, in "Resources" for frameworks. No value when there is
// none, so that any other folder is no bundle. Thread: any.
std::optional<QString> informationFileOf(const QString &bundlePath);

} // namespace zt

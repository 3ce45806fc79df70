#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Making applications known to Launch Services.

#include <QString>

#include <cstdint>

namespace zt {

// Registers the bundle anew, whatever is known of it. The path is taken as an address as it stands.
// The native error; that for a wrong argument when the path is no address. Thread: any.
std::int32_t registerWithLaunchServices(const QString &path);

} // namespace zt

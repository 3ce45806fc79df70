#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/Bundles.h"

#include <optional>

namespace zt {

// The file with the bundle's own icon, as its information dictionary names it. Thread: any.
std::optional<QString> iconFileOf(const Bundle &bundle);

} // namespace zt

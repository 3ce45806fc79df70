#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Settings that the reference platform keeps for all applications, told from what the desktop says.

#include "Platform/Appearance.h"

#include <QString>
#include <QVariant>

#include <optional>

namespace zt {

// The value under the key. "AppleInterfaceStyle" is "Dark" in a dark interface, and missing in a
// light one. "AppleAccentColor" is the number of the accent colour that is nearest to the user's,
// and missing when that is blue, which it is without a choice. No value for other keys. Thread:
// any; main for a key that is known here.
std::optional<QVariant> systemSetting(const QString &key, const Appearance &appearance);

} // namespace zt

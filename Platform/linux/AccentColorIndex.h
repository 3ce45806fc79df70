#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The accent colours of the reference platform, by the numbers under which it stores the choice.

#include "Platform/Appearance.h"

namespace zt {

enum class AccentColorIndex {
    Graphite = -1,
    Red = 0,
    Orange = 1,
    Yellow = 2,
    Green = 3,
    Blue = 4,
    Purple = 5,
    Pink = 6,
};

// The one that is nearest to any colour that a desktop offers. Thread: any.
AccentColorIndex accentColorIndexOf(const AccentColor &color);

} // namespace zt

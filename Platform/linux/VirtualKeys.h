#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The reference platform's virtual key codes, as places on the keyboard.

#include <QStringView>

#include <cstdint>
#include <optional>

namespace zt {

// One key. Either the layout decides what it types, and it has a name there; or it types the same
// in every layout, perhaps nothing.
struct VirtualKey {
    const char *layoutName = nullptr; // as keyboard descriptions of X name places: "AC01"
    char16_t fixedUnit = 0;           // 0 when it types nothing
    bool isOnKeypad = false;
};

// No value for a number that no key has. Thread: any.
std::optional<VirtualKey> virtualKey(std::uint16_t keyCode);

} // namespace zt

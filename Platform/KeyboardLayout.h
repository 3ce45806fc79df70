#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The keyboard layout that is in use.

#include <QString>

#include <cstdint>
#include <optional>

namespace zt {

// Thread: any, for all operations.
class KeyboardLayout {
public:
    // What is held down, or locked, while a key is pressed. Option is the key that reaches a
    // layout's further characters.
    struct Modifiers {
        bool shift = false;
        bool capsLock = false;
        bool option = false;
        bool control = false;
    };

    virtual ~KeyboardLayout() = default;

    // What the key shows: the text that it types, or the accent that it puts on the next letter.
    // Empty for a key that types nothing. No value when no layout is known, or when it has no such
    // key. `keyCode` is the reference platform's virtual key code: it names a place on the keyboard
    // (0 is the key of A on an American one), whatever the layout puts there. Keys that no layout
    // changes have the control characters of the reference platform: return is U+000D, the left
    // arrow U+001C, every function key U+0010.
    virtual std::optional<QString> textForKey(std::uint16_t keyCode,
                                              const Modifiers &modifiers) const = 0;

protected:
    KeyboardLayout() = default;
    KeyboardLayout(const KeyboardLayout &) = default;
    KeyboardLayout &operator=(const KeyboardLayout &) = default;
};

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The keyboard layout, from the text input sources.

#include "Platform/KeyboardLayout.h"

namespace zt {

class TextInputKeyboardLayout final : public KeyboardLayout {
public:
    std::optional<QString> textForKey(std::uint16_t keyCode,
                                      const Modifiers &modifiers) const override;
};

} // namespace zt

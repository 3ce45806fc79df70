#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Keys that put an accent on the next letter.

#include <cstdint>

namespace zt {

// The accent alone of a dead key's symbol, as X numbers them; 0 for other symbols. Thread: any.
char16_t accentOfDeadKey(std::uint32_t symbol);

} // namespace zt

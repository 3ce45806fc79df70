#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The glyphs of several Unicode scalars that virtual characters stand for, in the order of their
// values. A zero ends a row.

namespace StringExtensions {

// Emoji that a zero-width joiner or nothing but convention makes one: people by sex and trade,
// couples, families, flags that are no country's.
inline constexpr int N_ZWJ_SEQUENCES = 167;
extern const char32_t ZWJ_SEQUENCES[N_ZWJ_SEQUENCES][9];

// Keycaps. No U+FE0F stands between the two.
inline constexpr int N_KEYCAP_SEQUENCES = 12;
extern const char32_t KEYCAP_SEQUENCES[N_KEYCAP_SEQUENCES][3];

} // namespace StringExtensions

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Removing whole trees.

#include <cstdint>

extern "C" {

using removefile_state_t = struct _removefile_state *;
using removefile_flags_t = std::uint32_t;
constexpr removefile_flags_t REMOVEFILE_RECURSIVE = 1U << 0U;
int removefile(const char *path, removefile_state_t state, removefile_flags_t flags);

} // extern "C"

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The volume that an item lies on.

#include <cstdint>

extern "C" {

struct statfs {
    std::uint32_t f_bsize;
    std::uint64_t f_blocks;
    std::uint64_t f_bavail;
    char f_fstypename[16];
    char f_mntonname[1024];
};
// Under a name of its own, because the C library of the system that checks has another one.
int statfs(const char *path, struct statfs *volume) __asm__("macos_statfs");

} // extern "C"

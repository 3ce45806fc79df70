#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Extended attributes of files.

#include <cstddef>
#include <cstdint>

#include <sys/types.h>

extern "C" {

// Under a name of its own, because the C library of the system that checks has another one.
ssize_t getxattr(const char *path, const char *name, void *value, std::size_t size,
                 std::uint32_t position, int options) __asm__("macos_getxattr");

} // extern "C"

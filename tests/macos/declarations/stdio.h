#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the C library of macOS has beside the usual.

#include_next <stdio.h>

#ifdef __cplusplus
extern "C" {

#define RENAME_SWAP 0x00000002U
#define RENAME_EXCL 0x00000004U
int renameatx_np(int fromFolder, const char *from, int toFolder, const char *to,
                 unsigned int flags);

} // extern "C"
#endif

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the C library of macOS has beside the usual.

#include_next <stdlib.h>

#ifdef __cplusplus
extern "C" const char *getprogname();
#endif

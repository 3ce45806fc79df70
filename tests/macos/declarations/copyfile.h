#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Copying files with everything that belongs to them.

#include <cstdint>

extern "C" {

using copyfile_state_t = struct _copyfile_state *;
using copyfile_flags_t = std::uint32_t;
using copyfile_callback_t = int (*)(int what, int stage, copyfile_state_t state, const char *source,
                                    const char *target, void *context);
constexpr copyfile_flags_t COPYFILE_ACL = 1U << 0U;
constexpr copyfile_flags_t COPYFILE_STAT = 1U << 1U;
constexpr copyfile_flags_t COPYFILE_XATTR = 1U << 2U;
constexpr copyfile_flags_t COPYFILE_DATA = 1U << 3U;
constexpr copyfile_flags_t COPYFILE_ALL =
    COPYFILE_ACL | COPYFILE_STAT | COPYFILE_XATTR | COPYFILE_DATA;
constexpr copyfile_flags_t COPYFILE_RECURSIVE = 1U << 15U;
constexpr copyfile_flags_t COPYFILE_EXCL = 1U << 17U;
constexpr copyfile_flags_t COPYFILE_NOFOLLOW_SRC = 1U << 18U;
constexpr std::uint32_t COPYFILE_STATE_STATUS_CB = 6;
constexpr std::uint32_t COPYFILE_STATE_STATUS_CTX = 7;
constexpr std::uint32_t COPYFILE_STATE_COPIED = 8;
constexpr int COPYFILE_RECURSE_FILE = 1;
constexpr int COPYFILE_COPY_DATA = 4;
constexpr int COPYFILE_START = 1;
constexpr int COPYFILE_FINISH = 2;
constexpr int COPYFILE_ERR = 3;
constexpr int COPYFILE_PROGRESS = 4;
constexpr int COPYFILE_CONTINUE = 0;
constexpr int COPYFILE_SKIP = 1;
constexpr int COPYFILE_QUIT = 2;
copyfile_state_t copyfile_state_alloc();
int copyfile_state_free(copyfile_state_t state);
int copyfile_state_get(copyfile_state_t state, std::uint32_t flag, void *value);
int copyfile_state_set(copyfile_state_t state, std::uint32_t flag, const void *value);
int copyfile(const char *source, const char *target, copyfile_state_t state,
             copyfile_flags_t flags);

} // extern "C"

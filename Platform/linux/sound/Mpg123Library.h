#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The functions of libmpg123 that are used here.

#include "Platform/posix/SharedLibrary.h"

#include <mpg123.h>

namespace zt {

struct Mpg123Library {
    SharedLibrary file{"libmpg123.so.0"};

    VELMORA_IMPORT(mpg123_delete);
    VELMORA_IMPORT(mpg123_feed);
    VELMORA_IMPORT(mpg123_getformat);
    VELMORA_IMPORT(mpg123_init);
    VELMORA_IMPORT(mpg123_new);
    VELMORA_IMPORT(mpg123_open_feed);
    VELMORA_IMPORT(mpg123_param2);
    VELMORA_IMPORT(mpg123_read);
    VELMORA_IMPORT(mpg123_strerror);
};

// The library, loaded and made ready by the first call; null when it is not installed.
// Thread: any.
const Mpg123Library *mpg123Library();

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The functions of libsndfile that are used here.

#include "Platform/posix/SharedLibrary.h"

#include <sndfile.h>

namespace zt {

struct SndfileLibrary {
    SharedLibrary file{"libsndfile.so.1"};

    VELMORA_IMPORT(sf_open_virtual);
    VELMORA_IMPORT(sf_close);
    VELMORA_IMPORT(sf_readf_float);
    VELMORA_IMPORT(sf_strerror);
};

// The library, loaded by the first call; null when it is not installed. Thread: any.
const SndfileLibrary *sndfileLibrary();

} // namespace zt

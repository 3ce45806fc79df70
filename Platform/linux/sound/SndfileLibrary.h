#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The functions of libsndfile that are used here.

#include "Platform/linux/sound/SharedLibrary.h"

#include <sndfile.h>

namespace zt {

struct SndfileLibrary {
    SharedLibrary file{"libsndfile.so.1"};

#define VELMORA_IMPORT(name) decltype(&::name) name = file.function<decltype(&::name)>(#name)
    VELMORA_IMPORT(sf_open_virtual);
    VELMORA_IMPORT(sf_close);
    VELMORA_IMPORT(sf_readf_float);
    VELMORA_IMPORT(sf_strerror);
#undef VELMORA_IMPORT
};

// The library, loaded by the first call; null when it is not installed. Thread: any.
const SndfileLibrary *sndfileLibrary();

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/sound/SndfileLibrary.h"

namespace zt {

const SndfileLibrary *sndfileLibrary() {
    static const SndfileLibrary loaded;
    return loaded.file.isComplete() ? &loaded : nullptr;
}

} // namespace zt

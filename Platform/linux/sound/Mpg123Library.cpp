// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/sound/Mpg123Library.h"

namespace zt {

const Mpg123Library *mpg123Library() {
    static const Mpg123Library loaded;
    static const bool isReady = loaded.file.isComplete() && loaded.mpg123_init() == MPG123_OK;
    return isReady ? &loaded : nullptr;
}

} // namespace zt

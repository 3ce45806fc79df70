// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/GioLibrary.h"

namespace zt {

const GioLibrary *gioLibrary() {
    static const GioLibrary loaded;
    return loaded.file.isComplete() ? &loaded : nullptr;
}

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/AtSpiLibrary.h"

namespace zt {

const AtSpiLibrary *atSpiLibrary() {
    static const AtSpiLibrary loaded;
    return loaded.file.isComplete() ? &loaded : nullptr;
}

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/sound/PulseLibrary.h"

namespace zt {

const PulseLibrary *pulseLibrary() {
    static const PulseLibrary loaded;
    return loaded.file.isComplete() ? &loaded : nullptr;
}

} // namespace zt

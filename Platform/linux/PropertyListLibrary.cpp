// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/PropertyListLibrary.h"

namespace zt {

const PropertyListLibrary *propertyListLibrary() {
    static const PropertyListLibrary loaded;
    return loaded.file.isComplete() ? &loaded : nullptr;
}

} // namespace zt

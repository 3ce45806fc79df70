// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "PropertyListShape.h"

#include "Platform/PropertyList.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QByteArray content(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const zt::Result<QVariant> value = zt::parsePropertyList(content);
    if (value)
        checkPropertyListShape(*value);
    else if (value.error().cause.empty())
        std::abort();
    return 0;
}

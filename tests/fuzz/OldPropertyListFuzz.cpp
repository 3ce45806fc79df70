// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "PropertyListShape.h"

#include "Platform/linux/OldPropertyListReader.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const zt::Result<QVariant> value = zt::parseOldPropertyList(text);
    if (value)
        checkPropertyListShape(*value);
    else if (!value.error().cause.starts_with("line "))
        std::abort();
    return 0;
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/ResourceFork.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/FourCharCode.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QByteArrayView content(data, static_cast<qsizetype>(size));
    const QByteArrayView fork = zt::resourceForkOfAppleDouble(content);
    for (const QByteArrayView candidate : {content, fork}) {
        const auto resource = zt::resourceInFork(candidate, fourCharCode("vers"), 1);
        // Whatever is found lies within what was given.
        if (resource && (resource->begin() < content.begin() || resource->end() > content.end()))
            __builtin_trap();
    }
    return 0;
}

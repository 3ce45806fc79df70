// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/GeneralPasteboard.h"

#import <AppKit/AppKit.h>

namespace zt {

std::optional<std::int32_t> GeneralPasteboard::changeCount() {
    @autoreleasepool {
        // It is compared for being another one alone, so it may wrap around.
        return static_cast<std::int32_t>([NSPasteboard generalPasteboard].changeCount);
    }
}

} // namespace zt

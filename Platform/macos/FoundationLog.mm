// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/FoundationLog.h"

#include "Platform/macos/FoundationText.h"
#include "Platform/posix/LogLine.h"

namespace zt {

void FoundationLog::writeLine(std::string_view message) {
    const std::string line = escapedLogMessage(message);
    @autoreleasepool {
        NSLog(@"%@", nativeTextOf(QString::fromUtf8(line)));
    }
}

} // namespace zt

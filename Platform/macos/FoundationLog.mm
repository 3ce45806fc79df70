// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/FoundationLog.h"

#include "Platform/macos/FoundationText.h"
#include "Platform/posix/LogLine.h"
#include "Platform/posix/SystemCalls.h"

#include <unistd.h> // STDERR_FILENO

namespace zt {

void FoundationLog::writeLine(std::string_view message) {
    const std::string line = escapedLogMessage(message);
    @autoreleasepool {
        NSLog(@"%@", nativeTextOf(QString::fromUtf8(line)));
    }
    m_lines.add(line);
}

void FoundationLog::passOn(std::string_view lines) {
    static_cast<void>(writeFully(STDERR_FILENO, lines));
    m_lines.add(lines);
}

} // namespace zt

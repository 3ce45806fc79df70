// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/StandardErrorLog.h"

#include "Platform/posix/LogLine.h"
#include "Platform/posix/SystemCalls.h"

#include <unistd.h> // STDERR_FILENO

namespace zt {

void StandardErrorLog::writeLine(std::string_view message) {
    m_lines.add(writeLogLine(message));
}

void StandardErrorLog::passOn(std::string_view lines) {
    static_cast<void>(writeFully(STDERR_FILENO, lines));
    m_lines.add(lines);
}

} // namespace zt

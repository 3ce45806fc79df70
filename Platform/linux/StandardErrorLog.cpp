// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/StandardErrorLog.h"

#include "Platform/posix/LogLine.h"

namespace zt {

void StandardErrorLog::writeLine(std::string_view message) {
    writeLogLine(message);
}

} // namespace zt

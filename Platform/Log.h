#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The diagnostic log: one line for each event.

#include <string>
#include <string_view>

namespace zt {

// Thread: any, for all operations.
class Log {
public:
    virtual ~Log() = default;

    // Writes one line to the standard error stream, led by the time, the program's name and the
    // process id. The message is UTF-8; control characters in it are shown escaped, so that one
    // event stays one line. A line that cannot be written is dropped.
    virtual void writeLine(std::string_view message) = 0;

protected:
    Log() = default;
    Log(const Log &) = default;
    Log &operator=(const Log &) = default;
};

} // namespace zt

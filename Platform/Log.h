#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The diagnostic log: one line for each event.

#include <string>
#include <string_view>
#include <vector>

namespace zt {

// Thread: any, for all operations.
class Log {
public:
    virtual ~Log() = default;

    // Writes one line to the standard error stream, led by the time, the program's name and the
    // process id. The message is UTF-8; control characters in it are shown escaped, so that one
    // event stays one line. A line that cannot be written is dropped.
    virtual void writeLine(std::string_view message) = 0;

    // Writes lines that another program has led by the same already, as they are.
    virtual void passOn(std::string_view lines) = 0;

    // The last lines of this run, as they were written, oldest first; some hundreds at most.
    virtual std::vector<std::string> recentLines() const = 0;

protected:
    Log() = default;
    Log(const Log &) = default;
    Log &operator=(const Log &) = default;
};

} // namespace zt

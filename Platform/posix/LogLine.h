#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The form of one line of the diagnostic log.

#include <sys/types.h>

#include <chrono>
#include <string>
#include <string_view>

namespace zt {

// The message with control characters and line separators shown escaped ("\n", "\x1b", "\u2028"),
// so that it can neither break a line nor steer a terminal. Bytes that are not UTF-8 pass as they
// are: they may belong to a file's name. Thread: any.
std::string escapedLogMessage(std::string_view message);

// One event as one line, without the line end:
//   "2026-11-21 01:35:52.123 VelmoraInstaller[1234] message"
// The time is local, the message escaped. Thread: any.
std::string formatLogLine(std::chrono::system_clock::time_point time, std::string_view programName,
                          pid_t processId, std::string_view message);

// The name of this program's file, without its folder. Thread: any.
const char *programName();

// Writes the message as one such line to the standard error stream, with the present time, this
// program's name and its process id. The line goes out in one write, so that lines of several
// threads and processes do not mix. A line that cannot be written is dropped. Leaves errno as it
// is. Answers the line without its end. Thread: any.
std::string writeLogLine(std::string_view message);

} // namespace zt

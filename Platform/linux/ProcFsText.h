#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The texts of the process file system, taken apart. Nothing here reads a file. Thread: any.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zt {

// The content of /proc/PID/stat, as far as it is used.
struct ProcStat {
    std::int32_t pid = 0;
    std::string name; // at most 15 bytes of the program's or the main thread's name
    char state = 0;
    std::int32_t parent = 0; // the process that started it, or that took it over since; 0 for none
    std::int32_t threads = 0;
    std::uint64_t userTicks = 0;
    std::uint64_t startTicks = 0; // since the system was booted
    // Stands for the memory layout. Another program, or the same one loaded anew, has another.
    std::uint64_t image = 0;

    // False for a process that has ended and is only waiting for its parent to notice. One whose
    // first thread alone has ended still runs.
    bool isRunning() const;
};

// No value for a text that the kernel does not write. The name may hold anything, brackets, blanks
// and line ends too.
std::optional<ProcStat> parseProcStat(std::string_view text);

// The arguments in /proc/PID/cmdline. Empty ones count.
std::vector<std::string> parseCommandLine(std::string_view text);

// The effective user in /proc/PID/status.
std::optional<std::uint32_t> parseEffectiveUser(std::string_view status);

// The process that traces it in /proc/PID/status, as debuggers do; 0 when there is none.
std::optional<std::int32_t> parseTracer(std::string_view status);

// The id that was given to a process last, in /proc/loadavg.
std::optional<std::int32_t> parseLastProcessId(std::string_view loadAverages);

// The number of a process's folder; no value for another name.
std::optional<std::int32_t> parseProcessId(std::string_view name);

// Where a link of a process leads to, without the mark that the kernel puts behind the name of a
// file that was deleted. A file can also bear such a name by itself.
struct MarkedPath {
    std::string_view path;
    bool hasDeletedMark = false;
};
MarkedPath splitDeletedMark(std::string_view link);

// The innermost folder on the path whose name ends in ".app", whatever its case, the path itself
// included. Empty when there is none.
std::string_view innermostBundlePath(std::string_view path);

} // namespace zt

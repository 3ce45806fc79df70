#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Running a program to see what it takes.

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace zt {

// Runs the program with the arguments and no output, and answers how long it took from before it
// was started until it had ended. No value unless it ended with status 0. Thread: one at a time, as
// for the other.
std::optional<std::chrono::nanoseconds> timeOf(const std::string &program,
                                               const std::vector<std::string> &arguments);

// The most memory that the program had resident at a time, in bytes: its own, not that of the
// process that started it, which getrusage() would count too.
std::optional<std::size_t> residentMemoryOf(const std::string &program,
                                            const std::vector<std::string> &arguments);

} // namespace zt

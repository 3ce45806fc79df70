#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the kernel and the process tool know of a process.

#include <QByteArrayView>

#include <chrono>
#include <cstdint>
#include <optional>

namespace zt {

// The kernel's own record.
struct ProcessRecord {
    std::chrono::system_clock::time_point start;
    bool isTraced = false; // by a debugger
};

// No value when there is no such process. Thread: any.
std::optional<ProcessRecord> recordOfProcess(std::int32_t pid);

// The seconds in a text of minutes and seconds, as "ps -o utime=" prints it: 62.5 for "1:02.50".
// No value when there is no colon in it. Thread: any.
std::optional<double> parseProcessorTime(QByteArrayView text);

} // namespace zt

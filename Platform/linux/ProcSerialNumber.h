#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// How the serial number of a process is made.

#include "Platform/ProcessManager.h"
#include "Platform/linux/ProcFsText.h"

#include <cstdint>

namespace zt {

// The high half is the process id; the low half is the time at which the process began, in ticks of
// a hundredth of a second since the system was booted. The kernel hands out all other ids before it
// uses one again, which takes longer than a tick; so two processes never share a serial number,
// unless an id comes back in the very tick of a round of 497 days, after which the low half begins
// again.
inline ProcessSerialNumber serialNumberOf(std::int32_t pid, std::uint64_t startTicks) {
    return {.high = static_cast<std::uint32_t>(pid), .low = static_cast<std::uint32_t>(startTicks)};
}

inline ProcessSerialNumber serialNumberOf(const ProcStat &stat) {
    return serialNumberOf(stat.pid, stat.startTicks);
}

inline std::int32_t processIdIn(ProcessSerialNumber serialNumber) {
    return static_cast<std::int32_t>(serialNumber.high);
}

// The number as one, for tables.
inline std::uint64_t combined(ProcessSerialNumber serialNumber) {
    return std::uint64_t(serialNumber.high) << 32 | serialNumber.low;
}

} // namespace zt

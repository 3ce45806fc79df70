// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTProcess.h"

#include "Platform/Clock.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"

namespace {

using Seconds = std::chrono::duration<double>;

} // namespace

double proc_start_time(std::int32_t pid) {
    const auto start = zt::currentPlatform().processManager.startTime(pid);
    return start ? Seconds(start->time_since_epoch()).count() : 0.0;
}

double proc_cpu_time(std::int32_t pid) {
    return zt::currentPlatform().processManager.userProcessorTime(pid).value_or(0.0);
}

std::chrono::system_clock::time_point ZTProcess::launchDate() const {
    return *m_launchDate.value([this] { return std::optional(determineLaunchDate()); });
}

std::chrono::system_clock::time_point ZTProcess::determineLaunchDate() const {
    const std::int32_t pid = unixPID();
    if (pid == 0) {
        ZTLog("*** Cannot get launch date for %@", name());
        return m_platform.clock.now();
    }
    // A process whose start cannot be told shows as one from the beginning of time.
    return m_platform.processManager.startTime(pid).value_or(
        std::chrono::system_clock::time_point());
}

float ZTProcess::secondsRunning() const {
    return static_cast<float>(Seconds(m_platform.clock.now() - launchDate()).count());
}

double ZTProcess::cpuTime() const {
    const std::int32_t pid = unixPID();
    return pid != 0 ? proc_cpu_time(pid) : 0.0;
}

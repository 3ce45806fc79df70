#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Ending applications through descriptors of their processes, never by id or name.

#include "Platform/RunningApplications.h"

#include <chrono>

namespace zt {

class Clock;
class WindowSystem;

class PidfdRunningApplications final : public RunningApplications {
public:
    // How long after its windows were asked to close a process is sent the termination signal. Long
    // enough for a program that only has to put things away, and short enough that one that takes
    // no notice of its windows can still end in order before patience ends: callers wait for a few
    // seconds and end it by force then.
    static constexpr std::chrono::milliseconds delayOfSignal{2000};

    // Both must outlive this and every application that it hands out.
    PidfdRunningApplications(Clock &clock, WindowSystem &windowSystem);

    std::unique_ptr<RunningApplication> applicationWithPid(std::int32_t pid) override;
    bool isAvailable() const override;

private:
    Clock &m_clock;
    WindowSystem &m_windowSystem;
};

} // namespace zt

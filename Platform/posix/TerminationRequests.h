#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Signals that ask this process to end (an interrupt from the keyboard, a terminal that is closed,
// a shutdown), as something that an event loop can wait for.

#include "Platform/posix/UniqueFd.h"

#include <csignal>

#include <array>

namespace zt {

// While it lives, such a signal no longer ends the process; its descriptor can be read instead.
// What was ignored before (as nohup does) stays ignored. One at a time. Thread: main.
class TerminationRequests {
public:
    TerminationRequests();
    ~TerminationRequests();
    TerminationRequests(const TerminationRequests &) = delete;
    TerminationRequests &operator=(const TerminationRequests &) = delete;

    // Readable once there was a request; it stays so. Negative when the system has no descriptor
    // left; then the signals end the process as ever.
    int descriptor() const { return m_readEnd.get(); }

private:
    static constexpr std::array signalNumbers = {SIGINT, SIGTERM, SIGHUP};

    UniqueFd m_readEnd;
    UniqueFd m_writeEnd;
    std::array<struct sigaction, signalNumbers.size()> m_before = {};
};

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/PidfdRunningApplications.h"

#include "Platform/Clock.h"
#include "Platform/WindowSystem.h"
#include "Platform/linux/ProcessDescriptor.h"

#include <optional>

#include <signal.h> // SIGTERM, SIGCONT
#include <unistd.h>

namespace zt {

namespace {

class PidfdRunningApplication final : public RunningApplication {
public:
    PidfdRunningApplication(ProcessDescriptor process, std::int32_t pid, Clock &clock,
                            WindowSystem &windowSystem)
        : m_process(std::move(process))
        , m_pid(pid)
        , m_clock(clock)
        , m_windowSystem(windowSystem) {}

    bool terminate() override {
        if (m_process.hasEnded())
            return false;
        if (!m_timeOfSignal)
            askOnce();
        if (!m_signalSent && m_clock.steadyNow() >= *m_timeOfSignal)
            sendTerminationSignal();
        return true;
    }

    bool forceTerminate() override {
        if (m_process.hasEnded())
            return false;
        // One signal is enough, but a process may be ours only later: it may give up privileges.
        const Result<void> sent = m_process.sendSignal(SIGKILL);
        return sent || sent.error().code != ESRCH;
    }

    bool isTerminated() override { return m_process.hasEnded(); }

private:
    void askOnce() {
        const int asked = m_windowSystem.requestClose(m_pid);
        m_timeOfSignal = m_clock.steadyNow();
        if (asked == 0)
            return;
        *m_timeOfSignal += PidfdRunningApplications::delayOfSignal;
        // A stopped program sees neither a request nor a signal before it goes on.
        (void)m_process.sendSignal(SIGCONT);
    }

    void sendTerminationSignal() {
        m_signalSent = true;
        // A process that may not be sent signals stays, and the caller sees that it does.
        (void)m_process.sendSignal(SIGTERM);
        (void)m_process.sendSignal(SIGCONT);
    }

    ProcessDescriptor m_process;
    std::int32_t m_pid;
    Clock &m_clock;
    WindowSystem &m_windowSystem;
    std::optional<std::chrono::steady_clock::time_point> m_timeOfSignal; // once asked
    bool m_signalSent = false;
};

} // namespace

PidfdRunningApplications::PidfdRunningApplications(Clock &clock, WindowSystem &windowSystem)
    : m_clock(clock)
    , m_windowSystem(windowSystem) {}

std::unique_ptr<RunningApplication> PidfdRunningApplications::applicationWithPid(std::int32_t pid) {
    Result<ProcessDescriptor> process = ProcessDescriptor::open(pid);
    if (!process)
        return nullptr;
    return std::make_unique<PidfdRunningApplication>(std::move(*process), pid, m_clock,
                                                     m_windowSystem);
}

bool PidfdRunningApplications::isAvailable() const {
    static const bool available = static_cast<bool>(ProcessDescriptor::open(::getpid()));
    return available;
}

} // namespace zt

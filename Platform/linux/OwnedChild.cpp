// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/OwnedChild.h"

#include "Platform/posix/SystemCalls.h"

#include <thread>

#include <csignal>
#include <poll.h>
#include <sys/wait.h>
extern "C" { // which the header of older C libraries forgets to say
#include <sys/pidfd.h>
}

namespace zt {

OwnedChild::~OwnedChild() {
    if (m_pid > 0)
        retryInterrupted([this] { return ::waitpid(m_pid, nullptr, WNOHANG); });
}

bool OwnedChild::hasEnded() {
    if (m_pid <= 0)
        return true;
    siginfo_t end = {};
    const int answer = retryInterrupted([&] {
        return ::waitid(P_PID, static_cast<id_t>(m_pid), &end, WEXITED | WNOHANG | WNOWAIT);
    });
    // Somebody else took note of it: a program that ignores the signal of children, for instance.
    if (answer != 0)
        m_pid = 0;
    return answer != 0 || end.si_pid == m_pid;
}

void OwnedChild::waitForEnd(std::chrono::microseconds atMost) {
    if (end() < 0) {
        std::this_thread::sleep_for(atMost);
        return;
    }
    const auto seconds = std::chrono::floor<std::chrono::seconds>(atMost);
    const timespec limit = {.tv_sec = seconds.count(),
                            .tv_nsec = std::chrono::nanoseconds(atMost - seconds).count()};
    pollfd question = {.fd = end(), .events = POLLIN, .revents = 0};
    ::ppoll(&question, 1, &limit, nullptr);
}

int OwnedChild::end() {
    if (!m_end && m_pid > 0)
        m_end.reset(::pidfd_open(m_pid, 0)); // closed on exec without being asked
    return m_end.get();
}

void OwnedChild::signalGroup(int signal) const {
    if (m_pid > 0)
        ::kill(-m_pid, signal);
}

} // namespace zt

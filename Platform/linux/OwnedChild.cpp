// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/OwnedChild.h"

#include "Platform/posix/SystemCalls.h"

#include <csignal>
#include <sys/wait.h>

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

void OwnedChild::signalGroup(int signal) const {
    if (m_pid > 0)
        ::kill(-m_pid, signal);
}

} // namespace zt

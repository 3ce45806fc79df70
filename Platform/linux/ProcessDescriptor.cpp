// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/ProcessDescriptor.h"

#include "Platform/posix/SystemCalls.h"

#include <string>

#include <poll.h>
#include <signal.h> // siginfo_t
extern "C" {        // which the header of older C libraries forgets to say
#include <sys/pidfd.h>
}

namespace zt {

Result<ProcessDescriptor> ProcessDescriptor::open(std::int32_t pid) {
    // The system would take these for nonsense (EINVAL), but no process has such an id.
    if (pid <= 0)
        return Error::fromErrno("hold process", std::to_string(pid), ESRCH);
    // Closed on exec without being asked.
    UniqueFd descriptor(pidfd_open(pid, 0));
    if (!descriptor) {
        // A thread other than the first answers EINVAL.
        const int code = errno == EINVAL ? ESRCH : errno;
        return Error::fromErrno("hold process", std::to_string(pid), code);
    }
    ProcessDescriptor process(std::move(descriptor));
    if (process.hasEnded())
        return Error::fromErrno("hold process", std::to_string(pid), ESRCH);
    return process;
}

bool ProcessDescriptor::hasEnded() const {
    pollfd question = {.fd = m_descriptor.get(), .events = POLLIN, .revents = 0};
    return retryInterrupted([&] { return ::poll(&question, 1, 0); }) == 1;
}

Result<void> ProcessDescriptor::sendSignal(int signal) const {
    if (pidfd_send_signal(m_descriptor.get(), signal, nullptr, 0) != 0)
        return Error::fromErrno("send signal to process", std::to_string(signal));
    return {};
}

} // namespace zt

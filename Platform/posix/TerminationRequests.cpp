// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/TerminationRequests.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>

namespace zt {

namespace {

// The handler's only way to tell anybody; one object at a time has set it.
volatile std::sig_atomic_t requestDescriptor = -1;

extern "C" void noteTerminationRequest(int /*signal*/) {
    const int errorBefore = errno;
    // When the pipe is full there was a request already.
    [[maybe_unused]] const ssize_t written = ::write(requestDescriptor, "", 1);
    errno = errorBefore;
}

} // namespace

TerminationRequests::TerminationRequests() {
    std::array<int, 2> ends = {};
    if (::pipe(ends.data()) != 0)
        return;
    m_readEnd.reset(ends[0]);
    m_writeEnd.reset(ends[1]);
    for (const int end : ends)
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
    ::fcntl(m_writeEnd.get(), F_SETFL, O_NONBLOCK);
    requestDescriptor = m_writeEnd.get();
    struct sigaction note = {};
    note.sa_handler = noteTerminationRequest; // NOLINT(cppcoreguidelines-pro-type-union-access)
    note.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < signalNumbers.size(); ++i) {
        ::sigaction(signalNumbers[i], nullptr, &m_before[i]);
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-union-access)
        if (m_before[i].sa_handler != SIG_IGN)
            ::sigaction(signalNumbers[i], &note, nullptr);
    }
}

TerminationRequests::~TerminationRequests() {
    if (!m_writeEnd)
        return;
    for (std::size_t i = 0; i < signalNumbers.size(); ++i)
        ::sigaction(signalNumbers[i], &m_before[i], nullptr);
    requestDescriptor = -1;
}

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/HeldProcesses.h"

#include "Platform/linux/ProcSerialNumber.h"

#include <sys/epoll.h>
#include <sys/resource.h>

#include <algorithm>
#include <array>

namespace zt {

HeldProcesses::HeldProcesses(const ProcFs &procFs, std::size_t maximumCount)
    : m_procFs(procFs)
    , m_maximumCount(maximumCount)
    , m_events(::epoll_create1(EPOLL_CLOEXEC)) {}

std::size_t HeldProcesses::reasonableCount() {
    constexpr rlim_t usualLimit = 1024;
    constexpr rlim_t enough = 16 * 1024;
    rlimit limit = {};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0)
        limit.rlim_cur = usualLimit;
    return std::min(limit.rlim_cur, enough) / 4;
}

bool HeldProcesses::hold(ProcessSerialNumber process) {
    const std::int32_t pid = processIdIn(process);
    {
        const std::scoped_lock lock(m_mutex);
        const auto held = m_holds.find(pid);
        if (held != m_holds.end() && held->second.process == process)
            return true;
        if (!m_events || m_holds.size() >= m_maximumCount)
            return false;
    }
    Result<ProcessDescriptor> descriptor = ProcessDescriptor::open(pid);
    if (!descriptor)
        return false;
    // Looked up after the descriptor was opened: it is this process's if the id still is.
    const std::optional<ProcStat> stat = m_procFs.stat(pid);
    if (!stat || serialNumberOf(*stat) != process)
        return false;
    const std::scoped_lock lock(m_mutex);
    drop(m_holds.find(pid));
    epoll_event event = {.events = EPOLLIN, .data = {.u64 = combined(process)}};
    if (::epoll_ctl(m_events.get(), EPOLL_CTL_ADD, descriptor->get(), &event) != 0)
        return false;
    m_holds.emplace(pid, Hold{process, *std::move(descriptor)});
    return true;
}

void HeldProcesses::release(ProcessSerialNumber process) {
    const std::scoped_lock lock(m_mutex);
    const auto held = m_holds.find(processIdIn(process));
    if (held != m_holds.end() && held->second.process == process)
        drop(held);
}

void HeldProcesses::drop(Holds::iterator held) {
    if (held == m_holds.end())
        return;
    // Closing alone would not do: a child that is just being started may share the descriptor.
    ::epoll_ctl(m_events.get(), EPOLL_CTL_DEL, held->second.descriptor.get(), nullptr);
    m_holds.erase(held);
}

HeldProcesses::State HeldProcesses::state(ProcessSerialNumber process) const {
    const std::scoped_lock lock(m_mutex);
    const auto held = m_holds.find(processIdIn(process));
    if (held == m_holds.end() || held->second.process != process)
        return State::NotHeld;
    return held->second.descriptor.hasEnded() ? State::Ended : State::Running;
}

std::optional<ProcessSerialNumber> HeldProcesses::runningProcessWithPid(std::int32_t pid) const {
    const std::scoped_lock lock(m_mutex);
    const auto held = m_holds.find(pid);
    if (held == m_holds.end() || held->second.descriptor.hasEnded())
        return std::nullopt;
    return held->second.process;
}

std::vector<ProcessSerialNumber> HeldProcesses::takeEnded() {
    std::vector<ProcessSerialNumber> ended;
    std::array<epoll_event, 64> events;
    const std::scoped_lock lock(m_mutex);
    for (;;) {
        const int count =
            ::epoll_wait(m_events.get(), events.data(), static_cast<int>(events.size()), 0);
        if (count <= 0)
            return ended;
        for (int index = 0; index < count; ++index) {
            const std::uint64_t number = events[static_cast<std::size_t>(index)].data.u64;
            const ProcessSerialNumber process{.high = static_cast<std::uint32_t>(number >> 32),
                                              .low = static_cast<std::uint32_t>(number)};
            ended.push_back(process);
            drop(m_holds.find(processIdIn(process)));
        }
    }
}

} // namespace zt

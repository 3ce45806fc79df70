// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/LeftChildren.h"

#include "Platform/posix/BlockedSignals.h"
#include "Platform/posix/SystemCalls.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdint>
#include <poll.h>
#include <sys/eventfd.h>
#include <system_error>

namespace zt {

namespace {

using namespace std::chrono_literals;

// Where the end of a child cannot be waited for, it is looked for this often.
constexpr auto lookInterval = 50ms;

} // namespace

LeftChildren::LeftChildren(std::chrono::milliseconds patience)
    : m_patience(patience)
    , m_wake(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

LeftChildren::~LeftChildren() {
    {
        const std::scoped_lock lock(m_mutex);
        m_isEnding = true;
    }
    ::eventfd_write(m_wake.get(), 1);
    if (m_thread.joinable())
        m_thread.join();
    for (const Child &child : m_arrivals) {
        if (child.deadline)
            child.process.signalGroup(SIGKILL);
    }
}

void LeftChildren::take(OwnedChild child, Fate fate) {
    Child left{.process = std::move(child), .deadline = {}};
    if (fate == Fate::MustEnd)
        left.deadline = std::chrono::steady_clock::now() + m_patience;
    const std::scoped_lock lock(m_mutex);
    m_arrivals.push_back(std::move(left));
    if (!m_thread.joinable())
        start();
    ::eventfd_write(m_wake.get(), 1);
}

void LeftChildren::start() {
    const BlockedSignals blocked; // also in the thread, which begins with the same
    try {
        m_thread = std::thread([this] { run(); });
    } catch (const std::system_error &) {
        // The system has no thread to give. Nothing may be kept busy for that; the next child that
        // is left tries again.
        for (const Child &child : m_arrivals) {
            if (child.deadline)
                child.process.signalGroup(SIGKILL);
        }
    }
}

void LeftChildren::run() {
    std::vector<Child> children;
    for (;;) {
        {
            const std::scoped_lock lock(m_mutex);
            std::ranges::move(m_arrivals, std::back_inserter(children));
            m_arrivals.clear();
            if (m_isEnding)
                m_arrivals.swap(children);
            if (m_isEnding)
                return;
        }
        forgetEnded(children);
        waitForNews(children);
        eventfd_t count = 0;
        ::eventfd_read(m_wake.get(), &count);
    }
}

// A child that must end stays, as a zombie if need be, until its time is over: its id is that of
// the group, in which others may be left.
void LeftChildren::forgetEnded(std::vector<Child> &children) {
    const Time now = std::chrono::steady_clock::now();
    for (Child &child : children) {
        if (child.deadline && *child.deadline <= now) {
            child.process.signalGroup(SIGKILL);
            child.deadline.reset();
        }
    }
    std::erase_if(children,
                  [](Child &child) { return !child.deadline && child.process.hasEnded(); });
}

void LeftChildren::waitForNews(std::vector<Child> &children) const {
    std::vector<pollfd> descriptors = {{.fd = m_wake.get(), .events = POLLIN, .revents = 0}};
    std::optional<Time> next;
    const Time now = std::chrono::steady_clock::now();
    for (Child &child : children) {
        const int end = child.deadline ? -1 : child.process.end();
        if (end >= 0) {
            descriptors.push_back({.fd = end, .events = POLLIN, .revents = 0});
            continue;
        }
        const Time due = child.deadline.value_or(now + lookInterval);
        next = std::min(next.value_or(due), due);
    }
    const auto span = next ? std::max(*next - now, Time::duration::zero()) : Time::duration::zero();
    const auto seconds = std::chrono::floor<std::chrono::seconds>(span);
    const timespec limit = {.tv_sec = seconds.count(), .tv_nsec = (span - seconds).count()};
    ::ppoll(descriptors.data(), descriptors.size(), next ? &limit : nullptr, nullptr);
}

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The owner of a child process.

#include "Platform/posix/UniqueFd.h"

#include <sys/types.h>

#include <chrono>
#include <utility>

namespace zt {

// As long as the child's end has not been taken note of, its id is given to no other process and to
// no group; so signals never reach anybody else. Movable. Thread: one at a time.
class OwnedChild {
public:
    explicit OwnedChild(pid_t pid) : m_pid(pid) {}
    OwnedChild(OwnedChild &&other) noexcept
        : m_pid(std::exchange(other.m_pid, 0))
        , m_end(std::move(other.m_end)) {}
    OwnedChild(const OwnedChild &) = delete;
    OwnedChild &operator=(const OwnedChild &) = delete;
    OwnedChild &operator=(OwnedChild &&other) noexcept {
        std::swap(m_pid, other.m_pid);
        std::swap(m_end, other.m_end);
        return *this;
    }
    // Takes note of the end, if that has come.
    ~OwnedChild();

    // The child's id; 0 when its end has been taken note of, by whomever.
    pid_t pid() const { return m_pid; }

    // Whether the child has ended. Takes no note of it.
    bool hasEnded();

    // Blocks until the child has ended, or the time is over.
    void waitForEnd(std::chrono::microseconds atMost);

    // Sends the signal to all processes of the group that the child leads.
    void signalGroup(int signal) const;

    // A descriptor that is readable once the child has ended, still owned by this; negative when
    // there is none to be had.
    int end();

private:
    pid_t m_pid = 0;
    UniqueFd m_end; // made when it is first asked for
};

} // namespace zt

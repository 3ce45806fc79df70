#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The owner of a child process.

#include <sys/types.h>

#include <utility>

namespace zt {

// As long as the child's end has not been taken note of, its id is given to no other process and to
// no group; so signals never reach anybody else. Movable. Thread: one at a time.
class OwnedChild {
public:
    explicit OwnedChild(pid_t pid) : m_pid(pid) {}
    OwnedChild(OwnedChild &&other) noexcept : m_pid(std::exchange(other.m_pid, 0)) {}
    OwnedChild(const OwnedChild &) = delete;
    OwnedChild &operator=(const OwnedChild &) = delete;
    OwnedChild &operator=(OwnedChild &&other) noexcept {
        std::swap(m_pid, other.m_pid);
        return *this;
    }
    // Takes note of the end, if that has come.
    ~OwnedChild();

    // The child's id; 0 when its end has been taken note of, by whomever.
    pid_t pid() const { return m_pid; }

    // Whether the child has ended. Takes no note of it.
    bool hasEnded();

    // Sends the signal to all processes of the group that the child leads.
    void signalGroup(int signal) const;

private:
    pid_t m_pid = 0;
};

} // namespace zt

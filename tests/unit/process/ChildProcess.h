#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A real process that a test starts and ends.

#include "Platform/posix/UniqueFd.h"

#include <sys/types.h>

#include <string>
#include <vector>

// Runs as a child of this process until it is ended or this goes, which ends it by force.
// Thread: one at a time.
class ChildProcess {
public:
    // What its standard input is.
    enum class Input { None, Lines };

    // The path of the program and its arguments. When this returns, the program is loaded.
    explicit ChildProcess(const std::vector<std::string> &commandLine, Input input = Input::None);
    ~ChildProcess();
    ChildProcess(ChildProcess &&other) noexcept;
    ChildProcess &operator=(ChildProcess &&other) noexcept;
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;

    pid_t pid() const { return m_pid; }

    // Sends a line to its standard input, which must take lines.
    void sendLine(const std::string &line);

    void sendSignal(int signal) const;

    // Ends it by force and waits until it is a zombie; then takes note of it.
    void kill();
    void reap();

private:
    pid_t m_pid = 0;
    bool m_isReaped = false;
    zt::UniqueFd m_input;
};

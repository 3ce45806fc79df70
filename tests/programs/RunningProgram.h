#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A program that a test runs.

#include "Platform/posix/UniqueFd.h"

#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

// Runs as a child of this process until it is ended or this goes, which ends it by force. Nobody
// else takes note of its end, so that it stays a zombie until this does. Thread: one at a time.
class RunningProgram {
public:
    // The program's path, looked up in PATH when it is a bare name, and its arguments. Ends the
    // test program when it cannot be started.
    explicit RunningProgram(const std::vector<std::string> &commandLine);
    ~RunningProgram();
    RunningProgram(const RunningProgram &) = delete;
    RunningProgram &operator=(const RunningProgram &) = delete;

    pid_t pid() const { return m_pid; }

    // Waits for the next line that the program prints. No value when its output has ended.
    std::optional<std::string> readLine();

    // Waits until the program has printed the line. False when its output ends before. Lines before
    // it are passed over.
    bool waitForLine(const std::string &line);

    // Whether it has ended. Takes no note of that.
    bool hasEnded() const;

    // Waits for its end. Its exit status; 128 and the signal's number when it was ended by one.
    int waitForEnd();

private:
    pid_t m_pid = 0;
    bool m_isReaped = false;
    zt::UniqueFd m_output;
    std::string m_unread;
};

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/programs/RunningProgram.h"

#include "Platform/posix/SystemCalls.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

RunningProgram::RunningProgram(const std::vector<std::string> &commandLine) {
    std::vector<char *> arguments;
    arguments.reserve(commandLine.size() + 1);
    for (const std::string &argument : commandLine)
        arguments.push_back(const_cast<char *>(argument.c_str()));
    arguments.push_back(nullptr);

    std::array<int, 2> ends = {-1, -1};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        std::abort();
    m_output.reset(ends[0]);
    const zt::UniqueFd input(ends[1]);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input.get(), STDOUT_FILENO);
    const int failure =
        posix_spawnp(&m_pid, arguments[0], &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (failure != 0) {
        std::fprintf(stderr, "cannot start %s: %s\n", arguments[0], std::strerror(failure));
        std::abort();
    }
}

RunningProgram::~RunningProgram() {
    if (m_isReaped)
        return;
    ::kill(m_pid, SIGKILL);
    waitForEnd();
}

std::optional<std::string> RunningProgram::readLine() {
    for (;;) {
        if (const std::size_t end = m_unread.find('\n'); end != std::string::npos) {
            std::string line = m_unread.substr(0, end);
            m_unread.erase(0, end + 1);
            return line;
        }
        std::array<char, 256> bytes = {};
        const ssize_t count = zt::readSome(m_output.get(), bytes.data(), bytes.size());
        if (count <= 0)
            return std::nullopt;
        m_unread.append(bytes.data(), static_cast<std::size_t>(count));
    }
}

bool RunningProgram::waitForLine(const std::string &line) {
    for (std::optional<std::string> found = readLine(); found; found = readLine()) {
        if (*found == line)
            return true;
    }
    return false;
}

bool RunningProgram::hasEnded() const {
    if (m_isReaped)
        return true;
    siginfo_t end = {};
    const int answer = zt::retryInterrupted([&] {
        return ::waitid(P_PID, static_cast<id_t>(m_pid), &end, WEXITED | WNOHANG | WNOWAIT);
    });
    return answer == 0 && end.si_pid == m_pid;
}

int RunningProgram::waitForEnd() {
    int status = 0;
    if (zt::retryInterrupted([&] { return ::waitpid(m_pid, &status, 0); }) == m_pid)
        m_isReaped = true;
    return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

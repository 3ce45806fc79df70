// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/process/ChildProcess.h"

#include "Platform/linux/ProcFs.h"
#include "Platform/posix/SystemCalls.h"

#include "tests/Waiting.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <signal.h> // kill
#include <spawn.h>
#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace {

[[noreturn]] void giveUp(const char *operation) {
    std::perror(operation);
    std::abort();
}

} // namespace

ChildProcess::ChildProcess(const std::vector<std::string> &commandLine, Input input) {
    zt::UniqueFd source;
    if (input == Input::Lines) {
        int ends[2];
        if (::pipe2(ends, O_CLOEXEC) != 0)
            giveUp("pipe2");
        source.reset(ends[0]);
        m_input.reset(ends[1]);
    } else {
        source = zt::openAt(AT_FDCWD, "/dev/null", O_RDONLY);
    }
    std::vector<char *> arguments;
    arguments.reserve(commandLine.size() + 1);
    for (const std::string &argument : commandLine)
        arguments.push_back(const_cast<char *>(argument.c_str()));
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, source.get(), STDIN_FILENO);
    errno = ::posix_spawn(&m_pid, arguments[0], &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (errno != 0)
        giveUp(arguments[0]);
    // The child is let go of a little before the new program has its arguments.
    const zt::ProcFs procFs;
    EXPECT_TRUE(eventuallyWithoutEvents([&] { return !procFs.commandLine(m_pid).empty(); }));
}

ChildProcess::~ChildProcess() {
    if (m_pid == 0 || m_isReaped)
        return;
    kill();
    reap();
}

ChildProcess::ChildProcess(ChildProcess &&other) noexcept
    : m_pid(std::exchange(other.m_pid, 0))
    , m_isReaped(other.m_isReaped)
    , m_input(std::move(other.m_input)) {}

ChildProcess &ChildProcess::operator=(ChildProcess &&other) noexcept {
    std::swap(m_pid, other.m_pid);
    std::swap(m_isReaped, other.m_isReaped);
    std::swap(m_input, other.m_input);
    return *this;
}

void ChildProcess::sendLine(const std::string &line) {
    if (!zt::writeFully(m_input.get(), line + '\n'))
        giveUp("write");
}

void ChildProcess::sendSignal(int signal) const {
    if (::kill(m_pid, signal) != 0)
        giveUp("kill");
}

void ChildProcess::kill() {
    sendSignal(SIGKILL);
    siginfo_t information = {};
    zt::retryInterrupted(
        [&] { return ::waitid(P_PID, static_cast<id_t>(m_pid), &information, WEXITED | WNOWAIT); });
}

void ChildProcess::reap() {
    zt::retryInterrupted([&] { return ::waitpid(m_pid, nullptr, 0); });
    m_isReaped = true;
}

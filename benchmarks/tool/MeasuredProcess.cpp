// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "benchmarks/tool/MeasuredProcess.h"

#include "Platform/posix/FileContents.h"

#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>

namespace zt {

namespace {

[[noreturn]] void become(const std::string &program, const std::vector<char *> &arguments) {
    const int nothing = ::open("/dev/null", O_RDWR | O_CLOEXEC);
    ::dup2(nothing, STDOUT_FILENO);
    ::dup2(nothing, STDERR_FILENO);
    ::execv(program.c_str(), arguments.data());
    ::_exit(EXIT_FAILURE);
}

std::vector<char *> argumentsOf(std::string &program, std::vector<std::string> &arguments) {
    std::vector<char *> pointers = {program.data()};
    for (std::string &argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    return pointers;
}

bool isSuccess(int status) {
    return WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS;
}

// The high-water mark of a process that stands still at its end.
std::optional<std::size_t> highWaterMark(pid_t pid) {
    const Result<std::string> status =
        readSmallFile("/proc/" + std::to_string(pid) + "/status", 65536);
    const std::string label = "VmHWM:";
    const std::size_t place = status ? status->find(label) : std::string::npos;
    if (place == std::string::npos)
        return std::nullopt;
    return std::strtoull(status->c_str() + place + label.size(), nullptr, 10) * 1024;
}

} // namespace

std::optional<std::chrono::nanoseconds> timeOf(const std::string &program,
                                               const std::vector<std::string> &arguments) {
    std::string name = program;
    std::vector<std::string> texts = arguments;
    const std::vector<char *> pointers = argumentsOf(name, texts);
    posix_spawn_file_actions_t actions = {};
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    const auto begin = std::chrono::steady_clock::now();
    pid_t child = -1;
    const int code =
        ::posix_spawn(&child, program.c_str(), &actions, nullptr, pointers.data(), environ);
    int status = 0;
    const bool hasEnded = code == 0 && ::waitpid(child, &status, 0) == child;
    const auto end = std::chrono::steady_clock::now();
    ::posix_spawn_file_actions_destroy(&actions);
    if (!hasEnded || !isSuccess(status))
        return std::nullopt;
    return end - begin;
}

std::optional<std::size_t> residentMemoryOf(const std::string &program,
                                            const std::vector<std::string> &arguments) {
    std::string name = program;
    std::vector<std::string> texts = arguments;
    const std::vector<char *> pointers = argumentsOf(name, texts);
    const pid_t child = ::fork();
    if (child == 0) {
        ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        ::raise(SIGSTOP);
        become(program, pointers);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    ::ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACEEXIT | PTRACE_O_EXITKILL);
    std::optional<std::size_t> mark;
    for (int signal = 0;;) {
        ::ptrace(PTRACE_CONT, child, nullptr, signal);
        if (::waitpid(child, &status, 0) != child || !WIFSTOPPED(status))
            break;
        const bool isEnd = status >> 8 == (SIGTRAP | PTRACE_EVENT_EXIT << 8);
        if (isEnd)
            mark = highWaterMark(child);
        // The stop after exec comes as a signal that was never meant for the program.
        signal = isEnd || WSTOPSIG(status) == SIGTRAP ? 0 : WSTOPSIG(status);
    }
    return isSuccess(status) ? mark : std::nullopt;
}

} // namespace zt

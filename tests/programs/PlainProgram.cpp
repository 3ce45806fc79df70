// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A program without windows that behaves as it is told, for tests that end programs.
//
//   plain_program quits                 ends at the termination signal
//   plain_program ignores-termination   does not
//   plain_program ends-after MS         ignores the termination signal, and ends after that time
//   plain_program forks-helpers N       has helper programs, which it ends before itself
//   plain_program re-executes N         starts itself anew at the termination signal, N times
//   plain_program stops                 stops at once, as if by job control, and can be ended
//   plain_program supervises N PROGRAM ARGUMENT...
//                                       runs the program, and again when it has ended, N times
//
// It prints a line "ready" once it behaves that way. Without arguments the behaviour is that of the
// environment's VELMORA_TEST_BEHAVIOUR.

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sstream>
#include <string>
#include <vector>

#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

volatile sig_atomic_t termination = 0;

void noteTermination(int) {
    termination = 1;
}

void sayReady() {
    // Written in one piece, so that it may come from a program that shares its output.
    const char line[] = "ready\n";
    if (write(STDOUT_FILENO, line, sizeof line - 1) < 0)
        std::_Exit(1);
}

[[noreturn]] void run(const std::vector<std::string> &program) {
    std::vector<char *> arguments;
    arguments.reserve(program.size() + 1);
    for (const std::string &argument : program)
        arguments.push_back(const_cast<char *>(argument.c_str()));
    arguments.push_back(nullptr);
    execv(arguments[0], arguments.data());
    std::_Exit(127);
}

[[noreturn]] void waitForEver() {
    for (;;)
        pause();
}

// Blocked while it is looked at, so that it cannot come between the look and the sleep.
void waitForTermination() {
    sigset_t blocked;
    sigset_t before;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGTERM);
    sigprocmask(SIG_BLOCK, &blocked, &before);
    signal(SIGTERM, noteTermination);
    sayReady();
    sigdelset(&before, SIGTERM);
    while (!termination)
        sigsuspend(&before);
    signal(SIGTERM, SIG_DFL);
    sigprocmask(SIG_SETMASK, &before, nullptr);
}

void endAfter(int milliseconds) {
    signal(SIGTERM, SIG_IGN);
    sayReady();
    usleep(static_cast<useconds_t>(milliseconds) * 1000);
}

void forkHelpers(int count) {
    std::vector<pid_t> helpers;
    for (int index = 0; index < count; ++index) {
        const pid_t helper = fork();
        if (helper == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            waitForEver();
        }
        helpers.push_back(helper);
    }
    waitForTermination();
    for (const pid_t helper : helpers) {
        kill(helper, SIGKILL);
        waitpid(helper, nullptr, 0);
    }
}

void reexecute(int count) {
    waitForTermination();
    if (count > 0)
        run({"/proc/self/exe", "re-executes", std::to_string(count - 1)});
}

void supervise(int count, const std::vector<std::string> &program) {
    for (int started = 0; started <= count; ++started) {
        const pid_t child = fork();
        if (child == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            run(program);
        }
        waitpid(child, nullptr, 0);
    }
}

std::vector<std::string> behaviour(int argc, char **argv) {
    std::vector<std::string> words(argv + 1, argv + argc);
    const char *const wanted = std::getenv("VELMORA_TEST_BEHAVIOUR");
    if (!words.empty() || !wanted)
        return words;
    std::istringstream text(wanted);
    for (std::string word; text >> word;)
        words.push_back(word);
    return words;
}

} // namespace

int main(int argc, char **argv) {
    const std::vector<std::string> words = behaviour(argc, argv);
    const std::string mode = words.empty() ? "quits" : words[0];
    const int number = words.size() > 1 ? std::atoi(words[1].c_str()) : 0;
    if (mode == "ends-after") {
        endAfter(number);
    } else if (mode == "forks-helpers") {
        forkHelpers(number);
    } else if (mode == "re-executes") {
        reexecute(number);
    } else if (mode == "supervises" && words.size() > 2) {
        supervise(number, {words.begin() + 2, words.end()});
    } else if (mode == "quits" || mode == "ignores-termination" || mode == "stops") {
        signal(SIGTERM, mode == "ignores-termination" ? SIG_IGN : SIG_DFL);
        sayReady();
        if (mode == "stops")
            raise(SIGSTOP);
        waitForEver();
    } else {
        std::fprintf(stderr, "plain_program: there is no behaviour '%s'\n", mode.c_str());
        return 2;
    }
    return 0;
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/child_processes/ShellFixture.h"
#include "tests/Waiting.h"

#include <chrono>
#include <thread>

#include <csignal>
#include <sys/wait.h>

using namespace std::chrono_literals;

std::chrono::steady_clock::time_point ConditionalClock::steadyNow() const {
    return std::chrono::steady_clock::time_point(m_elapsed.load());
}

void ConditionalClock::sleepFor(std::chrono::microseconds duration) {
    if (!condition || condition())
        m_elapsed = m_elapsed.load() + duration;
    std::this_thread::sleep_for(200us); // lets the children have the processor
}

bool isGone(pid_t pid) {
    const std::string record = zt::testing::contentOf("/proc/" + std::to_string(pid) + "/stat");
    const std::size_t nameEnd = record.rfind(')');
    return nameEnd == std::string::npos || record.compare(nameEnd, 4, ") Z ") == 0;
}

bool hasNoChildren() {
    siginfo_t child = {};
    return ::waitid(P_ALL, 0, &child, WEXITED | WNOHANG | WNOWAIT) == -1 && errno == ECHILD;
}

std::size_t openDescriptors() {
    return zt::testing::namesIn("/proc/self/fd").size();
}

ShellFixture::ShellFixture(std::chrono::milliseconds patience) : childProcesses(patience) {}

QString ShellFixture::script(const std::string &lines, const std::string &name) const {
    return QString::fromStdString(folder.makeFile(name, "#!/bin/sh\n" + lines + '\n', 0755));
}

std::vector<std::string> ShellFixture::temporaryFiles() const {
    return zt::testing::namesIn(folder.path("temporary"));
}

void ShellFixture::holdClockUntil(const std::string &file) {
    clock.condition = [file] { return zt::testing::contentOf(file).ends_with('\n'); };
}

pid_t ShellFixture::processIn(const std::string &file) {
    return std::stoi(zt::testing::contentOf(file));
}

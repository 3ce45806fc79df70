// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/copy/ChildProcess.h"

#include <fcntl.h>
#include <grp.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <exception>
#include <fstream>

namespace zt::testing {

namespace {

constexpr uid_t nobody = 65534;

bool becomeOrdinaryUser() {
    if (::geteuid() != 0)
        return true;
    return ::setgroups(0, nullptr) == 0 && ::setresgid(nobody, nobody, nobody) == 0 &&
           ::setresuid(nobody, nobody, nobody) == 0;
}

bool writeText(const char *path, const std::string &text) {
    std::ofstream file(path);
    file << text;
    file.close();
    return !file.fail();
}

bool becomeRootOfMounts() {
    const uid_t user = ::geteuid();
    const gid_t group = ::getegid();
    if (user == 0)
        return ::unshare(CLONE_NEWNS) == 0;
    return ::unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 &&
           writeText("/proc/self/setgroups", "deny") &&
           writeText("/proc/self/uid_map", "0 " + std::to_string(user) + " 1") &&
           writeText("/proc/self/gid_map", "0 " + std::to_string(group) + " 1");
}

[[noreturn]] void answer(int descriptor, const std::function<std::string()> &body) {
    std::string text;
    try {
        text = body();
    } catch (const std::exception &exception) {
        text = exception.what();
    }
    const ssize_t written = ::write(descriptor, text.data(), text.size());
    ::_exit(written == static_cast<ssize_t>(text.size()) ? 0 : 1);
}

} // namespace

std::string inChildProcess(const std::function<std::string()> &body) {
    std::array<int, 2> ends = {};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        return "no pipe";
    const pid_t child = ::fork();
    if (child == 0)
        answer(ends[1], body);
    ::close(ends[1]);
    std::string text;
    std::array<char, 4096> part = {};
    for (ssize_t count = 0; (count = ::read(ends[0], part.data(), part.size())) > 0;)
        text.append(part.data(), static_cast<std::size_t>(count));
    ::close(ends[0]);
    int status = 0;
    ::waitpid(child, &status, 0);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
        return "the child process ended with status " + std::to_string(status);
    return text;
}

unsigned ordinaryUser() {
    return ::geteuid() == 0 ? nobody : ::geteuid();
}

std::string asOrdinaryUser(const std::function<std::string()> &body) {
    return inChildProcess([&]() -> std::string {
        return becomeOrdinaryUser() ? body() : "cannot become an ordinary user";
    });
}

std::string withPrivateMounts(const std::function<std::string()> &body) {
    return inChildProcess([&]() -> std::string {
        if (!becomeRootOfMounts() ||
            ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
            return cannotMount;
        return body();
    });
}

bool runQuietly(const std::string &command) {
    return std::system((command + " >/dev/null 2>&1").c_str()) == 0; // NOLINT(cert-env33-c)
}

} // namespace zt::testing

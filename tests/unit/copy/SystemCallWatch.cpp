// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/copy/SystemCallWatch.h"

#include <fcntl.h>
#include <linux/filter.h>
#include <linux/fs.h> // FICLONE
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdlib>

namespace zt::testing {

namespace {

struct Call {
    long number;
    const char *name;
};

// The opening of files and the commands of devices come in both kinds, told apart by arguments.
constexpr std::array changingCalls = {
    Call{SYS_openat, "openat"},       Call{SYS_ioctl, "ioctl"},
    Call{SYS_mkdirat, "mkdirat"},     Call{SYS_write, "write"},
    Call{SYS_pwrite64, "pwrite64"},   Call{SYS_copy_file_range, "copy_file_range"},
    Call{SYS_fallocate, "fallocate"}, Call{SYS_ftruncate, "ftruncate"},
    Call{SYS_fchmod, "fchmod"},       Call{SYS_fchmodat, "fchmodat"},
    Call{SYS_fchown, "fchown"},       Call{SYS_fchownat, "fchownat"},
    Call{SYS_fsetxattr, "fsetxattr"}, Call{SYS_fremovexattr, "fremovexattr"},
    Call{SYS_utimensat, "utimensat"}, Call{SYS_symlinkat, "symlinkat"},
    Call{SYS_linkat, "linkat"},       Call{SYS_unlinkat, "unlinkat"},
    Call{SYS_unlink, "unlink"},       Call{SYS_rename, "rename"},
    Call{SYS_renameat, "renameat"},   Call{SYS_renameat2, "renameat2"},
    Call{SYS_fsync, "fsync"},         Call{SYS_fdatasync, "fdatasync"},
    Call{SYS_syncfs, "syncfs"},
};
constexpr std::array readingCalls = {
    Call{SYS_openat, "openat"},         Call{SYS_read, "read"},
    Call{SYS_pread64, "pread64"},       Call{SYS_copy_file_range, "copy_file_range"},
    Call{SYS_getdents64, "getdents64"}, Call{SYS_readlinkat, "readlinkat"},
    Call{SYS_newfstatat, "newfstatat"}, Call{SYS_fstat, "fstat"},
    Call{SYS_flistxattr, "flistxattr"}, Call{SYS_fgetxattr, "fgetxattr"},
};

std::vector<Call> callsOfKind(WatchedCalls calls) {
    if (calls == WatchedCalls::Changing)
        return {changingCalls.begin(), changingCalls.end()};
    return {readingCalls.begin(), readingCalls.end()};
}

// Lets the kernel stop this process's threads before each of the calls.
bool filterCalls(WatchedCalls calls) {
    std::vector<sock_filter> program = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr))};
    for (const Call &call : callsOfKind(calls)) {
        program.push_back(
            BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<unsigned>(call.number), 0, 1));
        program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_TRACE));
    }
    program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
    const sock_fprog filter = {static_cast<unsigned short>(program.size()), program.data()};
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

[[noreturn]] void runBody(const std::function<int()> &body, WatchedCalls calls) {
    constexpr int cannotBegin = 125;
    if (::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
        ::_exit(cannotBegin);
    ::raise(SIGSTOP);
    if (!filterCalls(calls))
        ::_exit(cannotBegin);
    ::_exit(body());
}

// Whether a stopped thread's descriptor is of a file or folder, and not a pipe's for instance: what
// the sanitizers write for themselves goes through one.
bool isInFileSystem(pid_t thread, unsigned long long descriptor) {
    const std::string link =
        "/proc/" + std::to_string(thread) + "/fd/" + std::to_string(static_cast<int>(descriptor));
    char first = 0;
    return ::readlink(link.c_str(), &first, 1) == 1 && first == '/';
}

// The call that a stopped thread is about to make; empty for one of the other kind.
std::string nameOfCall(pid_t thread, const user_regs_struct &registers, WatchedCalls calls) {
    const auto number = static_cast<long>(registers.orig_rax);
    const bool isChanging = calls == WatchedCalls::Changing;
    if (number == SYS_openat && ((registers.rdx & O_CREAT) != 0) != isChanging)
        return {};
    if ((number == SYS_write || number == SYS_read) && !isInFileSystem(thread, registers.rdi))
        return {};
    if (number == SYS_ioctl && registers.rsi != FICLONE)
        return {};
    const std::vector<Call> all = callsOfKind(calls);
    const auto found = std::find_if(all.begin(), all.end(),
                                    [&](const Call &call) { return call.number == number; });
    return found == all.end() ? std::string() : found->name;
}

class Watch {
public:
    Watch(pid_t child, WatchedCalls calls, const FateOfCall &fate)
        : m_child(child)
        , m_calls(calls)
        , m_fate(fate) {}

    std::optional<int> run();

private:
    void stepIn(pid_t thread);

    pid_t m_child;
    WatchedCalls m_calls;
    const FateOfCall &m_fate;
    int m_count = 0;
};

void Watch::stepIn(pid_t thread) {
    user_regs_struct registers = {};
    if (::ptrace(PTRACE_GETREGS, thread, nullptr, &registers) != 0)
        return;
    const std::string name = nameOfCall(thread, registers, m_calls);
    if (name.empty())
        return;
    const CallFate fate = m_fate(++m_count, name);
    if (fate.kind == CallFate::Kind::EndsTheProcess)
        ::kill(m_child, SIGKILL);
    if (fate.kind != CallFate::Kind::Fails)
        return;
    registers.orig_rax = static_cast<unsigned long long>(-1);
    registers.rax = static_cast<unsigned long long>(-fate.code);
    ::ptrace(PTRACE_SETREGS, thread, nullptr, &registers);
}

std::optional<int> Watch::run() {
    int status = 0;
    ::waitpid(m_child, &status, 0);
    constexpr auto options = PTRACE_O_TRACESECCOMP | PTRACE_O_TRACECLONE | PTRACE_O_EXITKILL;
    ::ptrace(PTRACE_SETOPTIONS, m_child, nullptr, options);
    ::ptrace(PTRACE_CONT, m_child, nullptr, 0);
    for (;;) {
        const pid_t thread = ::waitpid(-1, &status, __WALL);
        if (thread < 0)
            return std::nullopt;
        if (!WIFSTOPPED(status)) {
            if (thread != m_child)
                continue;
            return WIFEXITED(status) ? std::optional(WEXITSTATUS(status)) : std::nullopt;
        }
        int signal = 0;
        if (status >> 8 == (SIGTRAP | PTRACE_EVENT_SECCOMP << 8)) {
            stepIn(thread);
        } else if (status >> 16 == 0 && WSTOPSIG(status) != SIGSTOP) {
            // Neither an event nor the stop with which a new thread begins.
            signal = WSTOPSIG(status);
        }
        ::ptrace(PTRACE_CONT, thread, nullptr, signal);
    }
}

} // namespace

std::optional<int> runWatched(const std::function<int()> &body, WatchedCalls calls,
                              const FateOfCall &fate) {
    const pid_t child = ::fork();
    if (child == 0)
        runBody(body, calls);
    return Watch(child, calls, fate).run();
}

std::vector<std::string> callsOf(const std::function<int()> &body, WatchedCalls calls) {
    std::vector<std::string> names;
    runWatched(body, calls, [&](int /*number*/, const std::string &name) {
        names.push_back(name);
        return CallFate{};
    });
    return names;
}

bool canWatchCalls() {
    const auto names = callsOf([] { return ::fsync(-1) == -1 ? 0 : 1; }, WatchedCalls::Changing);
    return names == std::vector<std::string>{"fsync"};
}

} // namespace zt::testing

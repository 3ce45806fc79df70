// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/train/CleanProcess.h"

#include "Platform/posix/SystemCalls.h"

#include <csignal>
#include <fcntl.h>
#include <grp.h>
#include <linux/capability.h>
#include <linux/securebits.h>
#include <pthread.h>
#include <sys/auxv.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdlib>

namespace zt {

namespace {

constexpr int standardStreams = 3;
constexpr rlim_t openFiles = 1024;
constexpr std::size_t stackOfThread = std::size_t(1) << 20U;

constexpr std::uint64_t power(unsigned capability) {
    return std::uint64_t(1) << capability;
}

// To put files into root's folders and take any file out of them, to give its copies to root, and
// to act as the asker.
constexpr std::uint64_t neededPowers = power(CAP_CHOWN) | power(CAP_DAC_OVERRIDE) |
                                       power(CAP_FOWNER) | power(CAP_SETGID) | power(CAP_SETUID);

Error failure(const char *operation) {
    return Error::fromErrno(operation, "this process");
}

bool resetEnvironment() {
    // What these stand for is the same for every user of the machine.
    return ::clearenv() == 0 && ::setenv("PATH", "/usr/sbin:/usr/bin:/sbin:/bin", 1) == 0 &&
           ::setenv("LC_ALL", "C.UTF-8", 1) == 0;
}

bool resetSignals() {
    for (int signal = 1; signal < NSIG; ++signal) {
        struct sigaction action = {};
        action.sa_handler = SIG_DFL;
        // A listener that has gone is no reason to leave the work half done, and a file that would
        // become too large is one to say so.
        if (signal == SIGPIPE || signal == SIGXFSZ)
            action.sa_handler = SIG_IGN;
        // SIGKILL, SIGSTOP and those that the C library keeps to itself cannot be set.
        static_cast<void>(::sigaction(signal, &action, nullptr));
    }
    const itimerval none = {};
    for (const auto timer : {ITIMER_REAL, ITIMER_VIRTUAL, ITIMER_PROF}) {
        if (::setitimer(timer, &none, nullptr) != 0)
            return false;
    }
    sigset_t nothing = {};
    return ::sigemptyset(&nothing) == 0 && ::sigprocmask(SIG_SETMASK, &nothing, nullptr) == 0;
}

bool setLimit(__rlimit_resource_t resource, rlim_t value) {
    const rlimit wanted = {value, value};
    if (::setrlimit(resource, &wanted) == 0)
        return true;
    // In a container, root may lack the right to go beyond what was allowed at the start.
    rlimit allowed = {};
    if (errno != EPERM || ::getrlimit(resource, &allowed) != 0)
        return false;
    allowed.rlim_cur = std::min(value, allowed.rlim_max);
    return ::setrlimit(resource, &allowed) == 0;
}

bool resetLimits() {
    for (const auto resource :
         {RLIMIT_AS, RLIMIT_CPU, RLIMIT_DATA, RLIMIT_FSIZE, RLIMIT_NPROC, RLIMIT_STACK}) {
        if (!setLimit(resource, RLIM_INFINITY))
            return false;
    }
    if (!setLimit(RLIMIT_CORE, 0) || !setLimit(RLIMIT_NOFILE, openFiles))
        return false;
    // The C library took the size for new threads from the limit that was there before.
    pthread_attr_t attributes = {};
    if (::pthread_attr_init(&attributes) != 0)
        return false;
    const bool isSet = ::pthread_attr_setstacksize(&attributes, stackOfThread) == 0 &&
                       ::pthread_setattr_default_np(&attributes) == 0;
    ::pthread_attr_destroy(&attributes);
    return isSet;
}

bool keepOnly(std::uint64_t powers) {
    __user_cap_header_struct header = {_LINUX_CAPABILITY_VERSION_3, 0};
    std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> sets = {};
    if (::syscall(SYS_capget, &header, sets.data()) != 0)
        return false;
    for (__user_cap_data_struct &set : sets) {
        // Where root lacks a power, as in a container, what needs it fails by itself.
        set.permitted &= static_cast<std::uint32_t>(powers);
        set.effective = set.permitted;
        set.inheritable = 0;
        powers >>= 32U;
    }
    return ::syscall(SYS_capset, &header, sets.data()) == 0;
}

} // namespace

Result<void> cleanDescriptors() {
    for (int stream = 0; stream < standardStreams; ++stream) {
        if (::fcntl(stream, F_GETFD) >= 0)
            continue;
        // The lowest number that is free is this one. It stays open on exec like the others.
        if (::open("/dev/null", O_RDWR) != stream) // NOLINT(android-cloexec-open)
            return failure("open the standard streams of");
    }
    if (::close_range(standardStreams, ~0U, 0) != 0)
        return failure("close the descriptors of");
    return {};
}

Result<void> checkIsRoot() {
    // The kernel's word for it, whether it was the user, the group or a capability.
    if (::getauxval(AT_SECURE) != 0)
        return Error{"run", "with the rights of a file", "start it as root", EPERM};
    if (::geteuid() != 0)
        return Error{"run", "without privileges", "only root may do what this does", EPERM};
    // With it, acting as somebody else would leave root's powers over files in force.
    if ((::prctl(PR_GET_SECUREBITS) & SECBIT_NO_SETUID_FIXUP) != 0) {
        return Error{"run", "with unusual rules for privileges", "start it in the usual way",
                     EPERM};
    }
    return {};
}

Result<void> cleanProcess() {
    ::umask(S_IWGRP | S_IWOTH);
    if (!resetEnvironment())
        return failure("set the environment of");
    if (::chdir("/") != 0)
        return failure("set the working directory of");
    if (!resetSignals())
        return failure("set the signals of");
    if (!resetLimits())
        return failure("set the limits of");
    if (::setresgid(0, 0, 0) != 0 || ::prctl(PR_SET_DUMPABLE, 0) != 0 ||
        ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 || !keepOnly(neededPowers))
        return failure("set the rights of");
    return {};
}

Result<void> takeGroupsOf(const Asker &asker) {
    if (::setgroups(asker.groups.size(), asker.groups.data()) != 0)
        return Error::fromErrno("take the groups of", asker.name);
    return {};
}

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The kernel's record of a process.

#include <cstddef>
#include <cstdint>

#include <sys/time.h>

extern "C" {

constexpr int CTL_KERN = 1;
constexpr int KERN_PROC = 14;
constexpr int KERN_PROC_PID = 1;
constexpr int P_TRACED = 0x00000800;

struct extern_proc {
    union {
        struct timeval __p_starttime;
    } p_un;
    int p_flag;
    char p_stat;
    int p_pid;
};
#define p_starttime p_un.__p_starttime
struct kinfo_proc {
    struct extern_proc kp_proc;
};
int sysctl(int *name, unsigned int nameLength, void *old, std::size_t *oldSize, void *changed,
           std::size_t changedSize);

} // extern "C"

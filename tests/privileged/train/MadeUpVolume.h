#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A volume that a program makes up, and that says of itself whatever suits it.

#include <sys/types.h>

#include <string>

namespace zt::testing {

// Mounted over the folder as long as it lives: an empty folder that seems to be root's alone. Its
// program runs in a process of its own.
class MadeUpVolume {
public:
    explicit MadeUpVolume(std::string folder);
    MadeUpVolume(const MadeUpVolume &) = delete;
    MadeUpVolume &operator=(const MadeUpVolume &) = delete;
    ~MadeUpVolume();

    // Whether this machine has such volumes.
    explicit operator bool() const { return m_pid > 0; }

private:
    const std::string m_folder;
    pid_t m_pid = -1;
};

} // namespace zt::testing

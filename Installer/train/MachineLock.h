#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// One privileged installation at a time.

#include "Platform/Result.h"
#include "Platform/posix/UniqueFd.h"

#include <functional>
#include <string>

namespace zt {

// Held as long as it lives, and gone with its process. Thread: one at a time.
class MachineLock {
public:
    // A file that only root can open, for whoever can open a file can lock it: a folder for
    // applications, which all may read, would let any user hold up every installation.
    static constexpr const char *folder = "/run";
    static constexpr const char *name = "velmora-installer.lock";

    // Waits until no other process holds it; `wait` is told before it waits, once.
    static Result<MachineLock> take(const std::function<void()> &wait);

private:
    explicit MachineLock(UniqueFd file) : m_file(std::move(file)) {}

    UniqueFd m_file;
};

} // namespace zt

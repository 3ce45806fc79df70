#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The owner of a descriptor that stands for one process.

#include "Platform/Result.h"
#include "Platform/posix/UniqueFd.h"

#include <cstdint>
#include <utility>

namespace zt {

// Stands for the same process as long as it exists, also when that process ends and its id is given
// to another one. Movable. Thread: any.
class ProcessDescriptor {
public:
    // The process that has the id now. Fails with ESRCH when there is none, when it has ended and
    // waits for its parent to take note, and when the id is that of a thread other than the first.
    static Result<ProcessDescriptor> open(std::int32_t pid);

    // Whether the process has ended, noticed by its parent or not.
    bool hasEnded() const;

    // Fails with ESRCH when the process has ended, EPERM when it is not this user's.
    Result<void> sendSignal(int signal) const;

    // Readable once the process has ended. Still owned by this.
    int get() const { return m_descriptor.get(); }

private:
    explicit ProcessDescriptor(UniqueFd descriptor) : m_descriptor(std::move(descriptor)) {}

    UniqueFd m_descriptor;
};

} // namespace zt

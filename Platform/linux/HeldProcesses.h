#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Holds on processes through which the kernel tells when they end.

#include "Platform/ProcessManager.h"
#include "Platform/linux/ProcFs.h"
#include "Platform/linux/ProcessDescriptor.h"
#include "Platform/posix/UniqueFd.h"

#include <cstddef>
#include <cstdint>
#include <mutex>
#include <optional>
#include <unordered_map>
#include <vector>

namespace zt {

// Each hold takes a descriptor, so there are not arbitrarily many. While a process is held and
// runs, its id belongs to no other. Thread: any.
class HeldProcesses {
public:
    enum class State { NotHeld, Running, Ended };

    // The process file system outlives this object.
    HeldProcesses(const ProcFs &procFs, std::size_t maximumCount);

    // A quarter of the descriptors that this program may have open.
    static std::size_t reasonableCount();

    // Whether the process is held now. False when it has ended, or when too many are held.
    bool hold(ProcessSerialNumber process);

    void release(ProcessSerialNumber process);

    // Answers without reading a file.
    State state(ProcessSerialNumber process) const;

    // The held process with the id, if it runs.
    std::optional<ProcessSerialNumber> runningProcessWithPid(std::int32_t pid) const;

    // Readable when a held process has ended. Negative when the kernel gives no descriptor.
    int eventDescriptor() const { return m_events.get(); }

    // Those that have ended since; they are not held any more.
    std::vector<ProcessSerialNumber> takeEnded();

private:
    struct Hold {
        ProcessSerialNumber process;
        ProcessDescriptor descriptor;
    };
    using Holds = std::unordered_map<std::int32_t, Hold>;

    void drop(Holds::iterator held);

    const ProcFs &m_procFs;
    const std::size_t m_maximumCount;
    const UniqueFd m_events;
    mutable std::mutex m_mutex;
    Holds m_holds;
};

} // namespace zt

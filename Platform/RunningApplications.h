#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// One running application as the system's own termination services see it.

#include <cstdint>
#include <memory>

namespace zt {

// A hold on one process: what is asked of it never reaches another process, even when the process
// ends and its id is used again. Thread: one at a time.
class RunningApplication {
public:
    virtual ~RunningApplication() = default;

    // Asks the process to end: its windows are asked to close when it has any, so that it can ask
    // its user; without windows, or when asking has not helped for a while, it is sent the
    // termination signal. Meant to be called again and again; repeated calls do not repeat a
    // request that is still being answered. False when the process has ended already.
    virtual bool terminate() = 0;

    // Ends the process at once. False when it has ended already.
    virtual bool forceTerminate() = 0;

    // Whether the process has ended. A child of this very process counts as ended even when nobody
    // has taken note of its end yet.
    virtual bool isTerminated() = 0;

    RunningApplication(const RunningApplication &) = delete;
    RunningApplication &operator=(const RunningApplication &) = delete;

protected:
    RunningApplication() = default;
};

// Thread: any.
class RunningApplications {
public:
    virtual ~RunningApplications() = default;

    // A hold on the process that has the id now; null when there is none.
    virtual std::unique_ptr<RunningApplication> applicationWithPid(std::int32_t pid) = 0;

    // Whether processes can be held and ended at all on this system.
    virtual bool isAvailable() const = 0;

protected:
    RunningApplications() = default;
    RunningApplications(const RunningApplications &) = default;
    RunningApplications &operator=(const RunningApplications &) = default;
};

} // namespace zt

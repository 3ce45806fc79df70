#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The running applications of this user's session: which there are, and what each one is.

#include "Platform/Result.h"

#include <QList>
#include <QString>
#include <QVariantMap>

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>

namespace zt {

// Identifies one run of one process, also when its process id is used again later. Two unsigned
// halves, the high one first; equal exactly for the same process. How they are made is the back
// end's own matter.
struct ProcessSerialNumber {
    std::uint32_t high = 0;
    std::uint32_t low = 0;

    bool operator==(const ProcessSerialNumber &) const = default;
};

// What the system itself knows of a process.
struct ProcessInformation {
    QString name;                // never empty
    std::uint32_t signature = 0; // four-character creator code; 0x3F3F3F3F ("????") when none
};

// An application that another user of this computer runs, as far as this user may know of it.
struct ForeignApplication {
    QString name;                // never empty
    std::uint32_t signature = 0; // 0x3F3F3F3F ("????") when none
    QString location;            // the folder of its bundle
    QString userName;            // never empty

    bool operator==(const ForeignApplication &) const = default;
};

class ProcessManager {
public:
    enum class Event { Launched, Terminated, FrontSwitched };

    virtual ~ProcessManager() = default;

    // The running applications by start time. Empty when the list cannot be read. Thread: any.
    virtual QList<ProcessSerialNumber> runningApplications() const = 0;

    // What other users run from bundles that this user can read, each run for itself, in no order.
    // It rests on what these programs say of themselves, so nothing but advice can be built on it.
    // Empty when the system hides other users' processes. Thread: any.
    virtual QList<ForeignApplication> applicationsOfOtherUsers() const = 0;

    // This process; no value when it cannot be identified. Thread: any.
    virtual std::optional<ProcessSerialNumber> currentProcess() const = 0;

    // The process whose windows have the keyboard. Thread: any.
    virtual std::optional<ProcessSerialNumber> frontProcess() const = 0;

    // The process that has the id now. Also one that is no application, where the system gives
    // serial numbers to those. Thread: any.
    virtual std::optional<ProcessSerialNumber> processWithPid(std::int32_t pid) const = 0;

    // The process's id, as long as it runs; a process that has ended and is only waiting for its
    // parent to notice does not run. Thread: any.
    virtual std::optional<std::int32_t> pidOf(ProcessSerialNumber process) const = 0;

    // Facts of a running process; no value once it has ended. Thread: any.
    virtual std::optional<ProcessInformation> information(ProcessSerialNumber process) const = 0;
    virtual std::optional<QString> displayName(ProcessSerialNumber process) const = 0;
    // The folder of the bundle that it was started from, else its program file.
    virtual std::optional<QString> bundleLocation(ProcessSerialNumber process) const = 0;
    virtual QVariantMap informationDictionary(ProcessSerialNumber process) const = 0;

    // What the system knows of the process that launched this one, as informationDictionary() has
    // it. "FileCreator" is "lgnw" where the session launched it because it is a login item. Empty
    // when it cannot be told. Thread: any.
    virtual QVariantMap launcherInformation(ProcessSerialNumber process) const = 0;

    // Whether a debugger is attached to the process. Thread: any.
    virtual bool isBeingDebugged(ProcessSerialNumber process) const = 0;

    // When the process with the id began, and the user processor time it has used, in seconds.
    // Thread: any.
    virtual std::optional<std::chrono::system_clock::time_point>
    startTime(std::int32_t pid) const = 0;
    virtual std::optional<double> userProcessorTime(std::int32_t pid) const = 0;

    // Lets a process that is stopped run again. Thread: any.
    virtual void wakeUp(ProcessSerialNumber process) = 0;

    // Calls the listener on the main thread for each event from now on; one listener. Thread: main.
    virtual void setEventListener(std::function<void(Event)> listener) = 0;

protected:
    ProcessManager() = default;
    ProcessManager(const ProcessManager &) = default;
    ProcessManager &operator=(const ProcessManager &) = default;
};

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Notices when applications start, end and come to the front.

#include "Platform/ProcessManager.h"
#include "Platform/WindowSystem.h"
#include "Platform/linux/HeldProcesses.h"
#include "Platform/linux/ProcFs.h"

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <unordered_map>

namespace zt {

// Ends are told by the kernel, at once. Starts are told at once by the window system for what shows
// a window; for the others the number that the kernel gave out last is looked at, every second to
// every fourth, and only when it has changed are the processes looked through. Thread: main.
class ApplicationWatch {
public:
    struct Environment {
        const ProcFs &procFs;
        HeldProcesses &heldProcesses;
        WindowSystem &windowSystem;
        // The running applications; see ProcessManager::runningApplications.
        std::function<QList<ProcessSerialNumber>()> runningApplications;
        // Whether the process runs; see ProcessManager::pidOf.
        std::function<bool(ProcessSerialNumber)> isRunning;
    };

    // What the environment refers to outlives this object. Applications that run now are not told.
    ApplicationWatch(Environment environment, std::function<void(ProcessManager::Event)> listener);
    ~ApplicationWatch();
    ApplicationWatch(const ApplicationWatch &) = delete;
    ApplicationWatch &operator=(const ApplicationWatch &) = delete;

private:
    void processesHaveEnded();
    void timeHasPassed();
    void lookForChanges();
    void learnApplications(bool areNew);
    void noticeEnds();
    void tell(ProcessManager::Event event, int count);

    const Environment m_environment;
    const std::function<void(ProcessManager::Event)> m_listener;
    std::unordered_map<std::uint64_t, ProcessSerialNumber> m_known;
    std::optional<std::int32_t> m_lastProcessId;
    bool m_looksAgain =
        false; // a process seen at its birth may become an application a little later
    std::chrono::milliseconds m_pause;
    std::chrono::steady_clock::time_point m_lastLook;
    QTimer m_timer;
    QTimer m_windowTimer;
    QSocketNotifier m_endNotifier;
};

} // namespace zt

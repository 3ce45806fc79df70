#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Running applications for unit tests.

#include "Platform/ProcessManager.h"

#include <QMap>

#include <mutex>
#include <vector>

// What a test says of a process. No location: the process has none.
struct FakeProcess {
    QString name;
    std::uint32_t signature = 0x3F3F3F3F;
    std::optional<QString> displayName = {};
    std::optional<QString> location = {};
    QVariantMap informationDictionary = {};
    QVariantMap launcherInformation = {};
    bool isBeingDebugged = false;
    std::chrono::system_clock::time_point start = {};
    double processorTime = 0.0;
    bool isApplication = true;
};

// Processes start, end and come to the front when the test says so, and the listener hears of it on
// the main thread: at once when that is where it happens. Thread: any.
class FakeProcessManager final : public zt::ProcessManager {
public:
    // The process with the id begins to run; an earlier one with that id must have ended.
    zt::ProcessSerialNumber start(std::int32_t pid, const FakeProcess &process);
    void end(std::int32_t pid);
    void bringToFront(std::int32_t pid);
    // Which process is this one.
    void setCurrent(std::int32_t pid);
    // What the system now tells of a process that runs.
    void change(std::int32_t pid, const FakeProcess &process);
    // Lets the listener hear of an event as it is.
    void tell(Event event);

    bool hasListener() const;
    // The processes that were woken up, in order.
    QList<std::int32_t> wokenUp() const;
    // How often the listener was set.
    int listenerChanges() const;

    // What other users run.
    void setApplicationsOfOtherUsers(const QList<zt::ForeignApplication> &applications);

    QList<zt::ProcessSerialNumber> runningApplications() const override;
    QList<zt::ForeignApplication> applicationsOfOtherUsers() const override;
    std::optional<zt::ProcessSerialNumber> currentProcess() const override;
    std::optional<zt::ProcessSerialNumber> frontProcess() const override;
    std::optional<zt::ProcessSerialNumber> processWithPid(std::int32_t pid) const override;
    std::optional<std::int32_t> pidOf(zt::ProcessSerialNumber process) const override;
    std::optional<zt::ProcessInformation>
    information(zt::ProcessSerialNumber process) const override;
    std::optional<QString> displayName(zt::ProcessSerialNumber process) const override;
    std::optional<QString> bundleLocation(zt::ProcessSerialNumber process) const override;
    QVariantMap informationDictionary(zt::ProcessSerialNumber process) const override;
    QVariantMap launcherInformation(zt::ProcessSerialNumber process) const override;
    bool isBeingDebugged(zt::ProcessSerialNumber process) const override;
    std::optional<std::chrono::system_clock::time_point> startTime(std::int32_t pid) const override;
    std::optional<double> userProcessorTime(std::int32_t pid) const override;
    void wakeUp(zt::ProcessSerialNumber process) override;
    void setEventListener(std::function<void(Event)> listener) override;

private:
    struct Running {
        std::int32_t pid = 0;
        zt::ProcessSerialNumber serialNumber;
        FakeProcess process;
    };

    const Running *find(std::int32_t pid) const;
    std::optional<FakeProcess> runningProcess(zt::ProcessSerialNumber process) const;

    mutable std::mutex m_mutex;
    std::vector<Running> m_running; // by start
    QList<zt::ForeignApplication> m_ofOtherUsers;
    std::uint32_t m_starts = 0;
    std::optional<std::int32_t> m_current;
    std::optional<std::int32_t> m_front;
    QList<std::int32_t> m_wokenUp;
    std::function<void(Event)> m_listener;
    int m_listenerChanges = 0;
};

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Running applications, from the Process Manager.

#include "Platform/ProcessManager.h"
#include "Platform/macos/CarbonEventHandler.h"

#include <memory>

namespace zt {

class Bundles;
class ChildProcesses;

class CarbonProcessManager final : public ProcessManager {
public:
    // The services outlive this object.
    CarbonProcessManager(ChildProcesses &childProcesses, const Bundles &bundles);

    QList<ProcessSerialNumber> runningApplications() const override;
    QList<ForeignApplication> applicationsOfOtherUsers() const override;
    std::optional<ProcessSerialNumber> currentProcess() const override;
    std::optional<ProcessSerialNumber> frontProcess() const override;
    std::optional<ProcessSerialNumber> processWithPid(std::int32_t pid) const override;
    std::optional<std::int32_t> pidOf(ProcessSerialNumber process) const override;
    std::optional<ProcessInformation> information(ProcessSerialNumber process) const override;
    std::optional<QString> displayName(ProcessSerialNumber process) const override;
    std::optional<QString> bundleLocation(ProcessSerialNumber process) const override;
    QVariantMap informationDictionary(ProcessSerialNumber process) const override;
    QVariantMap launcherInformation(ProcessSerialNumber process) const override;
    bool isBeingDebugged(ProcessSerialNumber process) const override;
    std::optional<std::chrono::system_clock::time_point> startTime(std::int32_t pid) const override;
    std::optional<double> userProcessorTime(std::int32_t pid) const override;
    void wakeUp(ProcessSerialNumber process) override;
    void setEventListener(std::function<void(Event)> listener) override;

private:
    ChildProcesses &m_childProcesses;
    const Bundles &m_bundles;
    std::unique_ptr<CarbonEventHandler> m_events;
};

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Running applications, from the process file system and the windows on the screen.

#include "Platform/Bundles.h"
#include "Platform/ProcessManager.h"
#include "Platform/WindowSystem.h"
#include "Platform/linux/ApplicationWatch.h"
#include "Platform/linux/HeldProcesses.h"
#include "Platform/linux/ProcFs.h"
#include "Platform/linux/ProcPrograms.h"

#include <memory>
#include <string>

namespace zt {

// An application is a process of this user that runs from a bundle, or that has owned a top-level
// window when it was looked at.
class ProcProcessManager final : public ProcessManager {
public:
    // The services outlive this object. `procRoot` is where the process file system is found.
    ProcProcessManager(const Bundles &bundles, WindowSystem &windowSystem,
                       const std::string &procRoot = "/proc");
    ~ProcProcessManager() override;
    ProcProcessManager(const ProcProcessManager &) = delete;
    ProcProcessManager &operator=(const ProcProcessManager &) = delete;

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
    ProcPrograms::Pointer programOf(ProcessSerialNumber process) const;

    ProcFs m_procFs;
    const Bundles &m_bundles;
    WindowSystem &m_windowSystem;
    HeldProcesses m_heldProcesses;
    mutable ProcPrograms m_programs; // fills itself when it is asked; guards itself
    std::unique_ptr<ApplicationWatch> m_watch;
};

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/InstallerWinController.h"

#include "Platform/Clock.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"
#include "ZTStuff/ZTClasses/ZTInstallerInterface.h"
#include "ZTStuff/ZTClasses/ZTProcess.h"

#include <algorithm>

using namespace std::chrono_literals;

bool InstallerWinController::signatureIsInArray(FourCharCode signature, const QStringList &codes) {
    return std::any_of(codes.begin(), codes.end(), [signature](const QString &code) {
        return UTGetOSTypeFromString(code) == signature;
    });
}

void InstallerWinController::quitProcesses() const {
    const QStringList codes = m_arguments.value(ZTInstallerKeyQuitCode).toStringList();
    const auto self = ZTProcess::currentProcess();
    for (const auto &process : ZTProcess::allProcesses()) {
        if (!signatureIsInArray(process->signature(), codes) || process->isEqual(self.get()))
            continue;
        ZTLog("Quitting '%@': %@", process->signatureString(), process->name());
        process->quit();
        // Gives the application's helpers time to follow it before the next one is asked.
        m_platform.clock.sleepFor(100ms);
    }
}

std::optional<QString> InstallerWinController::processToQuitStillRunning() const {
    const QStringList codes = m_arguments.value(ZTInstallerKeyQuitCode).toStringList();
    const auto self = ZTProcess::currentProcess();
    for (const auto &process : ZTProcess::allProcesses()) {
        if (!signatureIsInArray(process->signature(), codes) || process->isEqual(self.get()))
            continue;
        const auto name = process->name();
        ZTLog("Still running '%@': %@", process->signatureString(), name);
        return name;
    }
    return std::nullopt;
}

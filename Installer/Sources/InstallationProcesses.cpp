// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/Installation.h"

#include "Installer/Sources/ProgramsToQuit.h"
#include "Platform/Clock.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"
#include "ZTStuff/ZTClasses/ZTInstallerInterface.h"

#include <algorithm>

using namespace std::chrono_literals;

bool Installation::signatureIsInArray(FourCharCode signature, const QStringList &codes) {
    return std::any_of(codes.begin(), codes.end(), [signature](const QString &code) {
        return UTGetOSTypeFromString(code) == signature;
    });
}

void Installation::quitProcesses() const {
    const ProgramsToQuit toQuit(m_arguments.value(ZTInstallerKeyQuitCode).toStringList());
    for (const auto &process : ZTProcess::allProcesses()) {
        if (!toQuit.contain(*process))
            continue;
        ZTLog("Quitting '%@': %@", process->signatureString(), process->name());
        process->quit();
        // Gives the application's helpers time to follow it before the next one is asked.
        m_platform.clock.sleepFor(100ms);
    }
}

std::optional<QString> Installation::processToQuitStillRunning() const {
    const ProgramsToQuit toQuit(m_arguments.value(ZTInstallerKeyQuitCode).toStringList());
    for (const auto &process : ZTProcess::allProcesses()) {
        if (!toQuit.contain(*process))
            continue;
        auto name = process->name();
        ZTLog("Still running '%@': %@", process->signatureString(), name);
        return name;
    }
    return std::nullopt;
}

std::optional<QString> Installation::quitRunningCopies(const std::stop_token &stop) const {
    constexpr int retries = 3;
    quitProcesses();
    const auto name = processToQuitStillRunning();
    if (!name)
        return std::nullopt;
    ZTLog("%@ did not quit; will retry", *name);
    for (int retry = 0; retry < retries && !stop.stop_requested(); ++retry) {
        m_platform.clock.sleepFor(1s);
        quitProcesses();
        if (!processToQuitStillRunning())
            break;
    }
    return processToQuitStillRunning();
}

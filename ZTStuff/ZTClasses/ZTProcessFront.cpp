// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTProcess.h"

#include "Platform/WindowSystem.h"

void ZTProcess::wakeUp() const {
    m_platform.processManager.wakeUp(m_serialNumber);
}

void ZTProcess::setHidden(bool hidden) const {
    if (const std::int32_t pid = unixPID(); pid != 0)
        m_platform.windowSystem.setHidden(pid, hidden);
}

void ZTProcess::setFrontProcess() const {
    if (const std::int32_t pid = unixPID(); pid != 0)
        m_platform.windowSystem.bringToFront(pid, zt::WindowSystem::Windows::All);
}

void ZTProcess::setFrontProcessFrontWindowOnly() const {
    if (const std::int32_t pid = unixPID(); pid != 0)
        m_platform.windowSystem.bringToFront(pid, zt::WindowSystem::Windows::FrontOnly);
}

void ZTProcess::temporarilySwitchOut() const {
    if (const Pointer thisProgram = currentProcess())
        thisProgram->setFrontProcess();
    setFrontProcessFrontWindowOnly();
    wakeUp();
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/CarbonWindowSystem.h"

#include "Platform/macos/CFOwner.h"

#include <ApplicationServices/ApplicationServices.h>
#include <Carbon/Carbon.h>

#include <array>
#include <utility>

namespace zt {

namespace {

// The layer of ordinary windows; menus, the Dock and the like are in others.
constexpr std::int32_t ordinaryLayer = 0;

std::optional<std::int32_t> numberIn(CFDictionaryRef window, CFStringRef key) {
    const void *const number = CFDictionaryGetValue(window, key);
    std::int32_t value = 0;
    if (!number ||
        CFNumberGetValue(static_cast<CFNumberRef>(number), kCFNumberSInt32Type, &value) == 0)
        return std::nullopt;
    return value;
}

std::optional<::ProcessSerialNumber> serialNumberOf(std::int32_t pid) {
    ::ProcessSerialNumber process = {};
    if (GetProcessForPID(pid, &process) != noErr)
        return std::nullopt;
    return process;
}

} // namespace

QList<std::int32_t> CarbonWindowSystem::processesWithWindows() const {
    const CFOwner windows(
        CGWindowListCopyWindowInfo(kCGWindowListExcludeDesktopElements, kCGNullWindowID));
    QList<std::int32_t> processes;
    const CFIndex count = windows ? CFArrayGetCount(windows.get()) : 0;
    for (CFIndex index = 0; index < count; ++index) {
        const auto *const window =
            static_cast<CFDictionaryRef>(CFArrayGetValueAtIndex(windows.get(), index));
        const auto owner = numberIn(window, kCGWindowOwnerPID);
        if (owner && numberIn(window, kCGWindowLayer) == ordinaryLayer &&
            !processes.contains(*owner))
            processes << *owner;
    }
    return processes;
}

std::optional<std::int32_t> CarbonWindowSystem::frontProcess() const {
    ::ProcessSerialNumber front = {};
    pid_t pid = 0;
    if (GetFrontProcess(&front) != noErr || GetProcessPID(&front, &pid) != noErr)
        return std::nullopt;
    return pid;
}

void CarbonWindowSystem::bringToFront(std::int32_t pid, Windows windows) {
    const auto process = serialNumberOf(pid);
    if (!process)
        return;
    switch (windows) {
    case Windows::All:
        SetFrontProcess(&*process);
        break;
    case Windows::FrontOnly:
        SetFrontProcessWithOptions(&*process, kSetFrontProcessFrontWindowOnly);
        break;
    }
}

void CarbonWindowSystem::setHidden(std::int32_t pid, bool hidden) {
    if (const auto process = serialNumberOf(pid))
        ShowHideProcess(&*process, Boolean(!hidden));
}

int CarbonWindowSystem::requestClose(std::int32_t /*pid*/) {
    return 0;
}

void CarbonWindowSystem::setChangeListeners(std::function<void()> frontChanged,
                                            std::function<void()> windowsChanged) {
    m_events.reset();
    if (!frontChanged && !windowsChanged)
        return;
    constexpr std::array<CarbonEventType, 3> wanted = {{
        {kEventClassApplication, kEventAppLaunched},
        {kEventClassApplication, kEventAppTerminated},
        {kEventClassApplication, kEventAppFrontSwitched},
    }};
    // On the way of every event, so that whoever handles it first can keep it from nobody.
    m_events = CarbonEventHandler::install(
        CarbonEventHandler::Target::Dispatcher, wanted,
        [frontChanged = std::move(frontChanged),
         windowsChanged = std::move(windowsChanged)](CarbonEventType event) -> std::int32_t {
            const auto &tell =
                event.eventKind == kEventAppFrontSwitched ? frontChanged : windowsChanged;
            if (tell)
                tell();
            return eventNotHandledErr;
        });
}

bool CarbonWindowSystem::blurBehind(std::uint64_t window, const QList<QRect> &parts) {
    return m_blur(window, parts);
}

} // namespace zt

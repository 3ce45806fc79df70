// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include "Platform/Platform.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"
#include "ZTStuff/ZTClasses/ZTUtilitiesState.h"

bool ZTUtilities::fullScreenMode() {
    InstallMenuBarEventMonitor();
    return ZTUtilitiesState::shared().menuBarIsShown;
}

void InstallMenuBarEventMonitor() {
    zt::MenuBarEvents::Handler &installed = ZTUtilitiesState::shared().menuBarEventHandler;
    if (installed)
        return;
    // Stays set whatever comes of it, so that it is tried only once.
    installed = MonitorMenuBarEventHandler;
    if (!zt::currentPlatform().menuBarEvents.installHandler(menuBarEventsWanted, installed))
        ZTLog("could not install menu bar visibility event handl)");
}

std::int32_t MonitorMenuBarEventHandler(zt::MenuBarEvents::Type event) {
    if (event == zt::MenuBarEvents::hidden)
        ZTUtilitiesState::shared().menuBarIsShown = true;
    else if (event == zt::MenuBarEvents::shown)
        ZTUtilitiesState::shared().menuBarIsShown = false;
    return zt::MenuBarEvents::notHandled;
}

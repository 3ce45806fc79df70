// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include "Platform/Platform.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"

bool ZTUtilities::fullScreenMode() {
    InstallMenuBarEventMonitor();
    return menuBarIsShown;
}

void ZTUtilities::platformChanged() {
    menuBarEventHandler = nullptr;
    menuBarIsShown = false;
}

void InstallMenuBarEventMonitor() {
    if (ZTUtilities::menuBarEventHandler)
        return;
    // Stays set whatever comes of it, so that it is tried only once.
    ZTUtilities::menuBarEventHandler = MonitorMenuBarEventHandler;
    zt::MenuBarEvents &events = zt::currentPlatform().menuBarEvents;
    if (!events.installHandler(menuBarEventsWanted, ZTUtilities::menuBarEventHandler))
        ZTLog("could not install menu bar visibility event handl)");
}

std::int32_t MonitorMenuBarEventHandler(zt::MenuBarEvents::Type event) {
    if (event == zt::MenuBarEvents::hidden)
        ZTUtilities::menuBarIsShown = true;
    else if (event == zt::MenuBarEvents::shown)
        ZTUtilities::menuBarIsShown = false;
    return zt::MenuBarEvents::notHandled;
}

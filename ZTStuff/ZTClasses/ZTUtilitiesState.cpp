// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTUtilitiesState.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"
#include "ZTStuff/ZTClasses/ZTUtilities.h"

ZTUtilitiesState &ZTUtilitiesState::shared() {
    static auto &state = *new ZTUtilitiesState;
    return state;
}

void ZTUtilitiesState::noteUnknown(Unknown unknown, QAnyStringView line) {
    if ((notedUnknowns.fetch_or(unknown) & unknown) == 0)
        ZTLog(line);
}

void ZTUtilitiesState::clear() {
    {
        const std::scoped_lock lock(classLock);
        initialized = false;
    }
    activeProcess = nullptr;
    clipboardPublisherProcess = nullptr;
    clipboardChangeCountAtStartOfActiveProcess.reset();
    processObservation = {};
    menuBarEventHandler = nullptr;
    menuBarIsShown = false;
    darkNotificationInstalled = false;
    decimalSystemVersion = 0;
    notedUnknowns = 0;
}

void ZTUtilities::platformChanged() {
    ZTUtilitiesState::shared().clear();
}

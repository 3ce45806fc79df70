#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the utilities keep between two calls.

#include "Platform/MenuBarEvents.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/NotificationCenter.h"

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>

class ZTProcess;

// Thread: main, except where said.
struct ZTUtilitiesState {
    // What is noted in the log once because the system does not tell it.
    enum Unknown : std::uint32_t { ClipboardChanges = 1, DarkInterface = 2, IdleTime = 4 };

    // The one of the whole program. It lives until that has ended, so that what it holds is not
    // torn down after the services that it uses. Thread: any.
    static ZTUtilitiesState &shared();

    // Writes the line the first time. Thread: any.
    void noteUnknown(Unknown unknown, QAnyStringView line);

    // As if nothing had been asked yet.
    void clear();

    std::mutex classLock;
    bool initialized = false; // the watcher was scheduled; guarded by the lock

    // Null without one.
    std::shared_ptr<ZTProcess> activeProcess;
    std::shared_ptr<ZTProcess> clipboardPublisherProcess;
    // No value when the system did not tell it.
    std::optional<std::int32_t> clipboardChangeCountAtStartOfActiveProcess;
    NotificationCenter::Observation processObservation;

    zt::MenuBarEvents::Handler menuBarEventHandler; // empty until it is installed
    bool menuBarIsShown = false; // true while the menu bar is hidden, in spite of its name

    bool darkNotificationInstalled = false;

    // Thread: any, for both. 0: not computed yet, or unknown, in which case the next call asks
    // again.
    std::atomic<std::int32_t> decimalSystemVersion = 0;
    std::atomic<std::uint32_t> notedUnknowns = 0;
};

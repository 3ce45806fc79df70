#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// System and version utilities: class operations without instances.

#include "Platform/MenuBarEvents.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/Ordering.h"

#include <QString>
#include <QStringView>

#include <array>
#include <cstddef>
#include <cstdint>

// The stage of a development letter: p 0, d 1, a 2, b 3, f 4, blank 5; any other unit 0.
int developmentStage(char16_t letter);

// All operations use the current platform. Thread: main, unless an operation says otherwise.
class ZTUtilities {
public:
    struct ThreePartVersion {
        std::uint16_t major = 0;
        std::uint16_t minor = 0;
        std::uint16_t bugFix = 0;

        bool operator==(const ThreePartVersion &) const = default;
    };

    ZTUtilities() = delete;

    // This application's executable name and build version, from its bundle; "" when unknown.
    static QString applicationName();
    static QString versionString();

    // The leading digits and dots of the version: "1.2.3" of "1.2.3b4". Thread: any.
    static QString plainVersionOf(const QString &version);
    static QString plainVersionString();

    // The system version as packed decimal digits 0xMMmb; 0 when unknown.
    static std::uint32_t hexSystemVersion();

    // The system version in three numbers; all 0 when unknown.
    static ThreePartVersion threePartVersion();

    // major x 10000 + minor x 100 + bug-fix, asked of the system once; 0 when unknown.
    static std::int32_t decimalSystemVersion();

    // "13.2.1", or "13.2" when the bug-fix number is 0.
    static QString systemVersionString();

    // Orders two versions. Each is split at its first letter into a base, a development stage and
    // a rest; a version without a letter ranks behind every lettered one of the same base:
    // 2.1b3 < 2.1b10 < 2.1f1 < 2.1 < 2.1.0. Thread: any.
    static Ordering compareVersion(const QString &version, const QString &withVersion);

    // A date written YYYY-MM-DD, taken at midnight UTC, in the short form of the user's locale and
    // time zone; "" when it is no date. Thread: any.
    static QString localizedDateString(const QString &date);

    // Whether the application framework is that of the given release, or newer (older).
    static bool pantherOrOlder();
    static bool leopardOrNewer();
    static bool snowleopardOrNewer();
    static bool lionOrNewer();
    static bool mountainLionOrNewer();
    static bool mavericksOrNewer();
    static bool yosemiteOrNewer();
    static bool elCapitanOrNewer();
    static bool sierraOrNewer();
    static bool highSierraOrNewer();
    static bool mojaveOrNewer();

    // The user's environment (ZTUtilitiesEnvironment.cpp, ZTUtilitiesMenuBar.cpp). Where the system
    // cannot tell, the answer is the neutral one, and a line in the log says so once.

    // Whether the menu bar is hidden because the program in front fills the screen. Begins to
    // listen for that when it is first asked, and answers false until the first change after it.
    static bool fullScreenMode();

    // Forgets everything that was learnt from the platform before, for a program that has made
    // another one the current platform.
    static void platformChanged();

private:
    friend std::int32_t MonitorMenuBarEventHandler(zt::MenuBarEvents::Type event);
    friend void InstallMenuBarEventMonitor();

    // Class-wide state, used on the main thread alone.
    static inline zt::MenuBarEvents::Handler menuBarEventHandler; // empty until it is installed
    // True while the menu bar is hidden, in spite of its name.
    static inline bool menuBarIsShown = false;
};

// The events that the menu-bar monitor wants: shown, hidden.
inline constexpr std::array menuBarEventsWanted = {zt::MenuBarEvents::shown,
                                                   zt::MenuBarEvents::hidden};
inline constexpr std::size_t nMenuBarEventsWanted = menuBarEventsWanted.size();

// Begins to listen for menu-bar events, once. Thread: main, as for the next.
void InstallMenuBarEventMonitor();

// Notes whether the menu bar is hidden, and lets the event travel on to other handlers.
std::int32_t MonitorMenuBarEventHandler(zt::MenuBarEvents::Type event);

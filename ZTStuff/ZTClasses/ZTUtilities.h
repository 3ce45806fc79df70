#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// System and version utilities: class operations without instances.

#include "Platform/MenuBarEvents.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/Ordering.h"

#include <QString>
#include <QStringList>
#include <QStringView>

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>

class QIcon;
class ZTProcess;
struct Notification;

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

    // Whether this application runs from a disk that it is distributed on: a volume at whose top
    // there is an item named ".launchlock" or "launchlock". Thread: any, as for the other two.
    static bool runningFromDistributionDisk();

    // Whether this application is to be taken as not installed yet: it runs from its distribution
    // disk or from a folder for temporary items.
    static bool installationMode();

    // What the alias leads to in the end; the path itself when it is no alias or leads nowhere.
    static QString resolvedAlias(const QString &path);

    // Runs the executable script itself, in the user's home folder and with nothing to read, and
    // answers what it has printed to both output streams, in the order written. After `timeout`
    // seconds it is asked to end, with all that it has started; the answer is then what it has
    // printed until then. No value when that is not UTF-8; the text "script NAME failed: REASON"
    // when the script could not be run. The path may begin with "~". Thread: any, as for the other
    // two.
    static std::optional<QString> runShellScript(const QString &path,
                                                 const std::optional<QStringList> &withParameters,
                                                 double timeout);

    // Has the line run by the shell, and answers what it prints to its standard output until that
    // is closed, however long this takes. No value when that is not UTF-8.
    static std::optional<QString> shellCommandResult(const QString &commandLine);

    // Has the desktop open the document, folder or bundle, without waiting for it.
    static void openFile(const QString &path);

    // Opens the helper "Micro" among this application's resources, which comes to the front, and
    // puts the application that was in front before back there: at once, or, when the helper is
    // first left in front, once that has given way by itself or half a second later. Takes about a
    // second at most. Does nothing while the program in front fills the screen. Part of
    // ZTStuff::gui.
    static void launchMicro(bool leavesItInFront);

    // The user's environment. Where the system cannot tell, the answer is the neutral one, and a
    // line in the log says so once.

    // Begins, a second from now, to watch who changes the clipboard. A program that wants to know
    // that calls this early; the first clipboardPublisherProcess() does it too late for what was
    // copied before. Does nothing the second time. Thread: main, as for all that follow.
    static void initialize();
    static void installProcessWatcher();
    // Notes whether the clipboard was changed while the process was in front that is not any more.
    static void processSwitched(const Notification &notification);
    // The process that put onto the clipboard what is there now, as far as it was watched; null
    // when that is not known. Links ZTStuff::gui, as does systemTintImage().
    static std::shared_ptr<ZTProcess> clipboardPublisherProcess();

    // The address as this system can open it: where it is too old for today's secure connections,
    // one that begins with "https:" begins with "http:" instead. Too old is a system
    // before 10.13.0, or before the version from 100000 to 109999 that the setting "httpsMinSys"
    // names.
    static QString safeHTTPS(const QString &url);

    // Whether the menu bar is hidden because the program in front fills the screen. Begins to
    // listen for that when it is first asked, and answers false until the first change after it.
    static bool fullScreenMode();

    // Whether the user wants dark menus, and whether this system has a dark interface for all of
    // the window. Asked of the system each time, so that a change counts at once.
    static bool darkMenuTheme();
    static bool darkAppearance();
    // What is called when the user changes it. Does nothing: the next question has the answer.
    static void darkModeChanged(const Notification &notification);

    // The picture of a tint that fits the user's controls, in the light or the dark interface.
    static QIcon systemTintImage();

    // Seconds since the user last touched a key, a button or the mouse; -1.0 when unknown.
    static float idleTime();

    // The system's name for the type of file system that holds the item; "" when unknown.
    static QString fileSystemTypeFor(const QString &path);

    // Whether the process that launched this application has that four-character creator code.
    static bool wasLaunchedByProcess(const QString &creatorCode);
    static bool wasLaunchedAsLoginItem();

    static bool displayIsZoomed();

    // Whether a debugger is attached to this process.
    static bool debugging();

    // Forgets everything that was learnt from the platform before, for a program that has made
    // another one the current platform.
    static void platformChanged();
};

// The events that the menu-bar monitor wants: shown, hidden.
inline constexpr std::array menuBarEventsWanted = {zt::MenuBarEvents::shown,
                                                   zt::MenuBarEvents::hidden};
inline constexpr std::size_t nMenuBarEventsWanted = menuBarEventsWanted.size();

// Begins to listen for menu-bar events, once. Thread: main, as for the next.
void InstallMenuBarEventMonitor();

// Notes whether the menu bar is hidden, and lets the event travel on to other handlers.
std::int32_t MonitorMenuBarEventHandler(zt::MenuBarEvents::Type event);

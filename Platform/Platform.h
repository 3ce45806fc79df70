#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Everything that the program asks of an operating system, gathered in one place and handed down.

namespace zt {

class Accessibility;
class Appearance;
class ApplicationEvents;
class Authorization;
class Bundles;
class ChildProcesses;
class Clock;
class FileSystems;
class Interruptions;
class KeyboardLayout;
class Log;
class LoginItems;
class MenuBarEvents;
class Pasteboard;
class ProcessManager;
class RunningApplications;
class Sounds;
class SystemVersion;
class Trash;
class UserDefaults;
class UserInput;
class WindowSystem;
class Workspace;

// References to services that outlive it.
struct Platform {
    Log &log;
    Clock &clock;
    ChildProcesses &childProcesses;
    Bundles &bundles;
    UserDefaults &userDefaults;
    SystemVersion &systemVersion;
    LoginItems &loginItems;
    Workspace &workspace;
    Appearance &appearance;
    Trash &trash;
    WindowSystem &windowSystem;
    ProcessManager &processManager;
    RunningApplications &runningApplications;
    ApplicationEvents &applicationEvents;
    Accessibility &accessibility;
    Authorization &authorization;
    KeyboardLayout &keyboardLayout;
    Sounds &sounds;
    MenuBarEvents &menuBarEvents;
    Pasteboard &pasteboard;
    UserInput &userInput;
    FileSystems &fileSystems;
    Interruptions &interruptions;
};

// The platform that class-level operations use. The program ends at once when none is installed.
// Thread: any.
const Platform &currentPlatform();

// Makes a platform the current one for its own lifetime, then the one before it again.
// Thread: main, while no other thread uses the current platform.
class ScopedPlatform {
public:
    explicit ScopedPlatform(const Platform &platform);
    ~ScopedPlatform();
    ScopedPlatform(const ScopedPlatform &) = delete;
    ScopedPlatform &operator=(const ScopedPlatform &) = delete;

private:
    const Platform *m_previous;
};

} // namespace zt

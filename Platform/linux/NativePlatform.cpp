// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/NativePlatform.h"

#include "Platform/linux/AtSpiAccessibility.h"
#include "Platform/linux/AutostartLoginItems.h"
#include "Platform/linux/BusApplicationEvents.h"
#include "Platform/linux/BusInterruptions.h"
#include "Platform/linux/DesktopWorkspace.h"
#include "Platform/linux/FreedesktopTrash.h"
#include "Platform/linux/LinuxBundles.h"
#include "Platform/linux/LinuxSystemVersion.h"
#include "Platform/linux/LinuxUserDefaults.h"
#include "Platform/linux/MountedFileSystems.h"
#include "Platform/linux/PidfdRunningApplications.h"
#include "Platform/linux/PolkitAuthorization.h"
#include "Platform/linux/PortalAppearance.h"
#include "Platform/linux/ProcProcessManager.h"
#include "Platform/linux/SpawnedChildProcesses.h"
#include "Platform/linux/StandardErrorLog.h"
#include "Platform/linux/SystemSettings.h"
#include "Platform/linux/X11KeyboardLayout.h"
#include "Platform/linux/X11MenuBarEvents.h"
#include "Platform/linux/X11Pasteboard.h"
#include "Platform/linux/X11UserInput.h"
#include "Platform/linux/X11WindowSystem.h"
#include "Platform/linux/sound/PulseSounds.h"
#include "Platform/portable/EventLoopClock.h"

#include <QDir>
#include <QStandardPaths>

#include <fontconfig/fontconfig.h>
#include <pthread.h>
#include <sched.h>

using namespace Qt::StringLiterals;

namespace zt {

namespace {

QString configurationFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
}

QString settingsDomain(const Bundle &bundle) {
    return bundle.stringForKey(u"CFBundleIdentifier"_s).value_or(QString());
}

PulseSounds::Folders soundFolders() {
    return {QString(), QDir::homePath(),
            QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation)};
}

DesktopWorkspace::Folders workspaceFolders() {
    QStringList data = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    const QString userData = data.takeFirst();
    return {QString(), QDir::homePath(), userData, data};
}

} // namespace

std::future<void> beginPreparingTexts() {
    return std::async(std::launch::async, [] {
        // Where processors are few, it must not keep the X server from answering: the main thread
        // waits for that.
        const sched_param parameters{};
        pthread_setschedparam(pthread_self(), SCHED_IDLE, &parameters);
        FcInit(); // which is known to work on several threads
    });
}

bool canShowWindows() {
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

struct NativePlatform::Services {
    explicit Services(const QStringList &arguments)
        : userDefaults(arguments, configurationFolder(), settingsDomain(bundles.mainBundle()),
                       [this](const QString &key) { return systemSetting(key, appearance); }) {}

    StandardErrorLog log;
    EventLoopClock clock;
    SpawnedChildProcesses childProcesses;
    LinuxBundles bundles;
    LinuxUserDefaults userDefaults;
    LinuxSystemVersion systemVersion;
    AutostartLoginItems loginItems{configurationFolder(), bundles};
    PortalAppearance appearance{configurationFolder()};
    FreedesktopTrash trash{FreedesktopTrash::rootsOfThisUser()};
    X11WindowSystem windowSystem;
    DesktopWorkspace workspace{workspaceFolders(), {bundles, windowSystem, clock, log}};
    ProcProcessManager processManager{bundles, windowSystem};
    PidfdRunningApplications runningApplications{clock, windowSystem};
    BusApplicationEvents applicationEvents;
    AtSpiAccessibility accessibility;
    PolkitAuthorization authorization{log};
    X11KeyboardLayout keyboardLayout;
    X11MenuBarEvents menuBarEvents;
    X11Pasteboard pasteboard;
    X11UserInput userInput;
    MountedFileSystems fileSystems;
    BusInterruptions interruptions{log};
    PulseSounds sounds{soundFolders()}; // goes first, with tasks that use the others
    Platform platform{.log = log,
                      .clock = clock,
                      .childProcesses = childProcesses,
                      .bundles = bundles,
                      .userDefaults = userDefaults,
                      .systemVersion = systemVersion,
                      .loginItems = loginItems,
                      .workspace = workspace,
                      .appearance = appearance,
                      .trash = trash,
                      .windowSystem = windowSystem,
                      .processManager = processManager,
                      .runningApplications = runningApplications,
                      .applicationEvents = applicationEvents,
                      .accessibility = accessibility,
                      .authorization = authorization,
                      .keyboardLayout = keyboardLayout,
                      .sounds = sounds,
                      .menuBarEvents = menuBarEvents,
                      .pasteboard = pasteboard,
                      .userInput = userInput,
                      .fileSystems = fileSystems,
                      .interruptions = interruptions};
};

NativePlatform::NativePlatform(const QStringList &arguments)
    : m_services(std::make_unique<Services>(arguments)) {}

NativePlatform::~NativePlatform() = default;

const Platform &NativePlatform::services() const {
    return m_services->platform;
}

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/NativePlatform.h"

#include "Platform/macos/AppKitAppearance.h"
#include "Platform/macos/AppKitRunningApplications.h"
#include "Platform/macos/AppKitSounds.h"
#include "Platform/macos/AppKitWorkspace.h"
#include "Platform/macos/AppleApplicationEvents.h"
#include "Platform/macos/AxAccessibility.h"
#include "Platform/macos/BlurredParts.h"
#include "Platform/macos/CFOwner.h"
#include "Platform/macos/CarbonMenuBarEvents.h"
#include "Platform/macos/CarbonProcessManager.h"
#include "Platform/macos/CarbonWindowSystem.h"
#include "Platform/macos/FoundationBundles.h"
#include "Platform/macos/FoundationLog.h"
#include "Platform/macos/FoundationUserDefaults.h"
#include "Platform/macos/GeneralPasteboard.h"
#include "Platform/macos/GestaltSystemVersion.h"
#include "Platform/macos/HidUserInput.h"
#include "Platform/macos/PowerInterruptions.h"
#include "Platform/macos/SecurityAuthorization.h"
#include "Platform/macos/SharedFileListLoginItems.h"
#include "Platform/macos/TaskChildProcesses.h"
#include "Platform/macos/TextInputKeyboardLayout.h"
#include "Platform/macos/VolumeFileSystems.h"
#include "Platform/macos/WorkspaceTrash.h"
#include "Platform/portable/EventLoopClock.h"

#import <AppKit/AppKit.h>

namespace zt {

// The list of fonts is what takes longest, and is made by whoever asks for it first.
std::future<void> beginPreparingTexts() {
    return std::async(std::launch::async,
                      [] { const CFOwner names(CTFontManagerCopyAvailableFontFamilyNames()); });
}

// Members are made in this order and go in the opposite one.
bool canShowWindows() {
    return true; // a program without one would not have been started
}

struct NativePlatform::Services {
    FoundationLog log;
    EventLoopClock clock;
    TaskChildProcesses childProcesses;
    FoundationBundles bundles;
    FoundationUserDefaults userDefaults;
    GestaltSystemVersion systemVersion{NSAppKitVersionNumber};
    SharedFileListLoginItems loginItems;
    AppKitAppearance appearance;
    WorkspaceTrash trash;
    CarbonWindowSystem windowSystem{blurPartsOfWindow};
    AppKitWorkspace workspace{log};
    CarbonProcessManager processManager{childProcesses, bundles};
    AppKitRunningApplications runningApplications;
    AppleApplicationEvents applicationEvents;
    AxAccessibility accessibility;
    SecurityAuthorization authorization{log};
    TextInputKeyboardLayout keyboardLayout;
    CarbonMenuBarEvents menuBarEvents;
    GeneralPasteboard pasteboard;
    HidUserInput userInput;
    VolumeFileSystems fileSystems;
    PowerInterruptions interruptions{log};
    AppKitSounds sounds; // goes first, with tasks that use the others
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

// The arguments are a domain of the user defaults of Foundation already.
NativePlatform::NativePlatform(const QStringList & /*arguments*/)
    : m_services(std::make_unique<Services>()) {}

NativePlatform::~NativePlatform() = default;

const Platform &NativePlatform::services() const {
    return m_services->platform;
}

} // namespace zt

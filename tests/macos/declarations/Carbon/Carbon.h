#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Carbon: events of the application and of menus, text input sources.

#include <ApplicationServices/ApplicationServices.h>

extern "C" {

using EventRef = struct OpaqueEventRef *;
using EventTargetRef = struct OpaqueEventTargetRef *;
using EventHandlerRef = struct OpaqueEventHandlerRef *;
using EventHandlerCallRef = struct OpaqueEventHandlerCallRef *;
struct EventTypeSpec {
    OSType eventClass;
    UInt32 eventKind;
};
using EventHandlerProcPtr = OSStatus (*)(EventHandlerCallRef next, EventRef event, void *context);
using EventHandlerUPP = EventHandlerProcPtr;
using ItemCount = unsigned long;
enum : OSType { kEventClassApplication = 'appl', kEventClassMenu = 'menu' };
enum : UInt32 {
    kEventAppLaunched = 5,
    kEventAppTerminated = 6,
    kEventAppFrontSwitched = 7,
    kEventMenuBarShown = 2000,
    kEventMenuBarHidden = 2001,
};
enum : OSStatus { eventNotHandledErr = -9874 };
EventTargetRef GetApplicationEventTarget();
EventTargetRef GetEventDispatcherTarget();
OSStatus InstallEventHandler(EventTargetRef target, EventHandlerUPP handler, ItemCount count,
                             const EventTypeSpec *types, void *context, EventHandlerRef *installed);
OSStatus RemoveEventHandler(EventHandlerRef handler);
OSType GetEventClass(EventRef event);
UInt32 GetEventKind(EventRef event);

using AEIdleProcPtr = Boolean (*)();
using AEFilterProcPtr = Boolean (*)();
OSErr AESend(const AppleEvent *event, AppleEvent *reply, AESendMode mode, AESendPriority priority,
             SInt32 timeoutInTicks, AEIdleProcPtr idle, AEFilterProcPtr filter);

using TISInputSourceRef = struct __TISInputSource *;
extern const CFStringRef kTISPropertyUnicodeKeyLayoutData;
TISInputSourceRef TISCopyCurrentKeyboardInputSource();
TISInputSourceRef TISCopyCurrentKeyboardLayoutInputSource();
void *TISGetInputSourceProperty(TISInputSourceRef source, CFStringRef key);
UInt8 LMGetKbdType();

} // extern "C"

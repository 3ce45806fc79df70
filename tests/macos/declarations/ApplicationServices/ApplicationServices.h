#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Application Services: the Process Manager, accessibility, windows of the screen, fonts.

#include <CoreServices/CoreServices.h>

extern "C" {

// The Process Manager.

#pragma pack(push, 2)
struct ProcessInfoRec {
    UInt32 processInfoLength;
    StringPtr processName;
    ProcessSerialNumber processNumber;
    UInt32 processType;
    OSType processSignature;
    UInt32 processMode;
    Ptr processLocation;
    UInt32 processSize;
    UInt32 processFreeMem;
    ProcessSerialNumber processLauncher;
    UInt32 processLaunchDate;
    UInt32 processActiveTime;
    FSRefPtr processAppRef;
};
#pragma pack(pop)
enum : UInt32 { kProcessDictionaryIncludeAllInformationMask = 0xFFFFFFFF };
enum : UInt32 { kSetFrontProcessFrontWindowOnly = 1 };
OSErr GetCurrentProcess(ProcessSerialNumber *process);
OSErr GetFrontProcess(ProcessSerialNumber *process);
OSErr GetNextProcess(ProcessSerialNumber *process);
OSErr GetProcessInformation(const ProcessSerialNumber *process, ProcessInfoRec *information);
CFDictionaryRef ProcessInformationCopyDictionary(const ProcessSerialNumber *process, UInt32 mask);
OSStatus CopyProcessName(const ProcessSerialNumber *process, CFStringRef *name);
OSStatus GetProcessBundleLocation(const ProcessSerialNumber *process, FSRef *location);
OSStatus GetProcessForPID(pid_t pid, ProcessSerialNumber *process);
OSStatus GetProcessPID(const ProcessSerialNumber *process, pid_t *pid);
OSErr SameProcess(const ProcessSerialNumber *one, const ProcessSerialNumber *other,
                  Boolean *result);
OSErr SetFrontProcess(const ProcessSerialNumber *process);
OSStatus SetFrontProcessWithOptions(const ProcessSerialNumber *process, UInt32 options);
OSErr ShowHideProcess(const ProcessSerialNumber *process, Boolean visible);
OSErr WakeUpProcess(const ProcessSerialNumber *process);

// Accessibility.

using AXError = SInt32;
enum : AXError { kAXErrorSuccess = 0, kAXErrorCannotComplete = -25204 };
using AXUIElementRef = const struct __AXUIElement *;
using AXObserverRef = struct __AXObserver *;
using AXObserverCallback = void (*)(AXObserverRef observer, AXUIElementRef element,
                                    CFStringRef notification, void *context);
#define kAXRoleDescriptionAttribute CFSTR("AXRoleDescription")
#define kAXTitleAttribute CFSTR("AXTitle")
AXUIElementRef AXUIElementCreateApplication(pid_t pid);
AXError AXUIElementCopyAttributeValue(AXUIElementRef element, CFStringRef attribute,
                                      CFTypeRef *value);
AXError AXObserverCreate(pid_t pid, AXObserverCallback callback, AXObserverRef *observer);
AXError AXObserverAddNotification(AXObserverRef observer, AXUIElementRef element,
                                  CFStringRef notification, void *context);
AXError AXObserverRemoveNotification(AXObserverRef observer, AXUIElementRef element,
                                     CFStringRef notification);
CFRunLoopSourceRef AXObserverGetRunLoopSource(AXObserverRef observer);

// Windows of the screen.

using CGWindowID = UInt32;
using CGWindowListOption = UInt32;
enum : CGWindowListOption {
    kCGWindowListOptionAll = 0,
    kCGWindowListExcludeDesktopElements = 1U << 4U,
};
enum : CGWindowID { kCGNullWindowID = 0 };
extern const CFStringRef kCGWindowOwnerPID;
extern const CFStringRef kCGWindowLayer;
CFArrayRef CGWindowListCopyWindowInfo(CGWindowListOption option, CGWindowID relativeToWindow);

using CGImageRef = struct CGImage *;

// Fonts.

CFArrayRef CTFontManagerCopyAvailableFontFamilyNames();

} // extern "C"

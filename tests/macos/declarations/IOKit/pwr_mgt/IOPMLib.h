#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// I/O Kit: assertions that hold off sleep.

#include <IOKit/IOKitLib.h>

extern "C" {

using IOReturn = kern_return_t;
using IOPMAssertionID = UInt32;
using IOPMAssertionLevel = UInt32;
constexpr IOReturn kIOReturnSuccess = 0;
constexpr IOPMAssertionID kIOPMNullAssertionID = 0;
constexpr IOPMAssertionLevel kIOPMAssertionLevelOn = 255;
#define kIOPMAssertionTypePreventUserIdleSystemSleep CFSTR("PreventUserIdleSystemSleep")
IOReturn IOPMAssertionCreateWithName(CFStringRef type, IOPMAssertionLevel level, CFStringRef name,
                                     IOPMAssertionID *assertion);
IOReturn IOPMAssertionRelease(IOPMAssertionID assertion);

} // extern "C"

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// I/O Kit: services of drivers and their properties.

#include <CoreFoundation/CoreFoundation.h>

extern "C" {

using kern_return_t = int;
using mach_port_t = unsigned int;
using io_object_t = mach_port_t;
using io_iterator_t = io_object_t;
using io_registry_entry_t = io_object_t;
using IOOptionBits = UInt32;
constexpr kern_return_t KERN_SUCCESS = 0;
constexpr io_object_t IO_OBJECT_NULL = 0;
extern const mach_port_t kIOMasterPortDefault;
CFMutableDictionaryRef IOServiceMatching(const char *name);
// Uses up the reference to the dictionary.
kern_return_t IOServiceGetMatchingServices(mach_port_t port, CFDictionaryRef matching,
                                           io_iterator_t *existing);
io_object_t IOIteratorNext(io_iterator_t iterator);
kern_return_t IORegistryEntryCreateCFProperties(io_registry_entry_t entry,
                                                CFMutableDictionaryRef *properties,
                                                CFAllocatorRef allocator, IOOptionBits options);
kern_return_t IOObjectRelease(io_object_t object);

} // extern "C"

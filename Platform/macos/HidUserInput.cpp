// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/HidUserInput.h"

#include "Platform/macos/CFOwner.h"

#include <IOKit/IOKitLib.h>

namespace zt {

namespace {

// Releases an object of I/O Kit when it goes.
class IoObject {
public:
    explicit IoObject(io_object_t object) : m_object(object) {}
    ~IoObject() {
        if (m_object != IO_OBJECT_NULL)
            IOObjectRelease(m_object);
    }
    IoObject(const IoObject &) = delete;
    IoObject &operator=(const IoObject &) = delete;

    explicit operator bool() const { return m_object != IO_OBJECT_NULL; }
    io_object_t get() const { return m_object; }

private:
    io_object_t m_object;
};

io_iterator_t servicesMatching(const char *name) {
    io_iterator_t services = IO_OBJECT_NULL;
    if (IOServiceGetMatchingServices(kIOMasterPortDefault, IOServiceMatching(name), &services) !=
        KERN_SUCCESS)
        return IO_OBJECT_NULL;
    return services;
}

} // namespace

std::optional<std::chrono::nanoseconds> HidUserInput::idleTime() {
    const IoObject services(servicesMatching("IOHIDSystem"));
    const IoObject service(services ? IOIteratorNext(services.get()) : IO_OBJECT_NULL);
    CFOwner<CFMutableDictionaryRef> properties;
    if (!service ||
        IORegistryEntryCreateCFProperties(service.get(), properties.receive(), kCFAllocatorDefault,
                                          0) != KERN_SUCCESS ||
        !properties)
        return std::nullopt;
    const void *const value = CFDictionaryGetValue(properties.get(), CFSTR("HIDIdleTime"));
    SInt64 nanoseconds = 0;
    if (!value || CFGetTypeID(value) != CFNumberGetTypeID() ||
        CFNumberGetValue(static_cast<CFNumberRef>(value), kCFNumberSInt64Type, &nanoseconds) == 0)
        return std::nullopt;
    return std::chrono::nanoseconds(nanoseconds);
}

} // namespace zt

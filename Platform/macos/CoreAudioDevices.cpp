// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/CoreAudioDevices.h"

#include "Platform/macos/CFText.h"

#include <CoreAudio/CoreAudio.h>

#include <algorithm>
#include <array>

namespace zt {

namespace {

AudioObjectPropertyAddress addressOf(AudioObjectPropertySelector selector,
                                     AudioObjectPropertyScope scope) {
    return {.mSelector = selector, .mScope = scope, .mElement = kAudioObjectPropertyElementMaster};
}

// A name as it fits into 64 bytes, its end included.
std::optional<QString> nameOf(AudioDeviceID device, AudioObjectPropertySelector selector) {
    const AudioObjectPropertyAddress address = addressOf(selector, kAudioObjectPropertyScopeGlobal);
    std::array<char, 64> bytes = {};
    auto size = UInt32(bytes.size());
    if (AudioObjectGetPropertyData(device, &address, 0, nullptr, &size, bytes.data()) != noErr)
        return std::nullopt;
    bytes.back() = '\0';
    return QString::fromUtf8(bytes.data());
}

std::optional<QString> identifierOf(AudioDeviceID device, AudioObjectPropertyScope scope) {
    const AudioObjectPropertyAddress address = addressOf(kAudioDevicePropertyDeviceUID, scope);
    CFOwner<CFStringRef> identifier;
    UInt32 size = sizeof(CFStringRef);
    if (AudioObjectGetPropertyData(device, &address, 0, nullptr, &size, identifier.receive()) !=
            noErr ||
        !identifier)
        return std::nullopt;
    return textOf(identifier.get());
}

bool hasOutput(AudioDeviceID device) {
    const AudioObjectPropertyAddress address =
        addressOf(kAudioDevicePropertyStreams, kAudioObjectPropertyScopeOutput);
    UInt32 size = 0;
    return AudioObjectGetPropertyDataSize(device, &address, 0, nullptr, &size) == noErr && size > 0;
}

std::optional<std::vector<AudioDeviceID>> deviceNumbers() {
    const AudioObjectPropertyAddress address =
        addressOf(kAudioHardwarePropertyDevices, kAudioObjectPropertyScopeGlobal);
    UInt32 size = 0;
    if (AudioObjectGetPropertyDataSize(kAudioObjectSystemObject, &address, 0, nullptr, &size) !=
        noErr)
        return std::nullopt;
    std::vector<AudioDeviceID> numbers(size / sizeof(AudioDeviceID));
    if (AudioObjectGetPropertyData(kAudioObjectSystemObject, &address, 0, nullptr, &size,
                                   numbers.data()) != noErr)
        return std::nullopt;
    // One may have been unplugged in between.
    numbers.resize(size / sizeof(AudioDeviceID));
    return numbers;
}

} // namespace

std::optional<std::vector<SoundDevice>> audioDevices() {
    const auto numbers = deviceNumbers();
    if (!numbers)
        return std::nullopt;
    std::vector<SoundDevice> devices;
    for (const AudioDeviceID number : *numbers) {
        const auto name = nameOf(number, kAudioDevicePropertyDeviceName);
        const auto maker = nameOf(number, kAudioDevicePropertyDeviceManufacturer);
        const auto identifier = identifierOf(number, kAudioObjectPropertyScopeGlobal);
        if (!name || !maker || !identifier)
            continue;
        devices.push_back({.identifier = *identifier,
                           .name = *name,
                           .manufacturer = *maker,
                           .direction = hasOutput(number) ? SoundDevice::Direction::Output
                                                          : SoundDevice::Direction::Input});
    }
    std::stable_partition(devices.begin(), devices.end(), [](const SoundDevice &device) {
        return device.direction == SoundDevice::Direction::Output;
    });
    return devices;
}

std::optional<QString> systemOutputDevice() {
    const AudioObjectPropertyAddress address =
        addressOf(kAudioHardwarePropertyDefaultSystemOutputDevice, kAudioObjectPropertyScopeGlobal);
    AudioDeviceID device = kAudioObjectUnknown;
    UInt32 size = sizeof device;
    if (AudioObjectGetPropertyData(kAudioObjectSystemObject, &address, 0, nullptr, &size,
                                   &device) != noErr)
        return std::nullopt;
    return identifierOf(device, kAudioObjectPropertyScopeOutput);
}

} // namespace zt

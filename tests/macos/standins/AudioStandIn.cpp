// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/macos/standins/AudioStandIn.h"

#include "tests/macos/standins/CoreFoundationStandIn.h"

#include <algorithm>
#include <cstring>

namespace standin {

Audio audio;

} // namespace standin

using standin::audio;

// An open file, and how far it has been read.
struct OpaqueExtAudioFile {
    standin::AudioFileContent content;
    std::size_t next = 0;
    bool givesFloats = false;
};

namespace {

const standin::AudioDevice *deviceWith(AudioObjectID number) {
    if (!audio.devices)
        return nullptr;
    const auto found = std::ranges::find(*audio.devices, number, &standin::AudioDevice::number);
    return found == audio.devices->end() ? nullptr : &*found;
}

OSStatus giveText(const std::optional<std::string> &text, UInt32 *size, void *data) {
    if (!text)
        return kAudioHardwareUnspecifiedError;
    // A text that is longer is cut, without an end of its own.
    const std::size_t given = std::min(std::size_t(*size), text->size() + 1);
    std::memcpy(data, text->c_str(), given);
    *size = UInt32(given);
    return noErr;
}

} // namespace

extern "C" {

OSStatus AudioObjectGetPropertyDataSize(AudioObjectID object,
                                        const AudioObjectPropertyAddress *address,
                                        UInt32 /*qualifierSize*/, const void * /*qualifier*/,
                                        UInt32 *size) {
    if (object == kAudioObjectSystemObject && address->mSelector == kAudioHardwarePropertyDevices &&
        audio.devices) {
        *size = UInt32(audio.devices->size() * sizeof(AudioDeviceID));
        return noErr;
    }
    const standin::AudioDevice *const device = deviceWith(object);
    if (!device || address->mSelector != kAudioDevicePropertyStreams)
        return kAudioHardwareUnspecifiedError;
    const bool isAskedForOutput = address->mScope == kAudioObjectPropertyScopeOutput;
    *size = device->hasOutput == isAskedForOutput ? sizeof(AudioObjectID) : 0;
    return noErr;
}

OSStatus AudioObjectGetPropertyData(AudioObjectID object, const AudioObjectPropertyAddress *address,
                                    UInt32 /*qualifierSize*/, const void * /*qualifier*/,
                                    UInt32 *size, void *data) {
    if (address->mElement != kAudioObjectPropertyElementMaster)
        return kAudioHardwareUnspecifiedError;
    if (object == kAudioObjectSystemObject) {
        if (address->mSelector == kAudioHardwarePropertyDefaultSystemOutputDevice &&
            audio.systemOutput && *size == sizeof(AudioDeviceID)) {
            std::memcpy(data, &*audio.systemOutput, sizeof(AudioDeviceID));
            return noErr;
        }
        if (address->mSelector != kAudioHardwarePropertyDevices || !audio.devices)
            return kAudioHardwareUnspecifiedError;
        auto *next = static_cast<AudioDeviceID *>(data);
        for (const standin::AudioDevice &device : *audio.devices)
            *next++ = device.number;
        return noErr;
    }
    const standin::AudioDevice *const device = deviceWith(object);
    if (!device)
        return kAudioHardwareUnspecifiedError;
    switch (address->mSelector) {
    case kAudioDevicePropertyDeviceName:
        return giveText(device->name, size, data);
    case kAudioDevicePropertyDeviceManufacturer:
        return giveText(device->maker, size, data);
    case kAudioDevicePropertyDeviceUID:
        if (!device->identifier || *size != sizeof(CFStringRef))
            return kAudioHardwareUnspecifiedError;
        *static_cast<CFStringRef *>(data) =
            standin::referenceTo<CFStringRef>(standin::make(*device->identifier));
        return noErr;
    default:
        return kAudioHardwareUnspecifiedError;
    }
}

OSStatus ExtAudioFileOpenURL(CFURLRef url, ExtAudioFileRef *file) {
    const auto found = audio.files.find(standin::objectOf(url)->value.toString());
    if (found == audio.files.end())
        return OSStatus(-43); // there is no such file
    ++audio.openFiles;
    *file = new OpaqueExtAudioFile{.content = found->second};
    return noErr;
}

OSStatus ExtAudioFileDispose(ExtAudioFileRef file) {
    --audio.openFiles;
    delete file;
    return noErr;
}

OSStatus ExtAudioFileGetProperty(ExtAudioFileRef file, ExtAudioFilePropertyID property,
                                 UInt32 *size, void *data) {
    if (property != kExtAudioFileProperty_FileDataFormat ||
        *size != sizeof(AudioStreamBasicDescription))
        return kAudioHardwareUnspecifiedError;
    AudioStreamBasicDescription format = {};
    format.mSampleRate = file->content.frameRate;
    format.mChannelsPerFrame = file->content.channels;
    std::memcpy(data, &format, sizeof format);
    return noErr;
}

OSStatus ExtAudioFileSetProperty(ExtAudioFileRef file, ExtAudioFilePropertyID property, UInt32 size,
                                 const void *data) {
    AudioStreamBasicDescription format = {};
    if (property != kExtAudioFileProperty_ClientDataFormat || size != sizeof format)
        return kAudioHardwareUnspecifiedError;
    std::memcpy(&format, data, sizeof format);
    file->givesFloats =
        format.mFormatID == kAudioFormatLinearPCM &&
        format.mFormatFlags == (kAudioFormatFlagIsFloat | kAudioFormatFlagIsPacked) &&
        format.mBytesPerFrame == sizeof(float) * file->content.channels &&
        format.mChannelsPerFrame == file->content.channels && format.mBitsPerChannel == 32 &&
        format.mFramesPerPacket == 1 && format.mBytesPerPacket == format.mBytesPerFrame;
    return file->givesFloats ? noErr : kAudioHardwareUnspecifiedError;
}

OSStatus ExtAudioFileRead(ExtAudioFileRef file, UInt32 *frames, AudioBufferList *data) {
    const standin::AudioFileContent &content = file->content;
    if (!file->givesFloats || data->mNumberBuffers != 1)
        return kAudioHardwareUnspecifiedError;
    if (content.answerToReading != noErr)
        return content.answerToReading;
    const std::size_t room = std::min<std::size_t>(*frames, data->mBuffers[0].mDataByteSize /
                                                                sizeof(float) / content.channels);
    const std::size_t given = std::min(room * content.channels, content.values.size() - file->next);
    std::copy_n(content.values.begin() + std::ptrdiff_t(file->next), given,
                static_cast<float *>(data->mBuffers[0].mData));
    file->next += given;
    *frames = UInt32(given / content.channels);
    return noErr;
}

} // extern "C"

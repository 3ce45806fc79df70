#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Core Audio: devices and their properties, formats of samples.

#include <CoreFoundation/CoreFoundation.h>

extern "C" {

enum : OSStatus { kAudioHardwareUnspecifiedError = 'what' };

using AudioObjectID = UInt32;
using AudioDeviceID = AudioObjectID;
using AudioObjectPropertySelector = UInt32;
using AudioObjectPropertyScope = UInt32;
using AudioObjectPropertyElement = UInt32;
struct AudioObjectPropertyAddress {
    AudioObjectPropertySelector mSelector;
    AudioObjectPropertyScope mScope;
    AudioObjectPropertyElement mElement;
};
enum : AudioObjectID { kAudioObjectSystemObject = 1, kAudioObjectUnknown = 0 };
enum : AudioObjectPropertyScope {
    kAudioObjectPropertyScopeGlobal = 'glob',
    kAudioObjectPropertyScopeInput = 'inpt',
    kAudioObjectPropertyScopeOutput = 'outp',
};
enum : AudioObjectPropertyElement { kAudioObjectPropertyElementMaster = 0 };
enum : AudioObjectPropertySelector {
    kAudioHardwarePropertyDevices = 'dev#',
    kAudioHardwarePropertyDefaultSystemOutputDevice = 'sOut',
    kAudioDevicePropertyDeviceName = 'name',
    kAudioDevicePropertyDeviceManufacturer = 'makr',
    kAudioDevicePropertyDeviceUID = 'uid ',
    kAudioDevicePropertyStreams = 'stm#',
};
OSStatus AudioObjectGetPropertyDataSize(AudioObjectID object,
                                        const AudioObjectPropertyAddress *address,
                                        UInt32 qualifierSize, const void *qualifier, UInt32 *size);
OSStatus AudioObjectGetPropertyData(AudioObjectID object, const AudioObjectPropertyAddress *address,
                                    UInt32 qualifierSize, const void *qualifier, UInt32 *size,
                                    void *data);

using AudioFormatID = UInt32;
using AudioFormatFlags = UInt32;
enum : AudioFormatID { kAudioFormatLinearPCM = 'lpcm' };
enum : AudioFormatFlags { kAudioFormatFlagIsFloat = 1U << 0U, kAudioFormatFlagIsPacked = 1U << 3U };
struct AudioStreamBasicDescription {
    double mSampleRate;
    AudioFormatID mFormatID;
    AudioFormatFlags mFormatFlags;
    UInt32 mBytesPerPacket;
    UInt32 mFramesPerPacket;
    UInt32 mBytesPerFrame;
    UInt32 mChannelsPerFrame;
    UInt32 mBitsPerChannel;
    UInt32 mReserved;
};
struct AudioBuffer {
    UInt32 mNumberChannels;
    UInt32 mDataByteSize;
    void *mData;
};
struct AudioBufferList {
    UInt32 mNumberBuffers;
    AudioBuffer mBuffers[1];
};

} // extern "C"

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/AudioFileReader.h"

#include "Platform/macos/CFText.h"

#include <AudioToolbox/AudioToolbox.h>

#include <memory>
#include <type_traits>

namespace zt {

namespace {

constexpr UInt32 maximumChannels = 32;
constexpr double maximumFrameRate = 768'000;
constexpr UInt32 framesAtOnce = 16'384;

struct AudioFileDeleter {
    void operator()(ExtAudioFileRef file) const { ExtAudioFileDispose(file); }
};
using AudioFile = std::unique_ptr<std::remove_pointer_t<ExtAudioFileRef>, AudioFileDeleter>;

// What the file is converted to while it is read: one float for each channel, frame by frame.
AudioStreamBasicDescription floatsLike(const AudioStreamBasicDescription &file) {
    constexpr UInt32 valueSize = sizeof(float);
    return {.mSampleRate = file.mSampleRate,
            .mFormatID = kAudioFormatLinearPCM,
            .mFormatFlags = kAudioFormatFlagIsFloat | kAudioFormatFlagIsPacked,
            .mBytesPerPacket = valueSize * file.mChannelsPerFrame,
            .mFramesPerPacket = 1,
            .mBytesPerFrame = valueSize * file.mChannelsPerFrame,
            .mChannelsPerFrame = file.mChannelsPerFrame,
            .mBitsPerChannel = valueSize * 8,
            .mReserved = 0};
}

// Reads on until the file ends. The native error, or noErr.
OSStatus readOn(ExtAudioFileRef file, SoundSamples &samples, const std::stop_token &stop) {
    const auto channels = std::size_t(samples.channels);
    for (;;) {
        const std::size_t before = samples.values.size();
        samples.values.resize(before + framesAtOnce * channels);
        UInt32 frames = framesAtOnce;
        AudioBufferList list = {};
        list.mNumberBuffers = 1;
        list.mBuffers[0] = {.mNumberChannels = UInt32(channels),
                            .mDataByteSize = UInt32(framesAtOnce * channels * sizeof(float)),
                            .mData = samples.values.data() + before};
        const OSStatus status = ExtAudioFileRead(file, &frames, &list);
        samples.values.resize(before + (status == noErr ? frames * channels : 0));
        if (status != noErr || frames == 0 || stop.stop_requested() ||
            samples.values.size() > maximumSoundValues)
            return status;
    }
}

} // namespace

Result<SoundSamples> readAudioFile(const QString &path, const std::stop_token &stop) {
    const auto failure = [&](std::string cause, OSStatus status = noErr) {
        return Error{"load", path.toStdString(), std::move(cause), status};
    };
    const CFOwner<CFURLRef> url = makeFileUrl(path);
    ExtAudioFileRef opened = nullptr;
    if (!url)
        return failure("there is no path");
    if (const OSStatus status = ExtAudioFileOpenURL(url.get(), &opened); status != noErr)
        return failure("it is no sound that can be read", status);
    const AudioFile file(opened);
    AudioStreamBasicDescription format = {};
    UInt32 size = sizeof format;
    if (const OSStatus status = ExtAudioFileGetProperty(
            file.get(), kExtAudioFileProperty_FileDataFormat, &size, &format);
        status != noErr)
        return failure("its form is not known", status);
    if (format.mChannelsPerFrame < 1 || format.mChannelsPerFrame > maximumChannels ||
        !(format.mSampleRate >= 1) || format.mSampleRate > maximumFrameRate)
        return failure("its form cannot be played");
    const AudioStreamBasicDescription floats = floatsLike(format);
    if (const OSStatus status = ExtAudioFileSetProperty(
            file.get(), kExtAudioFileProperty_ClientDataFormat, sizeof floats, &floats);
        status != noErr)
        return failure("its form cannot be converted", status);
    SoundSamples samples = {.frameRate = int(format.mSampleRate),
                            .channels = int(format.mChannelsPerFrame),
                            .values = {}};
    if (const OSStatus status = readOn(file.get(), samples, stop); status != noErr)
        return failure("it is damaged", status);
    if (stop.stop_requested())
        return failure("it is not wanted any more");
    if (samples.values.size() > maximumSoundValues)
        return failure("is too large for a sound effect");
    if (samples.values.empty())
        return failure("nothing is to be heard in it");
    return samples;
}

} // namespace zt

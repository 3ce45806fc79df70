#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Audio Toolbox: sound files, converted while they are read.

#include <CoreAudio/CoreAudio.h>

extern "C" {

using ExtAudioFileRef = struct OpaqueExtAudioFile *;
using ExtAudioFilePropertyID = UInt32;
enum : ExtAudioFilePropertyID {
    kExtAudioFileProperty_FileDataFormat = 'ffmt',
    kExtAudioFileProperty_ClientDataFormat = 'cfmt',
    kExtAudioFileProperty_FileLengthFrames = '#frm',
};
OSStatus ExtAudioFileOpenURL(CFURLRef url, ExtAudioFileRef *file);
OSStatus ExtAudioFileDispose(ExtAudioFileRef file);
OSStatus ExtAudioFileGetProperty(ExtAudioFileRef file, ExtAudioFilePropertyID property,
                                 UInt32 *size, void *data);
OSStatus ExtAudioFileSetProperty(ExtAudioFileRef file, ExtAudioFilePropertyID property, UInt32 size,
                                 const void *data);
OSStatus ExtAudioFileRead(ExtAudioFileRef file, UInt32 *frames, AudioBufferList *data);

} // extern "C"

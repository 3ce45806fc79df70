#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// From the bytes of a sound file to samples.

#include "Platform/Sounds.h"

#include <QByteArray>
#include <QString>

#include <stop_token>

namespace zt {

// The largest sound file that is read, in bytes. A sound effect lasts a second or two; what is much
// longer is music, and somebody's mistake or worse.
inline constexpr qint64 maximumSoundFileSize = qint64(16) * 1024 * 1024;

// The most values that a sound may have: over a minute of stereo, in 32 MiB of memory.
inline constexpr std::size_t maximumSoundValues = std::size_t(8) * 1024 * 1024;

// How the bytes say what they are.
enum class SoundForm {
    SelfDescribing, // by a header
    RawMuLaw,       // not at all: 8000 values of one channel a second, in the mu-law code
};

// The form of the file with this name: "ulw" files have no header.
SoundForm soundFormOfFile(const QString &path);

// Decodes a whole sound: AIFF and AIFF-C, WAVE, Sun/NeXT audio, raw mu-law and what else libsndfile
// reads, and MPEG layer 3. `name` stands in errors. Fails on anything else, on more than
// maximumSoundValues, and when a stop was requested. Thread: any.
Result<SoundSamples> decodeSound(const QByteArray &content, SoundForm form, const QString &name,
                                 const std::stop_token &stop = {});

// The same from a regular file of at most maximumSoundFileSize bytes; its name says the form.
// Thread: any.
Result<SoundSamples> readSoundFile(const QString &path, const std::stop_token &stop = {});

} // namespace zt

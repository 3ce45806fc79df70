#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The decoders behind decodeSound, which tells them apart by the content.

#include "Platform/linux/sound/SoundDecoding.h"

#include <QByteArrayView>

namespace zt {

// Whether the sound server takes sounds of this form.
bool canBePlayed(long frameRate, int channels);

// What decoding failed with.
Error decodingError(const QString &name, const char *cause);

// Files with a header, and those whose form is known without one.
Result<SoundSamples> decodeSoundFileFormat(QByteArrayView content, SoundForm form,
                                           const QString &name, const std::stop_token &stop);

// A stream of MPEG audio frames.
Result<SoundSamples> decodeMpegAudio(QByteArrayView content, const QString &name,
                                     const std::stop_token &stop);

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Sound files of every form that the system can read.

#include "Platform/Sounds.h"

namespace zt {

// The largest sound that is read, in values of all channels. A sound effect lasts a second or two;
// what is much longer is none.
inline constexpr std::size_t maximumSoundValues = std::size_t(8) * 1024 * 1024;

// Reads the file whole, as Sounds::load() says. Thread: any.
Result<SoundSamples> readAudioFile(const QString &path, const std::stop_token &stop);

} // namespace zt

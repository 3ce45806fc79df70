#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Samples as the bytes of a sound file.

#include "Platform/Sounds.h"

#include <QByteArray>

namespace zt {

// A WAVE file of 16 bits for each value, which every player takes; values beyond -1 and 1 are cut
// there. Empty when there are no samples, or more than such a file can hold. Thread: any.
QByteArray waveDataOf(const SoundSamples &samples);

} // namespace zt

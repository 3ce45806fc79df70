// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/WaveData.h"

#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <limits>

namespace zt {

namespace {

constexpr quint32 valueSize = 2;
constexpr quint32 headerSize = 44;
constexpr quint16 pulseCode = 1;

template <typename Number>
void append(QByteArray &bytes, Number number) {
    const Number little = qToLittleEndian(number);
    bytes.append(reinterpret_cast<const char *>(&little), sizeof little);
}

qint16 valueOf(float sample) {
    constexpr float full = std::numeric_limits<qint16>::max();
    return qint16(std::lround(std::clamp(sample, -1.0F, 1.0F) * full));
}

} // namespace

QByteArray waveDataOf(const SoundSamples &samples) {
    const std::size_t size = samples.values.size() * valueSize;
    if (samples.frames() == 0 || size > std::numeric_limits<quint32>::max() - headerSize)
        return {};
    const auto channels = quint16(samples.channels);
    const auto frameSize = quint16(channels * valueSize);
    QByteArray bytes;
    bytes.reserve(qsizetype(headerSize) + qsizetype(size));
    bytes.append("RIFF");
    append(bytes, quint32(headerSize - 8 + size));
    bytes.append("WAVEfmt ");
    append(bytes, quint32(16)); // the size of the description that follows
    append(bytes, pulseCode);
    append(bytes, channels);
    append(bytes, quint32(samples.frameRate));
    append(bytes, quint32(samples.frameRate) * frameSize);
    append(bytes, frameSize);
    append(bytes, quint16(valueSize * 8));
    bytes.append("data");
    append(bytes, quint32(size));
    for (const float sample : samples.values)
        append(bytes, valueOf(sample));
    return bytes;
}

} // namespace zt

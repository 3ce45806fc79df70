// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/sound/SoundDecoding.h"

#include "Platform/linux/sound/SoundDecoders.h"
#include "Platform/posix/SystemCalls.h"

#include <QFile>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zt {

namespace {

// What the sound server takes.
constexpr int maximumChannels = 32;
constexpr long slowestFrameRate = 100;
constexpr long fastestFrameRate = 384'000;

// Files of floating-point samples may hold anything, and no loudspeaker should get it.
float harmless(float value) {
    return std::isnan(value) ? 0.0F : std::clamp(value, -1.0F, 1.0F);
}

// A tag in front of the sound says how long it is, in seven bits of each of four bytes.
qsizetype lengthOfTag(QByteArrayView content) {
    constexpr qsizetype headerLength = 10;
    constexpr qsizetype lengthPlace = 6;
    if (content.size() < headerLength || !content.startsWith("ID3"))
        return 0;
    qsizetype length = 0;
    for (qsizetype i = lengthPlace; i < headerLength; ++i)
        length = length * 128 + (uchar(content[i]) & 0x7FU);
    return std::min(headerLength + length, content.size());
}

QByteArrayView withoutTags(QByteArrayView content) {
    for (qsizetype length = lengthOfTag(content); length > 0; length = lengthOfTag(content))
        content = content.sliced(length);
    return content;
}

// Frames of MPEG audio begin with eleven set bits; no header of a file does.
bool beginsWithMpegFrame(QByteArrayView content) {
    return content.size() > 1 && uchar(content[0]) == 0xFFU && (uchar(content[1]) & 0xE0U) == 0xE0U;
}

} // namespace

bool canBePlayed(long frameRate, int channels) {
    return channels >= 1 && channels <= maximumChannels && frameRate >= slowestFrameRate &&
           frameRate <= fastestFrameRate;
}

Error decodingError(const QString &name, const char *cause) {
    return {"decode", QFile::encodeName(name).toStdString(), cause};
}

SoundForm soundFormOfFile(const QString &path) {
    return path.endsWith(u".ulw"_s) || path.endsWith(u".ULW"_s) ? SoundForm::RawMuLaw
                                                                : SoundForm::SelfDescribing;
}

Result<SoundSamples> decodeSound(const QByteArray &content, SoundForm form, const QString &name,
                                 const std::stop_token &stop) {
    const bool hasHeader = form == SoundForm::SelfDescribing;
    const QByteArrayView sounding = hasHeader ? withoutTags(content) : QByteArrayView(content);
    Result<SoundSamples> sound = hasHeader && beginsWithMpegFrame(sounding)
                                     ? decodeMpegAudio(sounding, name, stop)
                                     : decodeSoundFileFormat(sounding, form, name, stop);
    if (!sound)
        return sound;
    if (sound->values.empty())
        return decodingError(name, "holds no samples");
    std::ranges::transform(sound->values, sound->values.begin(), harmless);
    return sound;
}

Result<SoundSamples> readSoundFile(const QString &path, const std::stop_token &stop) {
    const QByteArray name = QFile::encodeName(path);
    // A pipe by this name is not waited for.
    const UniqueFd file = openAt(AT_FDCWD, name.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY);
    if (!file)
        return Error::fromErrno("open", name.toStdString());
    const auto status = statusOf(file.get());
    if (!status)
        return Error::fromErrno("look at", name.toStdString());
    if (!S_ISREG(status->st_mode))
        return decodingError(path, "is no regular file");
    if (status->st_size > maximumSoundFileSize)
        return decodingError(path, "is too large for a sound effect");
    QByteArray content(qsizetype(status->st_size), Qt::Uninitialized);
    const ssize_t size = readFully(file.get(), content.data(), std::size_t(content.size()));
    if (size < 0)
        return Error::fromErrno("read", name.toStdString());
    content.truncate(size);
    return decodeSound(content, soundFormOfFile(path), path, stop);
}

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/sound/SoundDecoding.h"

#include "Platform/linux/sound/SndfileLibrary.h"
#include "Platform/posix/SystemCalls.h"

#include <QFile>

#include <algorithm>
#include <cmath>
#include <cstring>

using namespace Qt::StringLiterals;

namespace zt {

namespace {

// What the sound server takes.
constexpr int maximumChannels = 32;
constexpr int slowestFrameRate = 100;
constexpr int fastestFrameRate = 384'000;

constexpr int rawMuLawFrameRate = 8000;
// Between two looks at whether to stop.
constexpr std::size_t framesAtATime = 16'384;

Error decodingError(const QString &name, const char *cause) {
    return {"decode", QFile::encodeName(name).toStdString(), cause};
}

// Bytes in memory, as libsndfile reads a file. Its callbacks have the library's own types.
class MemoryFile {
public:
    explicit MemoryFile(const QByteArray &content) : m_content(content) {}

    static SF_VIRTUAL_IO access() { return {length, seek, read, refuseToWrite, tell}; }

private:
    static MemoryFile &of(void *file) { return *static_cast<MemoryFile *>(file); }

    static sf_count_t length(void *file) { return of(file).m_content.size(); }

    static sf_count_t seek(sf_count_t offset, int whence, void *data) {
        MemoryFile &file = of(data);
        const sf_count_t size = file.m_content.size();
        const sf_count_t from = whence == SEEK_SET   ? 0
                                : whence == SEEK_CUR ? file.m_position
                                                     : size;
        // An offset out of a broken header; the sum must not overflow.
        if (offset < -from || offset > size - from)
            return -1;
        file.m_position = from + offset;
        return file.m_position;
    }

    static sf_count_t read(void *bytes, sf_count_t count, void *data) {
        MemoryFile &file = of(data);
        const sf_count_t there =
            std::clamp<sf_count_t>(count, 0, file.m_content.size() - file.m_position);
        std::memcpy(bytes, file.m_content.constData() + file.m_position, std::size_t(there));
        file.m_position += there;
        return there;
    }

    static sf_count_t refuseToWrite(const void * /*bytes*/, sf_count_t /*count*/, void * /*file*/) {
        return 0;
    }

    static sf_count_t tell(void *file) { return of(file).m_position; }

    const QByteArray &m_content;
    sf_count_t m_position = 0;
};

struct Closer {
    void operator()(SNDFILE *file) const { sndfileLibrary()->sf_close(file); }
};

SF_INFO startingInformation(SoundForm form) {
    SF_INFO information{};
    if (form == SoundForm::RawMuLaw) {
        information.format = SF_FORMAT_RAW | SF_FORMAT_ULAW;
        information.samplerate = rawMuLawFrameRate;
        information.channels = 1;
    }
    return information;
}

// Files of floating-point samples may hold anything, and no loudspeaker should get it.
float harmless(float value) {
    return std::isnan(value) ? 0.0F : std::clamp(value, -1.0F, 1.0F);
}

} // namespace

SoundForm soundFormOfFile(const QString &path) {
    return path.endsWith(u".ulw"_s) || path.endsWith(u".ULW"_s) ? SoundForm::RawMuLaw
                                                                : SoundForm::SelfDescribing;
}

Result<SoundSamples> decodeSound(const QByteArray &content, SoundForm form, const QString &name,
                                 const std::stop_token &stop) {
    const SndfileLibrary *const library = sndfileLibrary();
    if (library == nullptr)
        return decodingError(name, "libsndfile is not installed");
    MemoryFile bytes(content);
    SF_VIRTUAL_IO access = MemoryFile::access();
    SF_INFO information = startingInformation(form);
    const std::unique_ptr<SNDFILE, Closer> file(
        library->sf_open_virtual(&access, SFM_READ, &information, &bytes));
    if (!file)
        return decodingError(name, library->sf_strerror(nullptr));
    if (information.channels < 1 || information.channels > maximumChannels ||
        information.samplerate < slowestFrameRate || information.samplerate > fastestFrameRate)
        return decodingError(name, "cannot be played in this form");

    SoundSamples sound{information.samplerate, information.channels, {}};
    const auto channels = std::size_t(information.channels);
    // The header's word for the length is not relied on: memory is taken as samples arrive.
    for (std::size_t end = 0;; end = sound.values.size()) {
        if (stop.stop_requested())
            return decodingError(name, "stopped");
        if (end > maximumSoundValues)
            return decodingError(name, "is too long for a sound effect");
        sound.values.resize(end + framesAtATime * channels);
        const sf_count_t frames = library->sf_readf_float(file.get(), sound.values.data() + end,
                                                          sf_count_t(framesAtATime));
        sound.values.resize(end + std::size_t(std::max<sf_count_t>(frames, 0)) * channels);
        if (frames <= 0)
            break;
    }
    if (sound.values.empty())
        return decodingError(name, "holds no samples");
    std::ranges::transform(sound.values, sound.values.begin(), harmless);
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

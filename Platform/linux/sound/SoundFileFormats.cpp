// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/sound/SndfileLibrary.h"
#include "Platform/linux/sound/SoundDecoders.h"

#include <algorithm>
#include <memory>

namespace zt {

namespace {

constexpr int rawMuLawFrameRate = 8000;
// Between two looks at whether to stop.
constexpr std::size_t framesAtATime = 16'384;

// Bytes in memory, as libsndfile reads a file. Its callbacks have the library's own types.
class MemoryFile {
public:
    explicit MemoryFile(QByteArrayView content) : m_content(content) {}

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
        std::copy_n(file.m_content.data() + file.m_position, there, static_cast<char *>(bytes));
        file.m_position += there;
        return there;
    }

    static sf_count_t refuseToWrite(const void * /*bytes*/, sf_count_t /*count*/, void * /*file*/) {
        return 0;
    }

    static sf_count_t tell(void *file) { return of(file).m_position; }

    QByteArrayView m_content;
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

} // namespace

Result<SoundSamples> decodeSoundFileFormat(QByteArrayView content, SoundForm form,
                                           const QString &name, const std::stop_token &stop) {
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
    if (!canBePlayed(information.samplerate, information.channels))
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
    return sound;
}

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/sound/Mpg123Library.h"
#include "Platform/linux/sound/SoundDecoders.h"

#include <memory>

namespace zt {

namespace {

// Between two looks at whether to stop: half a second of stereo.
constexpr std::size_t valuesAtATime = 48'000;

struct Deleter {
    void operator()(mpg123_handle *decoder) const { mpg123Library()->mpg123_delete(decoder); }
};
using Decoder = std::unique_ptr<mpg123_handle, Deleter>;

// A decoder that has all the content, and says nothing on the standard error stream, whatever it
// thinks of that.
Decoder decoderOf(const Mpg123Library &library, QByteArrayView content) {
    Decoder decoder(library.mpg123_new(nullptr, nullptr));
    if (!decoder)
        return nullptr;
    library.mpg123_param2(decoder.get(), MPG123_ADD_FLAGS, MPG123_QUIET | MPG123_FORCE_FLOAT, 0.0);
    if (library.mpg123_open_feed(decoder.get()) != MPG123_OK ||
        library.mpg123_feed(decoder.get(), reinterpret_cast<const uchar *>(content.data()),
                            std::size_t(content.size())) != MPG123_OK)
        return nullptr;
    return decoder;
}

// Takes the form of the frames that follow into the sound. Null, or why that cannot be.
const char *takeForm(const Mpg123Library &library, mpg123_handle &decoder, SoundSamples &sound) {
    long frameRate = 0;
    int channels = 0;
    int encoding = 0;
    library.mpg123_getformat(&decoder, &frameRate, &channels, &encoding);
    if (encoding != MPG123_ENC_FLOAT_32 || !canBePlayed(frameRate, channels))
        return "cannot be played in this form";
    if (!sound.values.empty() && (sound.frameRate != frameRate || sound.channels != channels))
        return "changes its form";
    sound.frameRate = int(frameRate);
    sound.channels = channels;
    return nullptr;
}

} // namespace

Result<SoundSamples> decodeMpegAudio(QByteArrayView content, const QString &name,
                                     const std::stop_token &stop) {
    const Mpg123Library *const library = mpg123Library();
    if (library == nullptr)
        return decodingError(name, "libmpg123 is not installed");
    const Decoder decoder = decoderOf(*library, content);
    if (!decoder)
        return decodingError(name, "cannot be decoded");
    SoundSamples sound;
    for (;;) {
        if (stop.stop_requested())
            return decodingError(name, "stopped");
        const std::size_t end = sound.values.size();
        if (end > maximumSoundValues)
            return decodingError(name, "is too long for a sound effect");
        sound.values.resize(end + valuesAtATime);
        std::size_t bytes = 0;
        const int status = library->mpg123_read(decoder.get(), sound.values.data() + end,
                                                valuesAtATime * sizeof(float), &bytes);
        sound.values.resize(end + bytes / sizeof(float));
        if (status == MPG123_NEW_FORMAT) {
            if (const char *const cause = takeForm(*library, *decoder, sound))
                return decodingError(name, cause);
        } else if (status == MPG123_NEED_MORE || status == MPG123_DONE) {
            break; // there is no more
        } else if (status != MPG123_OK) {
            return decodingError(name, library->mpg123_strerror(decoder.get()));
        }
    }
    sound.values.resize(sound.frames() * std::size_t(sound.channels)); // whole frames
    return sound;
}

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/sound/SoundFiles.h"

#include <QFile>

#include <sndfile.h>

#include <cmath>
#include <memory>
#include <numbers>
#include <vector>

namespace {

int formatOf(SoundFileForm form) {
    switch (form) {
    case SoundFileForm::Aiff:
        return SF_FORMAT_AIFF | SF_FORMAT_PCM_16;
    case SoundFileForm::AiffC:
        return SF_FORMAT_AIFF | SF_FORMAT_ULAW; // a compressed AIFF is an AIFF-C
    case SoundFileForm::Wave:
        return SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    case SoundFileForm::WaveFloat:
        return SF_FORMAT_WAV | SF_FORMAT_FLOAT;
    case SoundFileForm::Sun:
        return SF_FORMAT_AU | SF_FORMAT_PCM_16;
    case SoundFileForm::SunMuLaw:
        return SF_FORMAT_AU | SF_FORMAT_ULAW;
    case SoundFileForm::Mp3:
        return SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III;
    case SoundFileForm::RawMuLaw:
        return SF_FORMAT_RAW | SF_FORMAT_ULAW;
    }
    return 0;
}

struct Closer {
    void operator()(SNDFILE *file) const { sf_close(file); }
};

} // namespace

bool writeTone(const QString &path, SoundFileForm form, const Tone &tone) {
    SF_INFO information{};
    information.samplerate = tone.frameRate;
    information.channels = tone.channels;
    information.format = formatOf(form);
    const std::unique_ptr<SNDFILE, Closer> file(
        sf_open(QFile::encodeName(path).constData(), SFM_WRITE, &information));
    if (!file)
        return false;
    const auto frames = sf_count_t(std::llround(tone.seconds * tone.frameRate));
    std::vector<float> values;
    for (sf_count_t frame = 0; frame < frames; ++frame) {
        const double time = double(frame) / tone.frameRate;
        const double value = tone.strength * std::sin(2 * std::numbers::pi * tone.frequency * time);
        values.insert(values.end(), std::size_t(tone.channels), float(value));
    }
    return sf_writef_float(file.get(), values.data(), frames) == frames;
}

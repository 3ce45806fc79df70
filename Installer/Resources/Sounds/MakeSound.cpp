// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Makes one of the installer's sounds from a few numbers and writes it as a WAVE file. The same
// numbers always make the same file.
// Usage: make_sound Done|SoundOfSilence FILE.wav

#include <sndfile.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <memory>
#include <numbers>
#include <vector>

namespace {

constexpr int frameRate = 48'000;

// A struck bar of wood or glass, heard through a wall: a fundamental tone and a little of two
// others, which die away sooner the higher they are.
struct Partial {
    double ratio;    // to the fundamental tone
    double strength; // of 1 in all
    double fading;   // seconds until it is down to a third
};
constexpr std::array partials = {Partial{1.0, 0.78, 0.22}, Partial{2.0, 0.16, 0.12},
                                 Partial{4.1, 0.06, 0.04}};

struct Note {
    double begin;     // seconds
    double frequency; // hertz
    double strength;
};
// "Done": two notes a fourth apart, the second one hardly later and no louder: settled rather than
// triumphant.
constexpr std::array notes = {Note{0.0, 587.33, 0.16}, Note{0.13, 783.99, 0.16}};
constexpr double doneSeconds = 0.9;
constexpr double attackSeconds = 0.006; // no click at the beginning of a note
constexpr double fadeSeconds = 0.08;    // nor at the end of the sound

// "SoundOfSilence": the least that is not nothing, since devices may sleep through nothing.
constexpr double silenceSeconds = 0.3;
constexpr double silenceStrength = 2.0 / 32'768;
constexpr double silenceFrequency = 100.0;

double sine(double frequency, double seconds) {
    return std::sin(2.0 * std::numbers::pi * frequency * seconds);
}

// Rises smoothly from 0 at 0 to 1 at 1.
double smoothStep(double x) {
    const double within = std::clamp(x, 0.0, 1.0);
    return within * within * (3.0 - 2.0 * within);
}

double noteAt(const Note &note, double time) {
    const double age = time - note.begin;
    if (age < 0.0)
        return 0.0;
    double sum = 0.0;
    for (const Partial &partial : partials)
        sum += partial.strength * std::exp(-age / partial.fading) *
               sine(note.frequency * partial.ratio, age);
    return note.strength * smoothStep(age / attackSeconds) * sum;
}

double doneAt(double time) {
    double sum = 0.0;
    for (const Note &note : notes)
        sum += noteAt(note, time);
    return sum * smoothStep((doneSeconds - time) / fadeSeconds);
}

double silenceAt(double time) {
    return silenceStrength * sine(silenceFrequency, time);
}

struct Sound {
    const char *name;
    double seconds;
    double (*valueAt)(double time);
};
constexpr std::array sounds = {Sound{"Done", doneSeconds, doneAt},
                               Sound{"SoundOfSilence", silenceSeconds, silenceAt}};

std::vector<short> valuesOf(const Sound &sound) {
    std::vector<short> values(std::size_t(std::lround(sound.seconds * frameRate)));
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = short(std::lround(32'767.0 * sound.valueAt(double(i) / frameRate)));
    return values;
}

struct Closer {
    void operator()(SNDFILE *file) const { sf_close(file); }
};

bool write(const std::vector<short> &values, const char *path) {
    SF_INFO form{};
    form.samplerate = frameRate;
    form.channels = 1;
    form.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    const std::unique_ptr<SNDFILE, Closer> file(sf_open(path, SFM_WRITE, &form));
    const auto count = sf_count_t(values.size());
    return file && sf_write_short(file.get(), values.data(), count) == count;
}

} // namespace

int main(int argc, char *argv[]) {
    const auto wanted = argc == 3 ? std::find_if(sounds.begin(), sounds.end(),
                                                 [&](const Sound &sound) {
                                                     return std::strcmp(sound.name, argv[1]) == 0;
                                                 })
                                  : sounds.end();
    if (wanted == sounds.end()) {
        std::fputs("Usage: make_sound Done|SoundOfSilence FILE.wav\n", stderr);
        return 2;
    }
    if (!write(valuesOf(*wanted), argv[2])) {
        std::fprintf(stderr, "make_sound: cannot write %s\n", argv[2]);
        return 1;
    }
    return 0;
}

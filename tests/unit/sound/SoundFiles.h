#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Sound files made by the tests.

#include <QString>

// What a made-up file holds: a tone, the same in all channels.
struct Tone {
    double frequency = 440.0; // hertz
    double strength = 0.5;    // of 1
    double seconds = 0.25;
    int frameRate = 48'000;
    int channels = 1;
};

// How it is written.
enum class SoundFileForm { Aiff, AiffC, Wave, WaveFloat, Sun, SunMuLaw, Mp3, RawMuLaw };

// Writes the file. Whether that went well.
bool writeTone(const QString &path, SoundFileForm form, const Tone &tone);

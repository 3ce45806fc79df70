#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A stand-in for Core Audio: devices, and sound files by path.

#include <AudioToolbox/AudioToolbox.h>

#include <QString>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace standin {

struct AudioDevice {
    AudioDeviceID number = 0;
    std::optional<std::string> name = {};
    std::optional<std::string> maker = {};
    std::optional<QString> identifier = {};
    bool hasOutput = true;
};

struct AudioFileContent {
    double frameRate = 48'000;
    UInt32 channels = 1;
    std::vector<float> values = {}; // frame by frame
    OSStatus answerToReading = noErr;
};

struct Audio {
    std::optional<std::vector<AudioDevice>> devices = std::vector<AudioDevice>(); // none: an error
    std::optional<AudioDeviceID> systemOutput = {};
    std::map<QString, AudioFileContent> files = {};
    int openFiles = 0;
};
extern Audio audio;

} // namespace standin

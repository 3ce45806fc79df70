#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Sounds: where they are kept, what is in their files, and playing them as the desktop plays its
// alerts.

#include "Platform/Result.h"

#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <vector>

namespace zt {

// A sound as it is in memory: one value from -1 to 1 for each channel of each frame, frame by
// frame.
struct SoundSamples {
    int frameRate = 0; // frames in a second
    int channels = 0;
    std::vector<float> values;

    std::size_t frames() const { return channels > 0 ? values.size() / std::size_t(channels) : 0; }
    std::chrono::duration<double> duration() const {
        return std::chrono::duration<double>(frameRate > 0 ? double(frames()) / frameRate : 0.0);
    }
};

struct SoundDevice {
    enum class Direction { Output, Input };

    QString identifier; // stays the same as long as the device is there, and after a restart
    QString name;       // for people
    QString manufacturer;
    Direction direction = Direction::Output;
};

// The file in which the audio system's settings are kept, a property list, and the name under which
// this user's stand in it.
struct SoundSettingsPlace {
    QString path;
    QString userID;
};

// A sound that was asked for. Thread: any.
class PlayedSound {
public:
    virtual ~PlayedSound() = default;

    // Whether it has ended: played to its end, stopped, or given up.
    virtual bool isOver() const = 0;

    // Ends it. Does not wait.
    virtual void stop() = 0;

protected:
    PlayedSound() = default;
    PlayedSound(const PlayedSound &) = default;
    PlayedSound &operator=(const PlayedSound &) = default;
};

struct SoundToPlay {
    // Answers the samples, or none when there is nothing that can be played. Called once, on a
    // thread of the service; it should end soon after a stop was requested.
    std::function<std::shared_ptr<const SoundSamples>(const std::stop_token &)> load;
    QString name;                  // shown in the desktop's mixer
    float volume = 1.0F;           // 0 is silence, 1 is full; between them as a slider stands
    std::optional<QString> device; // by its identifier; the one for alerts when there is none
    // Called once, on any thread: whether the sound was played to its end.
    std::function<void(bool)> ended;
};

// Nothing here waits for a sound to end. What the sound server has to be asked for is waited for
// only for a moment that nobody notices, also when no server answers; then there is no value.
// Thread: any, for all operations.
class Sounds {
public:
    // Ends everything that is played, and waits for the background tasks. A server that hangs
    // holds nothing up.
    virtual ~Sounds() = default;

    // The folders in which sounds are kept for all programs, the first one having precedence; they
    // need not exist. The local and the user's "Library/Sounds" come first, then the folders that
    // only this kind of desktop has.
    virtual QStringList soundFolders() const = 0;

    virtual SoundSettingsPlace settingsPlace() const = 0;

    // Reads a sound file whole. Fails on what is no sound, is none that can be played here, or is
    // so large that it is no sound effect, and when a stop was requested.
    virtual Result<SoundSamples> load(const QString &path, const std::stop_token &stop) const = 0;

    // All devices, outputs first. No value when nobody answers.
    virtual std::optional<std::vector<SoundDevice>> devices() = 0;

    // The identifier of the output that the user chose for alerts.
    virtual std::optional<QString> effectDevice() = 0;

    // The volume that the user chose for alerts, as the slider stands: 0 to 1.
    virtual std::optional<float> alertVolume() = 0;

    // Begins to get ready for the operations above, so that the first one is quick. Does not wait.
    virtual void getReady() = 0;

    // Loads the sound and plays it as an alert, all of it in the background. Where the device does
    // not exist it is played on the default output; a sound that cannot begin within a few seconds
    // is not played late, but given up. The service keeps what it plays until that is over.
    virtual std::shared_ptr<PlayedSound> play(SoundToPlay sound) = 0;

    // Runs a task on a thread of its own. The service waits for it when it goes, so the task may
    // use everything that outlives the service.
    virtual void runInBackground(std::function<void()> task) = 0;

protected:
    Sounds() = default;
    Sounds(const Sounds &) = default;
    Sounds &operator=(const Sounds &) = default;
};

} // namespace zt

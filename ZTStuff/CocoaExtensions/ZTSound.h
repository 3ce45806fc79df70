#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A sound out of a file, to be played as often as wanted.

#include "Platform/Platform.h"
#include "Platform/Result.h"
#include "Platform/Sounds.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/LazyFact.h"

#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

// The file is read when that is first needed. A sound that cannot be played (it is missing, broken,
// too large, or of a form that is not known here, such as MPEG-4 audio) lasts no time and is
// silent. Thread: any.
class ZTSound : public std::enable_shared_from_this<ZTSound> {
public:
    using Pointer = std::shared_ptr<ZTSound>;

    // The sound in the file, played on the platform's devices. The platform must outlive whatever
    // is asked of the sound, but not the sound.
    static Pointer soundWithContentsOfFile(const QString &path,
                                           const zt::Platform &platform = zt::currentPlatform());

    // The sound of this name, of the application or of the system; see
    // SoundExtensions::pathOfSound. Null when there is none.
    static Pointer soundNamed(const QString &name,
                              const zt::Platform &platform = zt::currentPlatform());

    ~ZTSound() = default;
    ZTSound(const ZTSound &) = delete;
    ZTSound &operator=(const ZTSound &) = delete;

    const zt::Platform &platform() const { return m_platform; }
    const QString &path() const { return m_path; }
    // The file's name without its extension.
    QString name() const;
    // For the log.
    QString description() const;

    // Reads the file if that has not been done. How long the sound lasts; 0 when it cannot be
    // played.
    std::chrono::duration<double> duration() const;
    // The same, as a question.
    bool isPlayable() const { return duration().count() > 0; }

    // From 0, which is silence, to 1, which is full and what a new sound has; between them as a
    // slider stands. It holds from the next time on that the sound is played; so do the device and
    // the listener.
    float volume() const;
    void setVolume(float volume);

    // The device on which the sound is played; none for the one that the system takes for alerts.
    // An identifier that belongs to no output is refused, and nothing changes.
    std::optional<QString> playbackDeviceIdentifier() const;
    zt::Result<void> setPlaybackDeviceIdentifier(const std::optional<QString> &identifier);

    // Begins to play, in the background: also the file is read there. The sound goes on when this
    // object goes. False when it is being played already.
    bool play();
    // Ends it. False when it was not being played.
    bool stop();
    bool isPlaying() const;

    // Calls `finished` on the main thread whenever the sound has ended: whether it was played to
    // its end, or else stopped or given up. One listener; an empty function removes it.
    void setFinishedListener(std::function<void(bool)> finished);

private:
    ZTSound(QString path, const zt::Platform &platform);
    std::shared_ptr<const zt::SoundSamples> samples(const std::stop_token &stop) const;
    std::shared_ptr<zt::PlayedSound> lastPlayed() const;

    const zt::Platform &m_platform;
    const QString m_path;
    LazyFact<std::shared_ptr<const zt::SoundSamples>> m_samples;

    mutable std::mutex m_mutex;
    float m_volume = 1.0F;
    std::optional<QString> m_device;
    std::function<void(bool)> m_finished;
    std::weak_ptr<zt::PlayedSound> m_played; // which keeps this object while it lasts
};

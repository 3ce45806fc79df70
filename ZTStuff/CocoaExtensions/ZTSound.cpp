// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/ZTSound.h"

#include "ZTStuff/CocoaExtensions/SoundExtensions.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/PathComponents.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTFormat.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace {

bool hasOutput(const std::vector<zt::SoundDevice> &devices, const QString &identifier) {
    return std::ranges::any_of(devices, [&](const zt::SoundDevice &device) {
        return device.identifier == identifier &&
               device.direction == zt::SoundDevice::Direction::Output;
    });
}

void tellMainThread(const std::function<void(bool)> &finished, bool completely) {
    QCoreApplication *const application = QCoreApplication::instance();
    if (finished && application != nullptr) {
        QMetaObject::invokeMethod(
            application, [finished, completely] { finished(completely); }, Qt::QueuedConnection);
    }
}

} // namespace

ZTSound::ZTSound(QString path, const zt::Platform &platform)
    : m_platform(platform)
    , m_path(std::move(path)) {}

ZTSound::Pointer ZTSound::soundWithContentsOfFile(const QString &path,
                                                  const zt::Platform &platform) {
    return Pointer(new ZTSound(path, platform));
}

ZTSound::Pointer ZTSound::soundNamed(const QString &name, const zt::Platform &platform) {
    const std::optional<QString> path = SoundExtensions::pathOfSound(name, platform);
    return path ? soundWithContentsOfFile(*path, platform) : nullptr;
}

QString ZTSound::name() const {
    return deletingPathExtension(lastPathComponent(m_path));
}

QString ZTSound::description() const {
    return ZTFormat("<ZTSound \"%@\">", name());
}

std::chrono::duration<double> ZTSound::duration() const {
    const auto known = samples({});
    return known ? known->duration() : std::chrono::duration<double>(0);
}

// What cannot be read is tried again when it is wanted again: it costs little.
std::shared_ptr<const zt::SoundSamples> ZTSound::samples(const std::stop_token &stop) const {
    using Samples = std::shared_ptr<const zt::SoundSamples>;
    return m_samples
        .value([&]() -> std::optional<Samples> {
            zt::Result<zt::SoundSamples> loaded = m_platform.sounds.load(m_path, stop);
            if (!loaded)
                return std::nullopt;
            return std::make_shared<const zt::SoundSamples>(*std::move(loaded));
        })
        .value_or(nullptr);
}

float ZTSound::volume() const {
    const std::scoped_lock lock(m_mutex);
    return m_volume;
}

void ZTSound::setVolume(float volume) {
    const std::scoped_lock lock(m_mutex);
    m_volume = volume > 0.0F ? std::min(volume, 1.0F) : 0.0F; // also what is no number is silent
}

std::optional<QString> ZTSound::playbackDeviceIdentifier() const {
    const std::scoped_lock lock(m_mutex);
    return m_device;
}

zt::Result<void> ZTSound::setPlaybackDeviceIdentifier(const std::optional<QString> &identifier) {
    // Where nobody tells the devices, the identifier may be right.
    if (identifier) {
        const auto devices = m_platform.sounds.devices();
        if (devices && !hasOutput(*devices, *identifier))
            return zt::Error{"play on", identifier->toStdString(), "is no output device"};
    }
    const std::scoped_lock lock(m_mutex);
    m_device = identifier;
    return {};
}

bool ZTSound::play() {
    const std::scoped_lock lock(m_mutex);
    const auto before = m_played.lock();
    if (before && !before->isOver())
        return false;
    m_played = m_platform.sounds.play(
        {.load = [self = shared_from_this()](
                     const std::stop_token &stop) { return self->samples(stop); },
         .name = name(),
         .volume = m_volume,
         .device = m_device,
         .ended = [finished =
                       m_finished](bool completely) { tellMainThread(finished, completely); }});
    return true;
}

bool ZTSound::stop() {
    const std::shared_ptr<zt::PlayedSound> played = lastPlayed();
    if (!played || played->isOver())
        return false;
    played->stop();
    return true;
}

bool ZTSound::isPlaying() const {
    const std::shared_ptr<zt::PlayedSound> played = lastPlayed();
    return played && !played->isOver();
}

std::shared_ptr<zt::PlayedSound> ZTSound::lastPlayed() const {
    const std::scoped_lock lock(m_mutex);
    return m_played.lock();
}

void ZTSound::setFinishedListener(std::function<void(bool)> finished) {
    const std::scoped_lock lock(m_mutex);
    m_finished = std::move(finished);
}

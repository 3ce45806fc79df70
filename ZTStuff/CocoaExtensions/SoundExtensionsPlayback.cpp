// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/SoundExtensions.h"

#include "Platform/Clock.h"
#include "Platform/Log.h"
#include "Platform/Sounds.h"
#include "Platform/UserDefaults.h"
#include "ZTStuff/CocoaExtensions/ZTSound.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/NumberReading.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTFormat.h"

#include <algorithm>
#include <chrono>
#include <mutex>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace SoundExtensions {

namespace {

// After so long without a sound a device may have gone to sleep.
constexpr auto longestIdleTime = 25s;
constexpr float silentSoundVolume = 0.01F;

// When a sound was played last.
class LastSoundDate {
public:
    using Date = std::chrono::system_clock::time_point;

    std::optional<Date> date() const {
        const std::scoped_lock lock(m_mutex);
        return m_date;
    }
    void set(std::optional<Date> date) {
        const std::scoped_lock lock(m_mutex);
        m_date = date;
    }

private:
    mutable std::mutex m_mutex;
    std::optional<Date> m_date;
};

LastSoundDate lastSoundDate;

// The lock is held while the sound is made and while it is begun to be played.
std::mutex silentSoundMutex;
ZTSound::Pointer silentSound;

// The diagnostics of one call, if the user wants them.
class Diagnostics {
public:
    explicit Diagnostics(const zt::Platform &platform)
        : m_log(platform.userDefaults.boolForKey(u"soundLog"_s) ? &platform.log : nullptr) {}

    bool areWanted() const { return m_log != nullptr; }

    template <typename... Arguments>
    void tell(QAnyStringView format, const Arguments &...arguments) const {
        if (m_log != nullptr)
            m_log->writeLine(ZTFormat(format, arguments...).toStdString());
    }

private:
    zt::Log *m_log;
};

// A setting as a number. No value when it is neither a number nor a text.
std::optional<float> number(const std::optional<QVariant> &value) {
    if (!value)
        return std::nullopt;
    switch (value->typeId()) {
    case QMetaType::QString:
        return floatValue(value->toString());
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return value->toFloat();
    default:
        return std::nullopt;
    }
}

std::optional<float> storedBeepVolume(const zt::UserDefaults &defaults) {
    const QString key = u"com.apple.sound.beep.volume"_s;
    const std::optional<float> own = number(defaults.objectForKey(key));
    return own ? own : number(defaults.objectForKey(key, u"com.apple.systemsound"_s));
}

// The setting's scale is not even: its quarters are stretched over the part that can be heard.
float volumeOfSetting(double b) {
    double volume = 0.0;
    if (!(b > 0.35))
        volume = 0.0;
    else if (b <= 0.47)
        volume = (b - 0.35) / 0.12 * 0.25;
    else if (b <= 0.61)
        volume = 0.25 + (b - 0.47) / 0.14 * 0.25;
    else if (b <= 0.78)
        volume = 0.5 + (b - 0.61) / 0.17 * 0.25;
    else
        volume = 0.75 + (b - 0.78) / 0.22 * 0.25;
    return std::min(static_cast<float>(volume), 1.0F);
}

void playSilentSoundOn(const zt::Platform &platform) {
    const std::scoped_lock lock(silentSoundMutex);
    if (!silentSound) {
        silentSound = ZTSound::soundNamed(u"SoundOfSilence"_s, platform);
        if (!silentSound)
            return;
        silentSound->setVolume(silentSoundVolume);
    }
    playAsSoundEffect(*silentSound);
}

} // namespace

float alertVolume() {
    const zt::Platform &platform = zt::currentPlatform();
    if (const auto setting = storedBeepVolume(platform.userDefaults))
        return volumeOfSetting(double(*setting));
    return std::clamp(platform.sounds.alertVolume().value_or(1.0F), 0.0F, 1.0F);
}

void playAsSoundEffect(ZTSound &receiver) {
    const Diagnostics diagnostics(receiver.platform());
    diagnostics.tell("playAsSoundEffect: %@", receiver.description());
    if (diagnostics.areWanted())
        listAudioDevices(receiver);
    const std::optional<QString> device = systemAudioDeviceID(receiver);
    diagnostics.tell("+SL: soundEffectID=%@", device);
    if (device) {
        diagnostics.tell("+SL: setPlaybackDeviceIdentifier:%@", *device);
        if (const auto set = receiver.setPlaybackDeviceIdentifier(device); !set) {
            diagnostics.tell("+SL: exception %@", QString::fromStdString(set.error().text()));
            static_cast<void>(receiver.setPlaybackDeviceIdentifier(std::nullopt)); // never refused
        }
    }
    diagnostics.tell("+SL: play self (%@)", receiver.description());
    // It loads its data before it is heard, in the background, where a slow file holds nobody up.
    receiver.play();
    lastSoundDate.set(receiver.platform().clock.now());
}

void setSoundDateNow() {
    lastSoundDate.set(zt::currentPlatform().clock.now());
}

void prepareForSound() {
    const zt::Platform &platform = zt::currentPlatform();
    const auto now = platform.clock.now();
    const auto last = lastSoundDate.date();
    if (last && now - *last <= longestIdleTime)
        return;
    lastSoundDate.set(now);
    // The service waits for its tasks, so that the platform is there until this one is done.
    platform.sounds.runInBackground([&platform] { playSilentSoundOn(platform); });
}

void playSilentSoundThread() {
    playSilentSoundOn(zt::currentPlatform());
}

void platformChanged() {
    lastSoundDate.set(std::nullopt);
    const std::scoped_lock lock(silentSoundMutex);
    silentSound.reset();
}

} // namespace SoundExtensions

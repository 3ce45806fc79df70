// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What is heard on which output, and how loud.

#include "Platform/linux/sound/PulseSounds.h"
#include "ZTStuff/CocoaExtensions/SoundExtensions.h"
#include "ZTStuff/CocoaExtensions/ZTSound.h"

#include "tests/Waiting.h"
#include "tests/desktop/sound/EventSoundSettings.h"
#include "tests/desktop/sound/SoundServer.h"
#include "tests/fakes/PlatformWith.h"
#include "tests/unit/sound/SoundFiles.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <atomic>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr Tone tone = {.frequency = 880.0, .strength = 0.8, .seconds = 0.6, .channels = 2};
constexpr float silent = 1e-4F;

// The machine may be slow; the answers come nevertheless.
constexpr zt::PulseSounds::Patience patient = {
    .forAnswer = 20s, .forBeginning = 60s, .forEnd = 20s};

// Halfway on the slider is an eighth of the strength: volumes are cubes.
float strengthAt(double volume) {
    return float(tone.strength * volume * volume * volume);
}

class SoundServerTest : public testing::Test {
protected:
    SoundServerTest() {
        EXPECT_TRUE(writeTone(toneFile(), SoundFileForm::Wave, tone));
        SoundExtensions::platformChanged();
    }
    ~SoundServerTest() override { SoundExtensions::platformChanged(); }
    SoundServerTest(const SoundServerTest &) = delete;
    SoundServerTest &operator=(const SoundServerTest &) = delete;

    QString toneFile() const { return m_folder.filePath(u"Tone.wav"_s); }

    ZTSound::Pointer makeTone() const { return ZTSound::soundWithContentsOfFile(toneFile()); }

    // A longer one, for what happens meanwhile.
    ZTSound::Pointer makeLongTone() const {
        const QString file = m_folder.filePath(u"Long.wav"_s);
        Tone longTone = tone;
        longTone.seconds = 20;
        EXPECT_TRUE(writeTone(file, SoundFileForm::Wave, longTone));
        return ZTSound::soundWithContentsOfFile(file);
    }

    // Plays the sound as an effect. Whether it was played to its end.
    static bool playsToTheEnd(ZTSound &sound) {
        std::optional<bool> end;
        sound.setFinishedListener([&end](bool completely) { end = completely; });
        SoundExtensions::playAsSoundEffect(sound);
        EXPECT_TRUE(eventually([&end] { return end.has_value(); }));
        sound.setFinishedListener({});
        return end.value_or(false);
    }

    // The same for the tone, as loud as alerts are.
    bool playsToneToTheEnd() const {
        const ZTSound::Pointer sound = makeTone();
        sound->setVolume(SoundExtensions::alertVolume());
        return playsToTheEnd(*sound);
    }

    // What was played has arrived, once it is quiet again: a recorder is a little behind.
    static bool isHeard(SoundRecorder &recorder, double seconds) {
        return eventually([&] { return recorder.seconds() > seconds - 0.02; });
    }

    SoundServer server;
    FakePlatform fakes;
    zt::PulseSounds sounds{{}, patient};
    const zt::Platform services = platformWith(fakes, {.sounds = &sounds});
    const zt::ScopedPlatform current{services};

private:
    QTemporaryDir m_folder;
};

TEST_F(SoundServerTest, withoutAChoiceTheDefaultOutputIsTaken) {
    SoundRecorder onSpeakers(SoundServer::speakers);
    SoundRecorder onHeadset(SoundServer::headset);
    EXPECT_TRUE(playsToneToTheEnd());
    EXPECT_TRUE(isHeard(onSpeakers, tone.seconds));
    EXPECT_NEAR(onSpeakers.seconds(), tone.seconds, 0.02);
    EXPECT_NEAR(onSpeakers.frequency(), tone.frequency, 10);
    EXPECT_NEAR(onSpeakers.peak(), float(tone.strength), 0.02F);
    EXPECT_LT(onHeadset.peak(), silent);
    EXPECT_TRUE(fakes.log.lines().isEmpty());
}

TEST_F(SoundServerTest, theOutputForEventSoundsIsTaken) {
    ASSERT_TRUE(storeEventSoundSettings({.device = SoundServer::headset}));
    SoundRecorder onSpeakers(SoundServer::speakers);
    SoundRecorder onHeadset(SoundServer::headset);
    EXPECT_EQ(SoundExtensions::systemAudioDeviceID(*makeTone()), SoundServer::headset);
    EXPECT_TRUE(playsToneToTheEnd());
    EXPECT_TRUE(isHeard(onHeadset, tone.seconds));
    EXPECT_LT(onSpeakers.peak(), silent);
}

TEST_F(SoundServerTest, anOutputForEventSoundsThatIsGoneIsPassedOver) {
    ASSERT_TRUE(storeEventSoundSettings({.device = u"unplugged"_s}));
    SoundRecorder onSpeakers(SoundServer::speakers);
    EXPECT_EQ(SoundExtensions::systemAudioDeviceID(*makeTone()), SoundServer::speakers);
    EXPECT_TRUE(playsToneToTheEnd());
    EXPECT_TRUE(isHeard(onSpeakers, tone.seconds));
}

TEST_F(SoundServerTest, anOutputThatGoesBeforeTheSoundBeginsIsReplaced) {
    SoundRecorder onSpeakers(SoundServer::speakers);
    const ZTSound::Pointer sound = makeTone();
    ASSERT_TRUE(sound->setPlaybackDeviceIdentifier(SoundServer::headset));
    SoundServer::removeOutput(SoundServer::headset);
    std::optional<bool> end;
    sound->setFinishedListener([&end](bool completely) { end = completely; });
    sound->play();
    EXPECT_TRUE(eventually([&end] { return end.has_value(); }));
    EXPECT_EQ(end, true);
    EXPECT_TRUE(isHeard(onSpeakers, tone.seconds));
}

TEST_F(SoundServerTest, theVolumeOfEventSoundsIsHeardOnce) {
    ASSERT_TRUE(storeEventSoundSettings({.volume = 0.5}));
    SoundRecorder recorder(SoundServer::speakers);
    EXPECT_NEAR(SoundExtensions::alertVolume(), 0.5F, 1e-3F);
    EXPECT_TRUE(playsToneToTheEnd());
    EXPECT_TRUE(isHeard(recorder, tone.seconds));
    EXPECT_NEAR(recorder.peak(), strengthAt(0.5), 0.005F);
}

TEST_F(SoundServerTest, theSettingsVolumeIsHeardInPlaceOfThatOfEventSounds) {
    ASSERT_TRUE(storeEventSoundSettings({.volume = 0.3}));
    fakes.userDefaults.suites[u"com.apple.systemsound"_s][u"com.apple.sound.beep.volume"_s] = 0.78;
    SoundRecorder recorder(SoundServer::speakers);
    EXPECT_TRUE(playsToneToTheEnd());
    EXPECT_TRUE(isHeard(recorder, tone.seconds));
    EXPECT_NEAR(recorder.peak(), strengthAt(0.75), 0.005F);
}

TEST_F(SoundServerTest, aSilentSettingIsSilence) {
    fakes.userDefaults.suites[u"com.apple.systemsound"_s][u"com.apple.sound.beep.volume"_s] = 0.35;
    SoundRecorder recorder(SoundServer::speakers);
    EXPECT_TRUE(playsToneToTheEnd());
    EXPECT_LT(recorder.peak(), silent);
}

TEST_F(SoundServerTest, mutedEventSoundsAreSilent) {
    ASSERT_TRUE(storeEventSoundSettings({.isMuted = true}));
    SoundRecorder recorder(SoundServer::speakers);
    EXPECT_TRUE(playsToneToTheEnd());
    EXPECT_LT(recorder.peak(), silent);
}

TEST_F(SoundServerTest, whatIsStoredForEventSoundsStaysAsItIs) {
    ASSERT_TRUE(storeEventSoundSettings({.volume = 0.4, .device = SoundServer::headset}));
    const ZTSound::Pointer sound = makeTone();
    sound->setVolume(0.9F);
    EXPECT_TRUE(playsToTheEnd(*sound));
    ASSERT_TRUE(sound->setPlaybackDeviceIdentifier(SoundServer::speakers));
    EXPECT_TRUE(sound->play());
    EXPECT_TRUE(eventually([&] { return !sound->isPlaying(); }));
    EXPECT_NEAR(SoundExtensions::alertVolume(), 0.4F, 1e-3F);
    EXPECT_EQ(SoundExtensions::systemAudioDeviceID(*sound), SoundServer::headset);
}

TEST_F(SoundServerTest, theMixerKnowsTheSoundAndItsRole) {
    const ZTSound::Pointer sound = makeLongTone();
    SoundExtensions::playAsSoundEffect(*sound);
    ASSERT_TRUE(eventually(SoundServer::isPlaying));
    const QByteArray played = SoundServer::control({u"list"_s, u"sink-inputs"_s});
    EXPECT_TRUE(played.contains("media.role = \"event\"")) << played.constData();
    EXPECT_TRUE(played.contains("media.name = \"Long\"")) << played.constData();
}

TEST_F(SoundServerTest, aStoppedSoundIsSilentAtOnce) {
    const ZTSound::Pointer sound = makeLongTone();
    SoundExtensions::playAsSoundEffect(*sound);
    ASSERT_TRUE(eventually(SoundServer::isPlaying));
    EXPECT_TRUE(sound->stop());
    EXPECT_FALSE(sound->isPlaying());
    EXPECT_TRUE(eventually([] { return !SoundServer::isPlaying(); }));
}

TEST_F(SoundServerTest, aRestartOfTheServerIsNotNoticed) {
    EXPECT_TRUE(playsToneToTheEnd());
    server.end();
    server.start();
    SoundRecorder recorder(SoundServer::speakers);
    EXPECT_TRUE(playsToneToTheEnd());
    EXPECT_TRUE(isHeard(recorder, tone.seconds));
}

TEST_F(SoundServerTest, aServerThatWasAbsentAtFirstIsFound) {
    server.end();
    EXPECT_EQ(SoundExtensions::alertVolume(), 1.0F);
    EXPECT_FALSE(playsToneToTheEnd());
    server.start();
    EXPECT_TRUE(playsToneToTheEnd());
}

TEST_F(SoundServerTest, aSoundEndsWithItsServer) {
    const ZTSound::Pointer sound = makeLongTone();
    SoundExtensions::playAsSoundEffect(*sound);
    ASSERT_TRUE(eventually(SoundServer::isPlaying));
    server.end();
    EXPECT_TRUE(eventually([&] { return !sound->isPlaying(); }));
    EXPECT_TRUE(fakes.log.lines().isEmpty());
}

TEST_F(SoundServerTest, aSoundEndsWithTheLastOutput) {
    const ZTSound::Pointer sound = makeLongTone();
    SoundExtensions::playAsSoundEffect(*sound);
    ASSERT_TRUE(eventually(SoundServer::isPlaying));
    SoundServer::removeOutput(SoundServer::headset);
    SoundServer::removeOutput(SoundServer::speakers);
    EXPECT_TRUE(eventually([&] { return !sound->isPlaying(); }));
    // The next one finds the output that is there by then.
    SoundServer::addOutput(SoundServer::headset);
    SoundRecorder recorder(SoundServer::headset);
    EXPECT_TRUE(playsToneToTheEnd());
    EXPECT_TRUE(isHeard(recorder, tone.seconds));
    EXPECT_TRUE(fakes.log.lines().isEmpty());
}

TEST_F(SoundServerTest, aSoundThatCouldNotBeginInTimeIsNotPlayedLate) {
    zt::PulseSounds impatient(
        {}, {.forAnswer = 1ms, .forBeginning = 0ms, .forEnd = std::chrono::milliseconds(20s)});
    SoundRecorder recorder(SoundServer::speakers);
    server.suspend();
    EXPECT_FALSE(impatient.alertVolume());
    std::atomic<bool> hasEnded = false;
    impatient.play({.load =
                        [this](const std::stop_token &stop) {
                            auto loaded = sounds.load(toneFile(), stop);
                            return std::make_shared<const zt::SoundSamples>(*std::move(loaded));
                        },
                    .name = u"late"_s,
                    .device = {},
                    .ended = [&hasEnded](bool) { hasEnded = true; }});
    server.resume();
    EXPECT_TRUE(eventually([&hasEnded] { return hasEnded.load(); }));
    EXPECT_TRUE(eventually([&impatient] { return impatient.devices().has_value(); }));
    EXPECT_LT(recorder.peak(), silent);
}

TEST_F(SoundServerTest, theDevicesAreListed) {
    const auto devices = sounds.devices();
    ASSERT_TRUE(devices);
    ASSERT_EQ(devices->size(), 2U); // what only repeats an output is none
    EXPECT_EQ(devices->at(0).identifier, SoundServer::speakers);
    EXPECT_EQ(devices->at(1).identifier, SoundServer::headset);
    SoundExtensions::listAudioDevices(*makeTone());
    EXPECT_EQ(fakes.log.lines(),
              QStringList({u"   device speakers by module-null-sink.c id speakers"_s,
                           u"   device headset by module-null-sink.c id headset"_s}));
}

TEST_F(SoundServerTest, anUnknownDeviceIsRefused) {
    const ZTSound::Pointer sound = makeTone();
    EXPECT_FALSE(sound->setPlaybackDeviceIdentifier(u"unplugged"_s));
    EXPECT_FALSE(sound->setPlaybackDeviceIdentifier(u"speakers.monitor"_s));
    EXPECT_TRUE(sound->setPlaybackDeviceIdentifier(SoundServer::headset));
}

} // namespace

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/sound/SoundFixture.h"

#include <cmath>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString volumeKey = u"com.apple.sound.beep.volume"_s;
const QString suite = u"com.apple.systemsound"_s;

class AlertVolumeTest : public SoundFixture {
protected:
    void set(const QVariant &value) { platform.userDefaults.suites[suite][volumeKey] = value; }
};

TEST_F(AlertVolumeTest, theSettingIsMappedByQuarters) {
    const struct {
        const char *reason;
        QVariant setting;
        float volume;
    } rows[] = {
        {"silent", 0.0, 0.0F},
        {"the lower end", 0.35, 0.0F},
        {"within the first quarter", 0.41, 0.125F},
        {"a quarter", 0.47, 0.25F},
        {"within the second quarter", 0.54, 0.375F},
        {"half", 0.61, 0.5F},
        {"within the third quarter", 0.695, 0.625F},
        {"three quarters", 0.78, 0.75F},
        {"within the last quarter", 0.9, 0.8863636F},
        {"full", 1.0, 1.0F},
        {"more than full", 2.5, 1.0F},
        {"less than nothing", -1.0, 0.0F},
        {"a text", u"0.47"_s, 0.25F},
        {"a text with more behind the number", u" 0.61 of 1"_s, 0.5F},
        {"a text without a number", u"loud"_s, 0.0F},
        {"a whole number", 1, 1.0F},
        {"yes", true, 1.0F},
        {"no number", std::nan(""), 0.0F},
    };
    for (const auto &row : rows) {
        set(row.setting);
        EXPECT_NEAR(SoundExtensions::alertVolume(), row.volume, 1e-6F) << row.reason;
    }
}

TEST_F(AlertVolumeTest, withoutAnySettingItIsFull) {
    EXPECT_EQ(SoundExtensions::alertVolume(), 1.0F);
    set(QVariantList{QVariant(0.5)}); // has no value as a number
    EXPECT_EQ(SoundExtensions::alertVolume(), 1.0F);
}

TEST_F(AlertVolumeTest, theDesktopsVolumeIsTakenAsItsSliderStands) {
    platform.sounds.chosenVolume = 0.3F;
    EXPECT_EQ(SoundExtensions::alertVolume(), 0.3F);
    platform.sounds.chosenVolume = 1.5F;
    EXPECT_EQ(SoundExtensions::alertVolume(), 1.0F);
}

TEST_F(AlertVolumeTest, theSettingGoesBeforeTheDesktopsVolume) {
    platform.sounds.chosenVolume = 0.3F;
    set(0.61);
    EXPECT_EQ(SoundExtensions::alertVolume(), 0.5F);
}

TEST_F(AlertVolumeTest, theApplicationsOwnSettingGoesBeforeAll) {
    set(0.61);
    platform.userDefaults.values[volumeKey] = 0.47;
    EXPECT_EQ(SoundExtensions::alertVolume(), 0.25F);
}

class SoundPlaybackTest : public SoundFixture {
protected:
    SoundPlaybackTest() {
        platform.sounds.allDevices = {output("speakers"), output("headset")};
        platform.sounds.chosenDevice = u"headset"_s;
    }

    ZTSound::Pointer ping = ZTSound::soundWithContentsOfFile(addSound(u"Home/Ping.wav"_s));
};

TEST_F(SoundPlaybackTest, aSoundEffectIsPlayedOnTheDeviceForAlertsWithoutALine) {
    ping->setVolume(0.5F);
    SoundExtensions::playAsSoundEffect(*ping);
    EXPECT_EQ(platform.sounds.plays(),
              std::vector<FakeSounds::Play>({{u"Ping"_s, 0.5F, u"headset"_s, 500}}));
    EXPECT_TRUE(platform.log.lines().isEmpty());
}

TEST_F(SoundPlaybackTest, withoutADeviceForAlertsTheDefaultOutputIsTaken) {
    platform.sounds.chosenDevice = std::nullopt;
    SoundExtensions::playAsSoundEffect(*ping);
    ASSERT_EQ(platform.sounds.plays().size(), 1U);
    EXPECT_EQ(platform.sounds.plays().front().device, std::nullopt);
    EXPECT_TRUE(platform.log.lines().isEmpty());
}

TEST_F(SoundPlaybackTest, aRefusedDeviceIsDroppedWithoutALine) {
    ASSERT_TRUE(ping->setPlaybackDeviceIdentifier(u"speakers"_s));
    platform.sounds.chosenDevice = u"unplugged"_s;
    SoundExtensions::playAsSoundEffect(*ping);
    ASSERT_EQ(platform.sounds.plays().size(), 1U);
    EXPECT_EQ(platform.sounds.plays().front().device, std::nullopt);
    EXPECT_TRUE(platform.log.lines().isEmpty());
}

TEST_F(SoundPlaybackTest, whatIsDoneIsToldWhenTheUserWantsToKnow) {
    platform.userDefaults.values[u"soundLog"_s] = true;
    SoundExtensions::playAsSoundEffect(*ping);
    EXPECT_EQ(platform.log.lines(), QStringList({u"playAsSoundEffect: <ZTSound \"Ping\">"_s,
                                                 u"   device Loudspeaker by Maker id speakers"_s,
                                                 u"   device Loudspeaker by Maker id headset"_s,
                                                 u"+SL: soundEffectID=headset"_s,
                                                 u"+SL: setPlaybackDeviceIdentifier:headset"_s,
                                                 u"+SL: play self (<ZTSound \"Ping\">)"_s}));
}

TEST_F(SoundPlaybackTest, aRefusedDeviceIsToldWhenTheUserWantsToKnow) {
    platform.userDefaults.values[u"soundLog"_s] = u"YES"_s;
    platform.sounds.allDevices->clear();
    SoundExtensions::playAsSoundEffect(*ping);
    EXPECT_EQ(
        platform.log.lines(),
        QStringList({u"playAsSoundEffect: <ZTSound \"Ping\">"_s, u"+SL: soundEffectID=headset"_s,
                     u"+SL: setPlaybackDeviceIdentifier:headset"_s,
                     u"+SL: exception play on headset: is no output device"_s,
                     u"+SL: play self (<ZTSound \"Ping\">)"_s}));
}

TEST_F(SoundPlaybackTest, aMissingDeviceIsToldAsNone) {
    platform.userDefaults.values[u"soundLog"_s] = true;
    platform.sounds.allDevices = std::nullopt;
    platform.sounds.chosenDevice = std::nullopt;
    SoundExtensions::playAsSoundEffect(*ping);
    EXPECT_EQ(platform.log.lines(), QStringList({u"playAsSoundEffect: <ZTSound \"Ping\">"_s,
                                                 u"+SL: soundEffectID=(null)"_s,
                                                 u"+SL: play self (<ZTSound \"Ping\">)"_s}));
}

TEST_F(SoundPlaybackTest, devicesThatTellTooLittleAreNotListed) {
    platform.sounds.allDevices = {output("speakers"),
                                  {u"a"_s, {}, u"Maker"_s, {}},
                                  {u"b"_s, u"Name"_s, {}, {}},
                                  {{}, u"Name"_s, u"Maker"_s, {}}};
    SoundExtensions::listAudioDevices(*ping);
    EXPECT_EQ(platform.log.lines(), QStringList({u"   device Loudspeaker by Maker id speakers"_s}));
}

TEST_F(SoundPlaybackTest, longNamesAreCutBetweenCharacters) {
    const QString name(40, u'\u00e9'); // two bytes each
    platform.sounds.allDevices = {{u"id"_s, name, QString(70, u'm'), {}}};
    SoundExtensions::listAudioDevices(*ping);
    EXPECT_EQ(platform.log.lines(), QStringList({u"   device "_s + name.left(31) + u" by "_s +
                                                 QString(63, u'm') + u" id id"_s}));
}

TEST_F(SoundPlaybackTest, bothWaysOfAskingTellTheSameDevice) {
    EXPECT_EQ(SoundExtensions::systemAudioDeviceID(*ping), u"headset"_s);
    EXPECT_EQ(SoundExtensions::_alertSoundAlertDeviceIdentifier(*ping), u"headset"_s);
}

class WarmUpTest : public SoundPlaybackTest {
protected:
    // So many warm-ups were begun, and are over now.
    int warmUps() {
        platform.sounds.waitForBackgroundTasks();
        return platform.sounds.backgroundTasks();
    }

    QString silentSound = addApplicationSound(u"SoundOfSilence.wav"_s);
};

TEST_F(WarmUpTest, theSilentSoundIsPlayedVeryLow) {
    SoundExtensions::prepareForSound();
    EXPECT_EQ(warmUps(), 1);
    EXPECT_EQ(platform.sounds.plays(),
              std::vector<FakeSounds::Play>({{u"SoundOfSilence"_s, 0.01F, u"headset"_s, 500}}));
}

TEST_F(WarmUpTest, withinTwentyFiveSecondsThereIsOneWarmUp) {
    SoundExtensions::prepareForSound();
    EXPECT_EQ(warmUps(), 1);
    platform.clock.advance(25s);
    SoundExtensions::prepareForSound();
    EXPECT_EQ(warmUps(), 1);
    platform.clock.advance(1s);
    SoundExtensions::prepareForSound();
    EXPECT_EQ(warmUps(), 2);
}

TEST_F(WarmUpTest, afterASoundNoneIsNeededForTwentyFiveSeconds) {
    SoundExtensions::playAsSoundEffect(*ping);
    platform.clock.advance(25s);
    SoundExtensions::prepareForSound();
    EXPECT_EQ(warmUps(), 0);
    SoundExtensions::setSoundDateNow();
    platform.clock.advance(24s);
    SoundExtensions::prepareForSound();
    EXPECT_EQ(warmUps(), 0);
    platform.clock.advance(2s);
    SoundExtensions::prepareForSound();
    EXPECT_EQ(warmUps(), 1);
}

TEST_F(WarmUpTest, theSilentSoundIsMadeOnce) {
    SoundExtensions::playSilentSoundThread();
    platform.sounds.playToTheEnd();
    QFile::remove(silentSound);
    SoundExtensions::playSilentSoundThread();
    EXPECT_EQ(platform.sounds.plays().size(), 2U);
}

TEST_F(WarmUpTest, withoutTheSilentSoundNothingIsPlayed) {
    QFile::remove(silentSound);
    SoundExtensions::prepareForSound();
    EXPECT_EQ(warmUps(), 1);
    EXPECT_TRUE(platform.sounds.plays().empty());
    EXPECT_TRUE(platform.log.lines().isEmpty());
}

} // namespace

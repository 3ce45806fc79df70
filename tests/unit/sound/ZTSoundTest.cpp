// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/sound/SoundFixture.h"

#include <QCoreApplication>

#include <cmath>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

class ZTSoundTest : public SoundFixture {
protected:
    ZTSound::Pointer ping = ZTSound::soundWithContentsOfFile(addSound(u"Home/Ping.wav"_s));
};

TEST_F(ZTSoundTest, aSoundIsFoundByItsName) {
    const ZTSound::Pointer found = ZTSound::soundNamed(u"Ping"_s);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->path(), path(u"Home/Ping.wav"_s));
    EXPECT_EQ(found->name(), u"Ping"_s);
    EXPECT_EQ(found->description(), u"<ZTSound \"Ping\">"_s);
    EXPECT_FALSE(ZTSound::soundNamed(u"Pong"_s));
}

TEST_F(ZTSoundTest, theDurationIsThatOfTheFile) {
    EXPECT_DOUBLE_EQ(ping->duration().count(), 0.5);
    EXPECT_TRUE(ping->isPlayable());
}

TEST_F(ZTSoundTest, whatCannotBePlayedLastsNoTimeAndIsSilent) {
    const auto broken = ZTSound::soundWithContentsOfFile(addFile(u"Home/Broken.m4a"_s));
    EXPECT_EQ(broken->duration().count(), 0.0);
    EXPECT_FALSE(broken->isPlayable());
    EXPECT_TRUE(broken->play());
    EXPECT_FALSE(broken->isPlaying());
    EXPECT_TRUE(platform.sounds.plays().empty());
    EXPECT_TRUE(platform.log.lines().isEmpty());
}

TEST_F(ZTSoundTest, theVolumeStaysBetweenSilentAndFull) {
    EXPECT_EQ(ping->volume(), 1.0F);
    const struct {
        float given;
        float kept;
    } rows[] = {{0.25F, 0.25F}, {-1.0F, 0.0F}, {7.0F, 1.0F}, {std::nanf(""), 0.0F}};
    for (const auto &row : rows) {
        ping->setVolume(row.given);
        EXPECT_EQ(ping->volume(), row.kept) << row.given;
    }
}

TEST_F(ZTSoundTest, aSoundIsPlayedAsItIsSet) {
    platform.sounds.allDevices = {output("speakers"), output("headset")};
    ping->setVolume(0.5F);
    ASSERT_TRUE(ping->setPlaybackDeviceIdentifier(u"headset"_s));
    EXPECT_TRUE(ping->play());
    EXPECT_TRUE(ping->isPlaying());
    EXPECT_EQ(platform.sounds.plays(),
              std::vector<FakeSounds::Play>({{u"Ping"_s, 0.5F, u"headset"_s, 500}}));
}

TEST_F(ZTSoundTest, aSoundIsPlayedOnceAtATime) {
    EXPECT_TRUE(ping->play());
    EXPECT_FALSE(ping->play());
    platform.sounds.playToTheEnd();
    EXPECT_FALSE(ping->isPlaying());
    EXPECT_TRUE(ping->play());
    EXPECT_EQ(platform.sounds.plays().size(), 2U);
}

TEST_F(ZTSoundTest, stoppingASilentSoundIsRefused) {
    EXPECT_FALSE(ping->stop());
    ping->play();
    EXPECT_TRUE(ping->stop());
    EXPECT_FALSE(ping->isPlaying());
    EXPECT_FALSE(ping->stop());
}

TEST_F(ZTSoundTest, aDeviceThatIsNoOutputIsRefused) {
    platform.sounds.allDevices = {output("speakers")};
    platform.sounds.allDevices->push_back(
        {u"microphone"_s, u"Microphone"_s, u"Maker"_s, zt::SoundDevice::Direction::Input});
    ASSERT_TRUE(ping->setPlaybackDeviceIdentifier(u"speakers"_s));
    for (const QString &identifier : {u"headset"_s, u"microphone"_s, u""_s}) {
        const auto set = ping->setPlaybackDeviceIdentifier(identifier);
        ASSERT_FALSE(set) << identifier.toStdString();
        EXPECT_EQ(set.error().object, identifier.toStdString());
        EXPECT_EQ(ping->playbackDeviceIdentifier(), u"speakers"_s);
    }
    EXPECT_TRUE(ping->setPlaybackDeviceIdentifier(std::nullopt));
    EXPECT_EQ(ping->playbackDeviceIdentifier(), std::nullopt);
}

TEST_F(ZTSoundTest, aDeviceThatNobodyCanJudgeIsTaken) {
    platform.sounds.allDevices = std::nullopt;
    EXPECT_TRUE(ping->setPlaybackDeviceIdentifier(u"headset"_s));
    EXPECT_EQ(ping->playbackDeviceIdentifier(), u"headset"_s);
}

TEST_F(ZTSoundTest, theListenerIsToldOnTheMainThreadHowItEnded) {
    std::vector<bool> ends;
    ping->setFinishedListener([&](bool completely) { ends.push_back(completely); });
    ping->play();
    std::thread([this] { platform.sounds.playToTheEnd(); }).join();
    EXPECT_TRUE(ends.empty()); // not before the main thread is free
    QCoreApplication::sendPostedEvents();
    ping->play();
    ping->stop();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(ends, (std::vector<bool>{true, false}));
    ping->setFinishedListener({});
    ping->play();
    ping->stop();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(ends.size(), 2U);
}

TEST_F(ZTSoundTest, aSoundGoesOnWhenItsObjectGoes) {
    bool wasPlayedToTheEnd = false;
    ping->setFinishedListener([&](bool completely) { wasPlayedToTheEnd = completely; });
    ping->play();
    ping.reset();
    platform.sounds.playToTheEnd();
    QCoreApplication::sendPostedEvents();
    EXPECT_TRUE(wasPlayedToTheEnd);
}

TEST_F(ZTSoundTest, theObjectIsGivenUpWhenNobodyWantsIt) {
    const std::weak_ptr<ZTSound> object = ping;
    ping->play();
    ping.reset();
    platform.sounds.playToTheEnd();
    EXPECT_TRUE(object.expired());
}

} // namespace

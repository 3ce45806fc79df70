// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/AudioFileReader.h"
#include "Platform/macos/CoreAudioDevices.h"
#include "Platform/macos/PlayedOnce.h"
#include "Platform/macos/WaveData.h"

#include "tests/unit/macos/StandInTest.h"

#include <gmock/gmock.h>

#include <QtEndian>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using Direction = zt::SoundDevice::Direction;

class CoreAudioDevicesTest : public StandInTest {
protected:
    using Devices = std::vector<standin::AudioDevice>;
};

TEST_F(CoreAudioDevicesTest, outputsAreListedFirst) {
    standin::audio.devices = Devices{
        {.number = 40, .name = "Mic", .maker = "M", .identifier = u"in"_s, .hasOutput = false},
        {.number = 41, .name = "Speakers", .maker = "S", .identifier = u"out"_s},
    };
    const auto devices = zt::audioDevices();
    ASSERT_TRUE(devices);
    ASSERT_EQ(devices->size(), 2U);
    EXPECT_EQ(devices->at(0).identifier, u"out"_s);
    EXPECT_EQ(devices->at(0).name, u"Speakers"_s);
    EXPECT_EQ(devices->at(0).manufacturer, u"S"_s);
    EXPECT_EQ(devices->at(0).direction, Direction::Output);
    EXPECT_EQ(devices->at(1).identifier, u"in"_s);
    EXPECT_EQ(devices->at(1).direction, Direction::Input);
}

TEST_F(CoreAudioDevicesTest, aDeviceThatDoesNotTellEverythingIsLeftOut) {
    standin::audio.devices =
        Devices{{.number = 41, .maker = "M", .identifier = u"a"_s},
                {.number = 42, .name = "N", .identifier = u"b"_s},
                {.number = 43, .name = "N", .maker = "M"},
                {.number = 44, .name = "N", .maker = "M", .identifier = u"d"_s}};
    const auto devices = zt::audioDevices();
    ASSERT_EQ(devices->size(), 1U);
    EXPECT_EQ(devices->front().identifier, u"d"_s);
}

TEST_F(CoreAudioDevicesTest, aLongNameIsCut) {
    standin::audio.devices =
        Devices{{.number = 41, .name = std::string(100, 'n'), .maker = "M", .identifier = u"a"_s}};
    const auto devices = zt::audioDevices();
    ASSERT_EQ(devices->size(), 1U);
    EXPECT_EQ(devices->front().name, QString(63, u'n'));
}

TEST_F(CoreAudioDevicesTest, withoutAListThereIsNoAnswer) {
    standin::audio.devices.reset();
    EXPECT_EQ(zt::audioDevices(), std::nullopt);
}

TEST_F(CoreAudioDevicesTest, theOutputForSoundEffectsHasAnIdentifier) {
    EXPECT_EQ(zt::systemOutputDevice(), std::nullopt);
    standin::audio.devices = Devices{{.number = 41, .identifier = u"out"_s}};
    standin::audio.systemOutput = 41;
    EXPECT_EQ(zt::systemOutputDevice(), u"out"_s);
    standin::audio.systemOutput = 42;
    EXPECT_EQ(zt::systemOutputDevice(), std::nullopt);
}

class AudioFileReaderTest : public StandInTest {
protected:
    static zt::Result<zt::SoundSamples> read(standin::AudioFileContent content) {
        standin::audio.files = {{u"/sound.aiff"_s, std::move(content)}};
        return zt::readAudioFile(u"/sound.aiff"_s, {});
    }
};

TEST_F(AudioFileReaderTest, allFramesAreReadHoweverManyReadsItTakes) {
    std::vector<float> values(100'000);
    for (std::size_t index = 0; index < values.size(); ++index)
        values[index] = float(index % 100) / 100;
    const auto samples = read({.frameRate = 44'100, .channels = 2, .values = values});
    ASSERT_TRUE(samples);
    EXPECT_EQ(samples->frameRate, 44'100);
    EXPECT_EQ(samples->channels, 2);
    EXPECT_EQ(samples->values, values);
}

TEST_F(AudioFileReaderTest, whatCannotBePlayedIsAnErrorThatNamesTheFile) {
    const std::pair<const char *, standin::AudioFileContent> rows[] = {
        {"no channel", {.channels = 0, .values = {0.5F}}},
        {"more channels than any device", {.channels = 33, .values = {0.5F}}},
        {"no rate", {.frameRate = 0, .values = {0.5F}}},
        {"a rate that is no number",
         {.frameRate = std::numeric_limits<double>::quiet_NaN(), .values = {0.5F}}},
        {"nothing to hear", {}},
        {"damaged", {.values = {0.5F}, .answerToReading = -50}},
    };
    for (const auto &[reason, content] : rows) {
        const auto samples = read(content);
        ASSERT_FALSE(samples) << reason;
        EXPECT_EQ(samples.error().object, "/sound.aiff") << reason;
    }
    EXPECT_EQ(zt::readAudioFile(u"/missing"_s, {}).error().object, "/missing");
}

TEST_F(AudioFileReaderTest, aFileThatIsTooLongForASoundEffectIsNotReadToItsEnd) {
    const auto samples = read({.values = std::vector<float>(zt::maximumSoundValues + 1)});
    ASSERT_FALSE(samples);
    EXPECT_EQ(samples.error().cause, "is too large for a sound effect");
}

TEST_F(AudioFileReaderTest, readingEndsWhenItIsNotWantedAnyMore) {
    standin::audio.files = {{u"/sound.aiff"_s, {.values = {0.5F}}}};
    std::stop_source stop;
    stop.request_stop();
    EXPECT_FALSE(zt::readAudioFile(u"/sound.aiff"_s, stop.get_token()));
}

namespace {

template <typename Number>
Number numberAt(const QByteArray &bytes, qsizetype offset) {
    return qFromLittleEndian<Number>(bytes.constData() + offset);
}

} // namespace

TEST(WaveDataTest, theHeaderDescribesTheSamples) {
    const QByteArray bytes = zt::waveDataOf({44'100, 2, {0, 0, 0, 0, 0, 0}});
    ASSERT_EQ(bytes.size(), 44 + 12);
    EXPECT_EQ(bytes.first(4), "RIFF");
    EXPECT_EQ(numberAt<quint32>(bytes, 4), 36U + 12U);
    EXPECT_EQ(bytes.sliced(8, 8), "WAVEfmt ");
    EXPECT_EQ(numberAt<quint32>(bytes, 16), 16U);
    EXPECT_EQ(numberAt<quint16>(bytes, 20), 1);
    EXPECT_EQ(numberAt<quint16>(bytes, 22), 2);
    EXPECT_EQ(numberAt<quint32>(bytes, 24), 44'100U);
    EXPECT_EQ(numberAt<quint32>(bytes, 28), 44'100U * 4);
    EXPECT_EQ(numberAt<quint16>(bytes, 32), 4);
    EXPECT_EQ(numberAt<quint16>(bytes, 34), 16);
    EXPECT_EQ(bytes.sliced(36, 4), "data");
    EXPECT_EQ(numberAt<quint32>(bytes, 40), 12U);
}

TEST(WaveDataTest, valuesFillTheWholeRangeAndAreCutAtItsEnds) {
    const QByteArray bytes = zt::waveDataOf({8'000, 1, {0, 1, -1, 3, -3, 0.5F}});
    std::vector<int> values;
    for (qsizetype offset = 44; offset < bytes.size(); offset += 2)
        values.push_back(numberAt<qint16>(bytes, offset));
    EXPECT_THAT(values, ElementsAre(0, 32'767, -32'767, 32'767, -32'767, 16'384));
}

TEST(WaveDataTest, withoutSamplesThereAreNoBytes) {
    EXPECT_TRUE(zt::waveDataOf({}).isEmpty());
    EXPECT_TRUE(zt::waveDataOf({48'000, 0, {0.5F}}).isEmpty());
}

TEST(PlayedOnceTest, theEndIsToldOnceByWhoeverComesFirst) {
    std::vector<bool> told;
    zt::PlayedOnce sound([&](bool completely) { told.push_back(completely); });
    EXPECT_FALSE(sound.isOver());
    EXPECT_TRUE(sound.end(true));
    EXPECT_FALSE(sound.end(false));
    EXPECT_TRUE(sound.isOver());
    EXPECT_THAT(told, ElementsAre(true));
}

TEST(PlayedOnceTest, whoeverHearsOfTheEndMayAskForIt) {
    zt::PlayedOnce *asked = nullptr;
    bool wasOver = false;
    zt::PlayedOnce sound([&](bool) { wasOver = asked->isOver(); });
    asked = &sound;
    sound.end(false);
    EXPECT_TRUE(wasOver);
}

TEST(PlayedOnceTest, nobodyNeedsToHearOfTheEnd) {
    zt::PlayedOnce sound(nullptr);
    EXPECT_TRUE(sound.end(true));
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/sound/SoundDecoding.h"

#include "tests/unit/sound/SoundFiles.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include <sys/stat.h> // mkfifo

using namespace Qt::StringLiterals;

namespace {

class SoundDecodingTest : public testing::Test {
protected:
    QString path(const QString &name) const { return m_folder.filePath(name); }

    void write(const QString &name, const QByteArray &content) const {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QByteArray contentOf(const QString &name) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    // Whether the file is refused, and why.
    std::string refusal(const QString &name) const {
        const zt::Result<zt::SoundSamples> sound = zt::readSoundFile(path(name));
        return sound ? "" : sound.error().cause;
    }

private:
    QTemporaryDir m_folder;
};

float peakOf(const zt::SoundSamples &sound) {
    return *std::ranges::max_element(sound.values);
}

// How often the first channel rises through zero in a second.
double frequencyOf(const zt::SoundSamples &sound) {
    int rises = 0;
    const auto step = std::size_t(sound.channels);
    for (std::size_t i = step; i < sound.values.size(); i += step)
        rises += sound.values[i - step] < 0 && sound.values[i] >= 0 ? 1 : 0;
    return rises / sound.duration().count();
}

TEST_F(SoundDecodingTest, eachFormIsRead) {
    struct Row {
        const char *reason;
        QString name;
        SoundFileForm form;
        Tone tone;
        double secondsMore = 0.0; // some forms have whole blocks only
    };
    const Row rows[] = {
        {"AIFF", u"a.aiff"_s, SoundFileForm::Aiff, {}},
        {"AIFF-C", u"a.aifc"_s, SoundFileForm::AiffC, {}},
        {"WAVE", u"a.wav"_s, SoundFileForm::Wave, {.frameRate = 44'100, .channels = 2}},
        {"WAVE in floating point", u"f.wav"_s, SoundFileForm::WaveFloat, {}},
        {"Sun audio", u"a.au"_s, SoundFileForm::Sun, {.frameRate = 22'050}},
        {"Sun audio in mu-law", u"a.snd"_s, SoundFileForm::SunMuLaw, {.frameRate = 8000}},
        {"MPEG layer 3", u"a.mp3"_s, SoundFileForm::Mp3, {.channels = 2}, 0.1},
        {"raw mu-law", u"a.ulw"_s, SoundFileForm::RawMuLaw, {.frameRate = 8000}},
        {"raw mu-law in capitals", u"b.ULW"_s, SoundFileForm::RawMuLaw, {.frameRate = 8000}},
        {"the content counts, not the name", u"c.aiff"_s, SoundFileForm::Wave, {}},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.reason);
        ASSERT_TRUE(writeTone(path(row.name), row.form, row.tone));
        const zt::Result<zt::SoundSamples> sound = zt::readSoundFile(path(row.name));
        ASSERT_TRUE(sound) << sound.error().text();
        EXPECT_EQ(sound->frameRate, row.tone.frameRate);
        EXPECT_EQ(sound->channels, row.tone.channels);
        EXPECT_GE(sound->duration().count(), row.tone.seconds - 1e-3);
        EXPECT_LE(sound->duration().count(), row.tone.seconds + row.secondsMore + 1e-3);
        EXPECT_NEAR(double(peakOf(*sound)), row.tone.strength, 0.02);
        if (row.secondsMore == 0.0) {
            EXPECT_NEAR(frequencyOf(*sound), row.tone.frequency, 5.0);
        }
    }
}

TEST_F(SoundDecodingTest, whatIsNoSoundIsRefusedWithTheReason) {
    write(u"empty.wav"_s, {});
    write(u"text.aiff"_s, "This is no sound at all, however long one listens to it.");
    // As a MPEG-4 file begins: no decoder for it is there.
    write(u"song.m4a"_s,
          QByteArray::fromHex("000000206674797069736f6d0000020069736f6d69736f32617663316d703431"));
    write(u"picture.wav"_s, QByteArray::fromHex("89504e470d0a1a0a0000000d49484452"));
    ASSERT_TRUE(writeTone(path(u"nothing.wav"_s), SoundFileForm::Wave, {.seconds = 0.0}));
    for (const char *name :
         {"empty.wav", "text.aiff", "song.m4a", "picture.wav", "nothing.wav", "missing.wav"})
        EXPECT_NE(refusal(QString::fromLatin1(name)), "") << name;
}

TEST_F(SoundDecodingTest, onlyRegularFilesAreOpened) {
    ASSERT_EQ(::mkfifo(qPrintable(path(u"pipe.wav"_s)), 0600), 0);
    ASSERT_EQ(::mkdir(qPrintable(path(u"folder.wav"_s)), 0700), 0);
    EXPECT_EQ(refusal(u"pipe.wav"_s), "is no regular file"); // and nobody waited for a writer
    EXPECT_EQ(refusal(u"folder.wav"_s), "is no regular file");
    const zt::Result<zt::SoundSamples> device = zt::readSoundFile(u"/dev/zero"_s);
    ASSERT_FALSE(device);
    EXPECT_EQ(device.error().cause, "is no regular file");
}

TEST_F(SoundDecodingTest, whatIsTooLargeForASoundEffectIsRefused) {
    write(u"large.wav"_s, {});
    QFile::resize(path(u"large.wav"_s), zt::maximumSoundFileSize + 1);
    EXPECT_EQ(refusal(u"large.wav"_s), "is too large for a sound effect");
    // A small file may hold a long sound: here one byte for each value.
    write(u"long.ulw"_s, QByteArray(qsizetype(zt::maximumSoundValues) + 1, '\x7f'));
    EXPECT_EQ(refusal(u"long.ulw"_s), "is too long for a sound effect");
    write(u"fits.ulw"_s, QByteArray(qsizetype(zt::maximumSoundValues), '\x7f'));
    EXPECT_EQ(refusal(u"fits.ulw"_s), "");
}

TEST_F(SoundDecodingTest, aHeaderThatPromisesTooMuchIsNotBelieved) {
    ASSERT_TRUE(writeTone(path(u"a.wav"_s), SoundFileForm::Wave, {.seconds = 0.1}));
    QByteArray content = contentOf(u"a.wav"_s);
    const qsizetype data = content.indexOf("data");
    ASSERT_GT(data, 0);
    content.replace(data + 4, 4, QByteArray::fromHex("fffffff0"));
    write(u"a.wav"_s, content);
    const zt::Result<zt::SoundSamples> sound = zt::readSoundFile(path(u"a.wav"_s));
    ASSERT_TRUE(sound) << sound.error().text();
    EXPECT_NEAR(sound->duration().count(), 0.1, 1e-3);
}

// The log is the standard error stream, and decoders like to complain there.
TEST_F(SoundDecodingTest, aBrokenFileIsNoMatterForTheLog) {
    ASSERT_TRUE(writeTone(path(u"a.mp3"_s), SoundFileForm::Mp3, {}));
    QByteArray content = contentOf(u"a.mp3"_s);
    for (qsizetype i = 40; i < content.size(); i += 7)
        content[i] = char(content.at(i) ^ 0x55);
    write(u"broken.mp3"_s, content);
    write(u"tagged.mp3"_s, "ID3" + QByteArray::fromHex("04000000000004") + "none" + content);
    write(u"short.mp3"_s, contentOf(u"a.mp3"_s).left(100));
    testing::internal::CaptureStderr();
    for (const char *name : {"broken.mp3", "tagged.mp3", "short.mp3"})
        refusal(QString::fromLatin1(name));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(SoundDecodingTest, tagsBeforeTheSoundArePassedOver) {
    ASSERT_TRUE(writeTone(path(u"a.mp3"_s), SoundFileForm::Mp3, {}));
    const QByteArray tag = "ID3" + QByteArray::fromHex("04000000000004") + "none";
    write(u"tagged.mp3"_s, tag + tag + contentOf(u"a.mp3"_s));
    EXPECT_EQ(refusal(u"tagged.mp3"_s), "");
    write(u"tag.mp3"_s, "ID3" + QByteArray::fromHex("0400007f7f7f7f") + "none");
    EXPECT_NE(refusal(u"tag.mp3"_s), ""); // longer than the file
}

TEST_F(SoundDecodingTest, nothingGetsLouderThanFull) {
    ASSERT_TRUE(writeTone(path(u"loud.wav"_s), SoundFileForm::WaveFloat, {.strength = 1000.0}));
    QByteArray content = contentOf(u"loud.wav"_s);
    const float noNumber = std::numeric_limits<float>::quiet_NaN();
    content.replace(content.size() - 4, 4,
                    QByteArray(reinterpret_cast<const char *>(&noNumber), sizeof noNumber));
    write(u"loud.wav"_s, content);
    const zt::Result<zt::SoundSamples> sound = zt::readSoundFile(path(u"loud.wav"_s));
    ASSERT_TRUE(sound);
    EXPECT_TRUE(
        std::ranges::all_of(sound->values, [](float value) { return std::abs(value) <= 1.0F; }));
    EXPECT_EQ(peakOf(*sound), 1.0F);
    EXPECT_EQ(sound->values.back(), 0.0F);
}

TEST_F(SoundDecodingTest, aStopIsHeeded) {
    ASSERT_TRUE(writeTone(path(u"a.wav"_s), SoundFileForm::Wave, {}));
    std::stop_source source;
    source.request_stop();
    const zt::Result<zt::SoundSamples> sound =
        zt::readSoundFile(path(u"a.wav"_s), source.get_token());
    ASSERT_FALSE(sound);
    EXPECT_EQ(sound.error().cause, "stopped");
}

TEST(InstallerSoundsTest, theSoundAtTheEndIsShortAndSoft) {
    const zt::Result<zt::SoundSamples> sound =
        zt::readSoundFile(QStringLiteral(INSTALLER_RESOURCES "/Done.wav"));
    ASSERT_TRUE(sound) << sound.error().text();
    EXPECT_LT(sound->duration().count(), 1.0);
    EXPECT_GT(peakOf(*sound), 0.1F);
    EXPECT_LT(peakOf(*sound), 0.35F);
    // Neither its beginning nor its end is a click.
    EXPECT_LT(std::abs(sound->values.front()), 0.001F);
    EXPECT_LT(std::abs(sound->values.back()), 0.001F);
}

TEST(InstallerSoundsTest, theSilentSoundIsNearlySilent) {
    const zt::Result<zt::SoundSamples> sound =
        zt::readSoundFile(QStringLiteral(INSTALLER_RESOURCES "/SoundOfSilence.wav"));
    ASSERT_TRUE(sound) << sound.error().text();
    EXPECT_GT(peakOf(*sound), 0.0F);
    EXPECT_LT(peakOf(*sound), 0.0002F);
}

} // namespace

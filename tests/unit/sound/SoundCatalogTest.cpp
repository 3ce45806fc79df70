// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/sound/SoundFixture.h"

using namespace Qt::StringLiterals;

namespace {

class SoundCatalogTest : public SoundFixture {};

TEST_F(SoundCatalogTest, thereAreTwentyThreeExtensions) {
    EXPECT_EQ(SoundExtensions::soundFileExtensions().size(), 23);
    EXPECT_EQ(&SoundExtensions::soundFileExtensions(), &SoundExtensions::soundFileExtensions());
}

TEST_F(SoundCatalogTest, theExtensionAloneMakesASoundFile) {
    const struct {
        const char *reason;
        QString path;
        bool isSound;
    } rows[] = {
        {"lower case", u"/nowhere/Ping.aiff"_s, true},
        {"upper case", u"Ping.AIFF"_s, true},
        {"a spelling that does not occur", u"Ping.Aiff"_s, false},
        {"a file type", u"Ping.'AIFF'"_s, true},
        {"a file type with a blank at its end", u"Ping.'Mp3 '"_s, true},
        {"a file type without its blank", u"Ping.'Mp3'"_s, false},
        {"a file type without its quotes", u"Ping.ULAW"_s, false},
        {"MPEG-4 audio", u"Ping.m4a"_s, true},
        {"MPEG-4 audio in capitals", u"Ping.M4A"_s, false},
        {"only the last extension counts", u"Ping.wav.txt"_s, false},
        {"several dots", u"a.b.c.au"_s, true},
        {"a slash at the end", u"/a/Ping.wav/"_s, true},
        {"the extension of a folder above", u"/a.wav/Ping"_s, false},
        {"no extension", u"wav"_s, false},
        {"nothing before the dot", u"/a/.wav"_s, false},
        {"nothing after the dot", u"Ping."_s, false},
        {"nothing at all", u""_s, false},
    };
    for (const auto &row : rows)
        EXPECT_EQ(SoundExtensions::isSoundFileAtPath(row.path), row.isSound) << row.reason;
}

TEST_F(SoundCatalogTest, theApplicationsSoundsAreAmongItsResources) {
    const QString zip = addApplicationSound(u"Zip.wav"_s);
    const QString pingWave = addApplicationSound(u"Ping.wav"_s);
    const QString pingAiff = addApplicationSound(u"Ping.aiff"_s);
    addFile(u"My.app/Contents/Resources/Picture.png"_s);
    addFile(u"My.app/Contents/Resources/Folder/Inside.wav"_s);
    EXPECT_EQ(SoundExtensions::applicationSoundFiles(), QStringList({pingAiff, pingWave, zip}));
    // Sorted, and both of one name are kept.
    EXPECT_EQ(SoundExtensions::applicationSounds(), QStringList({u"Ping"_s, u"Ping"_s, u"Zip"_s}));
}

TEST_F(SoundCatalogTest, namesAreSortedByTheirCharacters) {
    for (const QString &name : {u"b.wav"_s, u"a10.wav"_s, u"a9.wav"_s, u"B.wav"_s})
        addApplicationSound(name);
    EXPECT_EQ(SoundExtensions::applicationSounds(),
              QStringList({u"B"_s, u"a10"_s, u"a9"_s, u"b"_s}));
}

TEST_F(SoundCatalogTest, theSilentSoundIsFoundButNotOffered) {
    const QString silent = addApplicationSound(u"SoundOfSilence.aiff"_s);
    addApplicationSound(u"Ping.wav"_s);
    EXPECT_EQ(SoundExtensions::applicationSounds(), QStringList({u"Ping"_s}));
    EXPECT_EQ(SoundExtensions::pathOfSound(u"SoundOfSilence"_s), silent);
}

TEST_F(SoundCatalogTest, systemSoundsComeFromAllFoldersInOrder) {
    const QString local = addFile(u"Local/Ping.aiff"_s);
    const QString home = addFile(u"Home/Ping.wav"_s);
    const QString hidden = addFile(u"Home/.Secret.wav"_s);
    addFile(u"Home/Notes.txt"_s);
    addFile(u"Home/Folder/Inside.wav"_s);
    const QString system = addFile(u"System/Glass.aiff"_s);
    EXPECT_EQ(SoundExtensions::systemSoundFiles(), QStringList({system, local, hidden, home}));
    EXPECT_EQ(SoundExtensions::systemSounds(),
              QStringList({u".Secret"_s, u"Glass"_s, u"Ping"_s})); // "Ping" once
}

TEST_F(SoundCatalogTest, missingFoldersArePassedOver) {
    EXPECT_TRUE(SoundExtensions::systemSoundFiles().isEmpty());
    addFile(u"System"_s); // a file, where a folder should be
    const QString sound = addFile(u"Home/Ping.wav"_s);
    EXPECT_EQ(SoundExtensions::systemSoundFiles(), QStringList({sound}));
    EXPECT_TRUE(platform.log.lines().isEmpty());
}

TEST_F(SoundCatalogTest, theNearestSoundOfANameIsTaken) {
    const QString home = addFile(u"Home/Ping.wav"_s);
    EXPECT_EQ(SoundExtensions::pathOfSound(u"Ping"_s), home);
    const QString local = addFile(u"Local/Ping.wav"_s);
    EXPECT_EQ(SoundExtensions::pathOfSound(u"Ping"_s), local);
    const QString system = addFile(u"System/Ping.wav"_s);
    EXPECT_EQ(SoundExtensions::pathOfSound(u"Ping"_s), system);
    const QString own = addApplicationSound(u"Ping.wav"_s);
    EXPECT_EQ(SoundExtensions::pathOfSound(u"Ping"_s), own);
}

TEST_F(SoundCatalogTest, aNameMustBeTheWholeNameAsItIsWritten) {
    addApplicationSound(u"Ping.wav"_s);
    for (const QString &name : {u"ping"_s, u"Pin"_s, u"Ping.wav"_s, u""_s})
        EXPECT_EQ(SoundExtensions::pathOfSound(name), std::nullopt) << name.toStdString();
}

} // namespace

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What files of Objective-C++ leave to functions that know nothing of it.

#include "Platform/macos/AppearanceAnswers.h"
#include "Platform/macos/BlurredPart.h"
#include "Platform/macos/BundleFolder.h"
#include "Platform/macos/ProcessRecord.h"
#include "Platform/macos/VolumePath.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using zt::Appearance;

TEST(AppearanceAnswersTest, onlyTheTwoAppearancesAreSchemes) {
    const auto scheme = [](const QString &name) {
        return zt::schemeOfAppearance(name, u"Aqua"_s, u"DarkAqua"_s);
    };
    EXPECT_EQ(scheme(u"Aqua"_s), Appearance::Scheme::Light);
    EXPECT_EQ(scheme(u"DarkAqua"_s), Appearance::Scheme::Dark);
    EXPECT_EQ(scheme(u"VibrantDark"_s), std::nullopt);
    EXPECT_EQ(scheme(QString()), std::nullopt);
}

TEST(AppearanceAnswersTest, onlyGraphiteIsGrey) {
    EXPECT_EQ(zt::controlTintOf(1), Appearance::ControlTint::Blue);
    EXPECT_EQ(zt::controlTintOf(6), Appearance::ControlTint::Graphite);
    EXPECT_EQ(zt::controlTintOf(0), Appearance::ControlTint::Blue) << "the default tint";
    EXPECT_EQ(zt::controlTintOf(7), Appearance::ControlTint::Blue) << "a tint of later systems";
}

TEST(BundleFolderTest, theFirstPlaceWithADictionaryDecides) {
    const QTemporaryDir folder;
    const QDir bundle(folder.filePath(u"A.app"_s));
    const auto write = [&](const QString &name) {
        EXPECT_TRUE(QDir().mkpath(QFileInfo(bundle.filePath(name)).path()));
        QFile file(bundle.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return file.fileName();
    };
    EXPECT_EQ(zt::informationFileOf(bundle.path()), std::nullopt);
    const QString framework = write(u"Resources/Info.plist"_s);
    EXPECT_EQ(zt::informationFileOf(bundle.path()), framework);
    const QString flat = write(u"Info.plist"_s);
    EXPECT_EQ(zt::informationFileOf(bundle.path()), flat);
    const QString application = write(u"Contents/Info.plist"_s);
    EXPECT_EQ(zt::informationFileOf(bundle.path()), application);
}

TEST(BundleFolderTest, aFolderOfThatNameIsNoDictionary) {
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir().mkpath(folder.filePath(u"Contents/Info.plist"_s)));
    EXPECT_EQ(zt::informationFileOf(folder.path()), std::nullopt);
}

TEST(VolumePathTest, volumesAreTheItemsOfOneFolder) {
    const std::pair<QString, std::optional<QString>> rows[] = {
        {u"/Volumes/Disk"_s, u"/Volumes/Disk"_s},
        {u"/Volumes/Disk/Product.app"_s, u"/Volumes/Disk"_s},
        {u"/Volumes/Disk 1/a/b"_s, u"/Volumes/Disk 1"_s},
        {u"/Volumes//Disk/a"_s, u"/Volumes/Disk"_s},
        {u"/Volumes"_s, std::nullopt},
        {u"/Volumes/"_s, std::nullopt},
        {u"/VolumesX/Disk"_s, std::nullopt},
        {u"/Users/a/Volumes/Disk"_s, std::nullopt},
        {QString(), std::nullopt},
    };
    for (const auto &[path, volume] : rows)
        EXPECT_EQ(zt::volumeOfPath(path), volume) << path.toStdString();
}

TEST(BlurredPartTest, partsAreTurnedRoundForViewsThatCountFromTheBottom) {
    const QRect pixels(20, 40, 60, 100);
    EXPECT_EQ(zt::placedPart(pixels, {.scale = 1, .height = 400, .isFlipped = true}),
              (zt::PlacedPart{20, 40, 60, 100}));
    EXPECT_EQ(zt::placedPart(pixels, {.scale = 2, .height = 400, .isFlipped = true}),
              (zt::PlacedPart{10, 20, 30, 50}));
    EXPECT_EQ(zt::placedPart(pixels, {.scale = 2, .height = 400, .isFlipped = false}),
              (zt::PlacedPart{10, 330, 30, 50}));
}

TEST(ProcessorTimeTest, minutesAndSecondsAreAddedUp) {
    const std::pair<const char *, std::optional<double>> rows[] = {
        {"1:02.50", 62.5},   {"12:00.00", 720.0}, {"  0:01.25\n", 1.25}, {"", std::nullopt},
        {"7", std::nullopt}, {":", 0.0},          {"x:y", 0.0},
    };
    for (const auto &[text, seconds] : rows)
        EXPECT_EQ(zt::parseProcessorTime(text), seconds) << text;
}

TEST(ProcessListTest, onlyProgramsWithAPathAreTaken) {
    const QList<zt::ListedProcess> expected = {
        {u"root"_s, u"/sbin/launchd"_s}, {u"ben"_s, u"/Applications/Sample Notes.app/Notes"_s}};
    EXPECT_EQ(zt::parseProcessList("ann\nroot /sbin/launchd\nann (gone)\n\n /nobody\n"
                                   "ben      /Applications/Sample Notes.app/Notes\n"),
              expected);
}

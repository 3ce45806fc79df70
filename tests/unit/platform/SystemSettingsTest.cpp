// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/SystemSettings.h"

#include "tests/fakes/FakePlatform.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using zt::Appearance;

TEST(SystemSettingsTest, theInterfaceStyleIsThereOnlyWhenItIsDark) {
    const QString key = u"AppleInterfaceStyle"_s;
    FakeAppearance appearance;
    EXPECT_EQ(zt::systemSetting(key, appearance), std::nullopt);
    appearance.setScheme(Appearance::Scheme::Dark);
    EXPECT_EQ(zt::systemSetting(key, appearance), QVariant(u"Dark"_s));
    appearance.setScheme(Appearance::Scheme::Light);
    EXPECT_EQ(zt::systemSetting(key, appearance), std::nullopt);
}

namespace {

struct AccentRow {
    const char *reason;
    int red;
    int green;
    int blue;
    std::optional<int> index;
};

// What desktops offer, and colours that people could choose by themselves.
constexpr AccentRow accentRows[] = {
    {"GNOME's blue", 0x35, 0x84, 0xe4, std::nullopt},
    {"GNOME's teal, which is nearer to blue than to green", 0x21, 0x90, 0xa4, std::nullopt},
    {"GNOME's green", 0x3a, 0x94, 0x4a, 3},
    {"GNOME's yellow", 0xc8, 0x88, 0x00, 2},
    {"GNOME's orange", 0xed, 0x5b, 0x00, 1},
    {"GNOME's red", 0xe6, 0x2d, 0x42, 0},
    {"GNOME's pink", 0xd5, 0x61, 0x99, 6},
    {"GNOME's purple", 0x91, 0x41, 0xac, 5},
    {"GNOME's slate", 0x6f, 0x83, 0x96, -1},
    {"KDE's blue", 0x3d, 0xae, 0xe9, std::nullopt},
    {"KDE's pink", 0xe9, 0x3a, 0x9a, 6},
    {"KDE's red", 0xe9, 0x3d, 0x58, 0},
    {"KDE's orange", 0xe9, 0x64, 0x3a, 1},
    {"KDE's yellow", 0xe8, 0xcb, 0x2d, 2},
    {"KDE's green", 0x3d, 0xd4, 0x25, 3},
    {"KDE's purple", 0xb8, 0x75, 0xdc, 5},
    {"pure red, at the seam of the circle", 255, 0, 0, 0},
    {"black is a grey", 0, 0, 0, -1},
    {"white is a grey", 255, 255, 255, -1},
};

} // namespace

TEST(SystemSettingsTest, theAccentColorIsTheNearestOfThePlatforms) {
    const QString key = u"AppleAccentColor"_s;
    FakeAppearance appearance;
    EXPECT_EQ(zt::systemSetting(key, appearance), std::nullopt) << "no choice";
    for (const AccentRow &row : accentRows) {
        appearance.accent = {row.red / 255.0, row.green / 255.0, row.blue / 255.0};
        const auto setting = zt::systemSetting(key, appearance);
        ASSERT_EQ(setting.has_value(), row.index.has_value()) << row.reason;
        if (setting) {
            EXPECT_EQ(setting->typeId(), QMetaType::LongLong) << row.reason;
            EXPECT_EQ(setting->toInt(), row.index) << row.reason;
        }
    }
}

TEST(SystemSettingsTest, nothingElseIsKnown) {
    FakeAppearance appearance;
    appearance.setScheme(Appearance::Scheme::Dark);
    for (const QString &key : {u"appleinterfacestyle"_s, u""_s, u"nosound"_s})
        EXPECT_EQ(zt::systemSetting(key, appearance), std::nullopt) << key.toStdString();
}

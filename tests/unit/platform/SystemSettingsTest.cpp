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

TEST(SystemSettingsTest, nothingElseIsKnown) {
    FakeAppearance appearance;
    appearance.setScheme(Appearance::Scheme::Dark);
    for (const QString &key : {u"appleinterfacestyle"_s, u""_s, u"nosound"_s})
        EXPECT_EQ(zt::systemSetting(key, appearance), std::nullopt) << key.toStdString();
}

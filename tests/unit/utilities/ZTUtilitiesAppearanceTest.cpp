// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include "tests/fakes/FakePlatform.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using zt::Appearance;

namespace {

constexpr double mavericks = 1265.0;
constexpr double yosemite = 1343.0;
constexpr double highSierra = 1561.0;
constexpr double mojave = 1639.0;

class ZTUtilitiesAppearanceTest : public testing::Test {
protected:
    ZTUtilitiesAppearanceTest() { ZTUtilities::platformChanged(); }
    ~ZTUtilitiesAppearanceTest() override { ZTUtilities::platformChanged(); }

    void setStyle(const QVariant &style) {
        platform.userDefaults.values.insert(u"AppleInterfaceStyle"_s, style);
    }

    FakePlatform platform;
};

} // namespace

TEST_F(ZTUtilitiesAppearanceTest, theMenusAreDarkWhenTheStyleIs) {
    EXPECT_FALSE(ZTUtilities::darkMenuTheme()) << "no style";
    setStyle(u"Dark"_s);
    EXPECT_TRUE(ZTUtilities::darkMenuTheme()) << "read anew";
    for (const QVariant &style : {QVariant(u"dark"_s), QVariant(u"Light"_s), QVariant(u""_s),
                                  QVariant(u"Darker"_s), QVariant(true)}) {
        setStyle(style);
        EXPECT_FALSE(ZTUtilities::darkMenuTheme()) << style.toString().toStdString();
    }
    platform.userDefaults.values.clear();
    EXPECT_FALSE(ZTUtilities::darkMenuTheme()) << "taken away";
}

TEST_F(ZTUtilitiesAppearanceTest, systemsBeforeTheDarkMenusHaveNone) {
    setStyle(u"Dark"_s);
    platform.systemVersion.framework = mavericks;
    EXPECT_FALSE(ZTUtilities::darkMenuTheme());
    EXPECT_EQ(platform.appearance.listenerCount(), 0U) << "nothing to observe";
    platform.systemVersion.framework = yosemite;
    EXPECT_TRUE(ZTUtilities::darkMenuTheme());
}

TEST_F(ZTUtilitiesAppearanceTest, systemsWithDarkMenusAloneHaveNoDarkAppearance) {
    setStyle(u"Dark"_s);
    platform.systemVersion.framework = highSierra;
    EXPECT_TRUE(ZTUtilities::darkMenuTheme());
    EXPECT_FALSE(ZTUtilities::darkAppearance());
    platform.systemVersion.framework = mojave;
    EXPECT_TRUE(ZTUtilities::darkAppearance());
    platform.userDefaults.values.clear();
    EXPECT_FALSE(ZTUtilities::darkAppearance());
}

TEST_F(ZTUtilitiesAppearanceTest, changesAreObservedOnceBesideOthersThatDo) {
    int changes = 0;
    platform.appearance.setChangeListener(this, [&changes] { ++changes; });
    ZTUtilities::darkMenuTheme();
    ZTUtilities::darkMenuTheme();
    EXPECT_EQ(platform.appearance.listenerCount(), 2U);
    platform.appearance.setScheme(Appearance::Scheme::Dark);
    EXPECT_EQ(changes, 1);
}

TEST_F(ZTUtilitiesAppearanceTest, aDesktopWithoutAPreferenceIsNotedOnce) {
    EXPECT_FALSE(ZTUtilities::darkMenuTheme());
    EXPECT_FALSE(ZTUtilities::darkMenuTheme());
    EXPECT_EQ(platform.log.lines(),
              QStringList{u"The desktop has no preference for a light or a dark interface."_s});
}

TEST_F(ZTUtilitiesAppearanceTest, aDesktopThatWantsItLightIsNotNoted) {
    platform.appearance.setScheme(Appearance::Scheme::Light);
    EXPECT_FALSE(ZTUtilities::darkMenuTheme());
    setStyle(u"Dark"_s);
    platform.appearance.setScheme(std::nullopt);
    EXPECT_TRUE(ZTUtilities::darkMenuTheme()) << "a style that the user has set otherwise";
    EXPECT_TRUE(platform.log.lines().isEmpty());
}

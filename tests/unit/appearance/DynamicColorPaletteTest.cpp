// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/DynamicColorPalette.h"
#include "ZTStuff/CocoaExtensions/ColorContrast.h"

#include "ZTStuff/CocoaExtensions/FollowedAppearance.h"
#include "ZTStuff/CocoaExtensions/ViewExtensions.h"

#include "tests/unit/appearance/AppearanceFixture.h"

#include <QLabel>
#include <QWidget>

using namespace Qt::StringLiterals;
using ZTViewExtensions::LightAppearance;
using ZTViewExtensions::useLightAquaAppearance;

namespace {

const QColor light(1, 2, 3);
const QColor dark(201, 202, 203);

class DynamicColorPaletteTest : public AppearanceTest {
protected:
    QColor textOf(const QWidget &widget) const {
        return widget.palette().color(QPalette::Active, QPalette::WindowText);
    }

    const ZTDynamicColor color = ZTDynamicColor::lightColor(light, dark);
    QWidget window;
    QLabel label{&window};
};

} // namespace

TEST_F(DynamicColorPaletteTest, theRoleIsTheColorAtOnceAndInBothGroups) {
    const QColor disabled = label.palette().color(QPalette::Disabled, QPalette::WindowText);
    followDynamicColor(label, QPalette::WindowText, color);
    EXPECT_EQ(textOf(label), light);
    EXPECT_EQ(label.palette().color(QPalette::Inactive, QPalette::WindowText), light);
    EXPECT_EQ(label.palette().color(QPalette::Disabled, QPalette::WindowText), disabled);
}

TEST_F(DynamicColorPaletteTest, aChangeOfTheApplicationsPaletteIsFollowed) {
    followDynamicColor(label, QPalette::WindowText, color);
    setApplicationScheme(Scheme::Dark);
    EXPECT_EQ(textOf(label), dark);
    EXPECT_EQ(label.palette().color(QPalette::Window),
              paletteForScheme(Scheme::Dark).color(QPalette::Window))
        << "other roles are inherited as before";
    setApplicationScheme(Scheme::Light);
    EXPECT_EQ(textOf(label), light);
}

TEST_F(DynamicColorPaletteTest, aLightPartOfADarkWindowHasTheLightColor) {
    followDynamicColor(label, QPalette::WindowText, color);
    setApplicationScheme(Scheme::Dark);
    useLightAquaAppearance(window, LightAppearance::Forced);
    EXPECT_EQ(textOf(label), light) << "in a light superview";
    useLightAquaAppearance(window, LightAppearance::Inherited);
    EXPECT_EQ(textOf(label), dark);
    useLightAquaAppearance(label, LightAppearance::Forced);
    EXPECT_EQ(textOf(label), light) << "light itself";
    useLightAquaAppearance(label, LightAppearance::Inherited);
    EXPECT_EQ(textOf(label), dark) << "it goes on following";
}

TEST_F(DynamicColorPaletteTest, whatFollowsHasNoPartInWhatItFollows) {
    // A dark background in a light window must not be taken for a dark window.
    const auto night = ZTDynamicColor::lightColor(Qt::black, Qt::white);
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button})
        followDynamicColor(window, role, night);
    EXPECT_EQ(schemeOf(window), Scheme::Light);
    EXPECT_EQ(schemeOf(label), Scheme::Light) << "nor what is inherited";
    followDynamicColor(label, QPalette::Text, color);
    EXPECT_EQ(label.palette().color(QPalette::Text), light);
}

TEST_F(DynamicColorPaletteTest, aGlobalColorFollowsTheUsersSetting) {
    followDynamicColor(label, QPalette::WindowText,
                       ZTDynamicColor::lightColor(light, dark, GlobalAppearance::Used));
    setDesktopScheme(Scheme::Dark);
    EXPECT_EQ(textOf(label), dark);
    setDesktopScheme(Scheme::Light);
    EXPECT_EQ(textOf(label), light);
}

TEST_F(DynamicColorPaletteTest, aColorThatIsAskedForFollowsTheAccentColor) {
    followDynamicColor(label, QPalette::Highlight, ZTDynamicColor::menuItemHighlightColor);
    EXPECT_EQ(label.palette().color(QPalette::Highlight), QColor(60, 139, 246));
    platform.userDefaults.values.insert(u"AppleAccentColor"_s, 3);
    platform.appearance.setScheme(Scheme::Light); // which tells of a change
    EXPECT_EQ(label.palette().color(QPalette::Highlight), QColor(128, 198, 107));
}

TEST_F(DynamicColorPaletteTest, severalRolesAreFollowedAndTheLatestColorOfEachCounts) {
    followDynamicColor(label, QPalette::WindowText, ZTDynamicColor::redWarningTextColor());
    followDynamicColor(label, QPalette::WindowText, color);
    followDynamicColor(label, QPalette::Highlight, color);
    setApplicationScheme(Scheme::Dark);
    EXPECT_EQ(textOf(label), dark);
    EXPECT_EQ(label.palette().color(QPalette::Highlight), dark);
}

TEST_F(DynamicColorPaletteTest, whatIsNotFollowedAnyMoreStays) {
    followDynamicColor(label, QPalette::WindowText, color);
    followDynamicColor(label, QPalette::Highlight, color);
    stopFollowingDynamicColor(label, QPalette::WindowText);
    setApplicationScheme(Scheme::Dark);
    EXPECT_EQ(textOf(label), light);
    EXPECT_EQ(label.palette().color(QPalette::Highlight), dark);
    stopFollowingDynamicColor(label, QPalette::Highlight);
    stopFollowingDynamicColor(label, QPalette::Highlight);
    EXPECT_EQ(platform.appearance.listenerCount(), 0U) << "nobody is left who follows";
}

TEST_F(DynamicColorPaletteTest, aWidgetThatGoesStopsFollowing) {
    const auto before = platform.appearance.listenerCount();
    {
        QLabel other;
        followDynamicColor(other, QPalette::WindowText, color);
        EXPECT_EQ(platform.appearance.listenerCount(), before + 1);
        QLabel third;
        followDynamicColor(third, QPalette::WindowText, color);
        EXPECT_EQ(platform.appearance.listenerCount(), before + 1) << "one for all";
    }
    EXPECT_EQ(platform.appearance.listenerCount(), before);
    setDesktopScheme(Scheme::Dark);
}

TEST_F(DynamicColorPaletteTest, anApplicationFollowsItsUser) {
    followDynamicColor(label, QPalette::WindowText, color);
    {
        platform.appearance.setScheme(Scheme::Dark);
        const FollowedAppearance followed(platform.appearance);
        EXPECT_TRUE(isDarkPalette(QApplication::palette())) << "from the beginning";
        platform.appearance.setScheme(Scheme::Light);
        EXPECT_FALSE(isDarkPalette(QApplication::palette()));
        platform.appearance.setScheme(Scheme::Dark);
        QCoreApplication::processEvents();
        EXPECT_EQ(textOf(label), dark);
        platform.appearance.setScheme(std::nullopt);
        EXPECT_FALSE(isDarkPalette(QApplication::palette())) << "as the desktop has it";
        platform.appearance.setScheme(Scheme::Dark);
    }
    EXPECT_FALSE(isDarkPalette(QApplication::palette())) << "as it was";
    platform.appearance.setScheme(Scheme::Light);
    platform.appearance.setScheme(Scheme::Dark);
    EXPECT_FALSE(isDarkPalette(QApplication::palette())) << "not followed any more";
}

TEST_F(DynamicColorPaletteTest, anApplicationFollowsTheWishForContrast) {
    const FollowedAppearance followed(platform.appearance);
    const auto contrast = [] {
        const QPalette palette = QApplication::palette();
        return contrastRatio(palette.color(QPalette::WindowText), palette.color(QPalette::Window));
    };
    platform.appearance.setPrefersMoreContrast(true);
    EXPECT_GE(contrast(), 20.0);
    EXPECT_FALSE(isDarkPalette(QApplication::palette())) << "as the desktop has it";
    platform.appearance.setScheme(Scheme::Dark);
    EXPECT_GE(contrast(), 20.0);
    EXPECT_TRUE(isDarkPalette(QApplication::palette()));
    platform.appearance.setPrefersMoreContrast(false);
    EXPECT_LT(contrast(), 20.0);
}

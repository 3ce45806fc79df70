// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/AppearancePalette.h"

#include "ZTStuff/CocoaExtensions/ColorContrast.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/DrawingContext.h"

#include "tests/unit/appearance/AppearanceFixture.h"

namespace {

class AppearancePaletteTest : public AppearanceTest {};

constexpr zt::Appearance::Scheme bothSchemes[] = {zt::Appearance::Scheme::Light,
                                                  zt::Appearance::Scheme::Dark};

} // namespace

TEST_F(AppearancePaletteTest, contrastIsThatOfTheGuidelines) {
    EXPECT_NEAR(contrastRatio(Qt::black, Qt::white), 21, 1e-9);
    EXPECT_NEAR(contrastRatio(Qt::white, Qt::black), 21, 1e-9) << "either way round";
    EXPECT_NEAR(contrastRatio(Qt::red, Qt::red), 1, 1e-9);
    // A grey that is often named as the lightest that can be read on white.
    EXPECT_NEAR(contrastRatio(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.005);
}

TEST_F(AppearancePaletteTest, everyTextOfThePalettesCanBeRead) {
    const std::pair<QPalette::ColorRole, QPalette::ColorRole> texts[] = {
        {QPalette::WindowText, QPalette::Window},       {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},      {QPalette::ButtonText, QPalette::Button},
        {QPalette::ToolTipText, QPalette::ToolTipBase},
    };
    for (const Scheme scheme : bothSchemes) {
        const QPalette palette = paletteForScheme(scheme);
        for (const auto &[text, background] : texts) {
            EXPECT_GE(contrastRatio(palette.color(text), palette.color(background)), 7.0) << text;
            const double disabled = contrastRatio(palette.color(QPalette::Disabled, text),
                                                  palette.color(QPalette::Disabled, background));
            EXPECT_GE(disabled, 3.0) << text;
        }
        EXPECT_GE(contrastRatio(palette.color(QPalette::HighlightedText),
                                palette.color(QPalette::Highlight)),
                  4.5);
        EXPECT_GE(contrastRatio(palette.color(QPalette::Link), palette.color(QPalette::Base)), 4.5);
    }
}

TEST_F(AppearancePaletteTest, whoWantsContrastGetsIt) {
    const std::pair<QPalette::ColorRole, QPalette::ColorRole> texts[] = {
        {QPalette::WindowText, QPalette::Window},       {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},      {QPalette::ButtonText, QPalette::Button},
        {QPalette::ToolTipText, QPalette::ToolTipBase},
    };
    for (const Scheme scheme : bothSchemes) {
        const QPalette palette = contrastPaletteForScheme(scheme);
        EXPECT_EQ(isDarkPalette(palette), scheme == Scheme::Dark);
        const auto contrast = [&palette](auto text, auto background, auto group) {
            return contrastRatio(palette.color(group, text), palette.color(group, background));
        };
        for (const auto &[text, background] : texts) {
            EXPECT_GE(contrast(text, background, QPalette::Active), 13.0) << text;
            EXPECT_GE(contrast(text, background, QPalette::Disabled), 4.5) << text;
        }
        const std::pair<QPalette::ColorRole, QPalette::ColorRole> others[] = {
            {QPalette::HighlightedText, QPalette::Highlight},
            {QPalette::Link, QPalette::Base},
            {QPalette::LinkVisited, QPalette::Base},
        };
        for (const auto &[text, background] : others)
            EXPECT_GE(contrast(text, background, QPalette::Active), 7.0) << text;
    }
}

TEST_F(AppearancePaletteTest, theRedOfWarningsCanBeReadInWindowsAndFields) {
    for (const Scheme scheme : bothSchemes) {
        const QPalette palette = paletteForScheme(scheme);
        const DrawingContext context(scheme);
        const QColor red = ZTDynamicColor::redWarningTextColor();
        for (const auto role : {QPalette::Window, QPalette::Base, QPalette::AlternateBase})
            EXPECT_GE(contrastRatio(red, palette.color(role)), 4.5) << role;
    }
}

TEST_F(AppearancePaletteTest, theTextOnAnyMenuColorCanBeRead) {
    for (const auto *colors :
         {&ZTDynamicColor::menuHighlightColors(), &ZTDynamicColor::menuItemHighlightColors()}) {
        for (const auto &[name, color] : *colors) {
            const ZTDynamicColor text = textColorOn(color);
            EXPECT_GE(contrastRatio(text.aquaColor(), color.aquaColor()), 4.5)
                << name.toStdString();
            ASSERT_TRUE(text.darkAquaColor());
            EXPECT_GE(contrastRatio(*text.darkAquaColor(), *color.darkAquaColor()), 4.5)
                << name.toStdString();
            EXPECT_EQ(text.globalAppearance(), color.globalAppearance()) << "they change together";
        }
    }
}

TEST_F(AppearancePaletteTest, noBackgroundIsWithoutAReadableText) {
    for (int grey = 0; grey < 256; ++grey) {
        const QColor background(grey, grey, grey);
        EXPECT_GE(contrastRatio(textColorOn(background), background), 4.5) << grey;
    }
    EXPECT_EQ(textColorOn(QColor(41, 110, 242)), QColor(Qt::white)) << "where both can be read";
    EXPECT_EQ(textColorOn(ZTDynamicColor::lightColor(Qt::yellow, std::nullopt)).darkAquaColor(),
              std::nullopt);
}

TEST_F(AppearancePaletteTest, mostPairsOfColorsTellLightFromDark) {
    QPalette palette = paletteForScheme(Scheme::Light);
    EXPECT_FALSE(isDarkPalette(palette));
    palette.setColor(QPalette::Window, Qt::black);
    EXPECT_FALSE(isDarkPalette(palette)) << "one of three";
    palette.setColor(QPalette::Base, Qt::black);
    EXPECT_TRUE(isDarkPalette(palette)) << "two of three";
    EXPECT_FALSE(isDarkPalette(palette, {QPalette::Window, QPalette::Text})) << "only the buttons";
    EXPECT_TRUE(isDarkPalette(paletteForScheme(Scheme::Dark)));
}

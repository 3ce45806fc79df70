// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTDynamicColor.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/DrawingContext.h"

#include "tests/unit/appearance/AppearanceFixture.h"

#include <QImage>
#include <QListWidget>
#include <QPainter>
#include <QTextCharFormat>

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <thread>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

const QColor light(200, 100, 50);
const QColor dark(20, 40, 80, 128);

class ZTDynamicColorTest : public AppearanceTest {
protected:
    const ZTDynamicColor color = ZTDynamicColor::lightColor(light, dark);
    const ZTDynamicColor global = ZTDynamicColor::lightColor(light, dark, GlobalAppearance::Used);
};

} // namespace

TEST_F(ZTDynamicColorTest, withoutAContextTheApplicationsPaletteDecides) {
    EXPECT_EQ(color.effectiveColor(), light);
    setApplicationScheme(Scheme::Dark);
    EXPECT_EQ(color.effectiveColor(), dark) << "asked afresh";
    setDesktopScheme(Scheme::Light);
    EXPECT_EQ(color.effectiveColor(), dark) << "the user's setting has no part in it";
}

TEST_F(ZTDynamicColorTest, theDrawingContextComesBeforeTheApplication) {
    setApplicationScheme(Scheme::Dark);
    {
        const DrawingContext lightContext(paletteForScheme(Scheme::Light));
        EXPECT_EQ(color.effectiveColor(), light);
        {
            const DrawingContext darkContext(Scheme::Dark);
            EXPECT_EQ(color.effectiveColor(), dark) << "the latest counts";
        }
        EXPECT_EQ(color.effectiveColor(), light);
    }
    EXPECT_EQ(color.effectiveColor(), dark);
}

TEST_F(ZTDynamicColorTest, aContextHoldsOnItsOwnThreadAlone) {
    const DrawingContext context(Scheme::Dark);
    bool hasContext = true;
    std::thread([&hasContext] { hasContext = DrawingContext::current() != nullptr; }).join();
    EXPECT_FALSE(hasContext);
    EXPECT_EQ(DrawingContext::current(), &context);
}

TEST_F(ZTDynamicColorTest, theGlobalAppearanceIsTheUsersSettingWhateverIsDrawn) {
    const DrawingContext context(Scheme::Dark);
    EXPECT_EQ(global.effectiveColor(), light);
    setDesktopScheme(Scheme::Dark);
    const DrawingContext lightContext(Scheme::Light);
    EXPECT_EQ(global.effectiveColor(), dark);
}

TEST_F(ZTDynamicColorTest, theFlagIsSetInAChainAndOnThatColorAlone) {
    ZTDynamicColor other = color;
    EXPECT_EQ(&other.useGlobalAppearance(GlobalAppearance::Used), &other);
    EXPECT_EQ(other, global);
    EXPECT_EQ(ZTDynamicColor::lightColor(light, dark).useGlobalAppearance(GlobalAppearance::Used),
              global);
    EXPECT_EQ(color.globalAppearance(), GlobalAppearance::Unused) << "a copy is independent";
    EXPECT_NE(other, color);
    EXPECT_EQ(other.useGlobalAppearance(GlobalAppearance::Unused), color);
}

TEST_F(ZTDynamicColorTest, withoutADarkColorItIsAlwaysTheLightOne) {
    setDesktopScheme(Scheme::Dark);
    const DrawingContext context(Scheme::Dark);
    EXPECT_EQ(ZTDynamicColor::lightColor(light, std::nullopt).effectiveColor(), light);
    EXPECT_EQ(
        ZTDynamicColor::lightColor(light, std::nullopt, GlobalAppearance::Used).effectiveColor(),
        light);
}

TEST_F(ZTDynamicColorTest, systemsWithoutAppearancesHaveTheLightColor) {
    platform.systemVersion.framework = highSierra;
    setDesktopScheme(Scheme::Dark);
    const DrawingContext context(Scheme::Dark);
    EXPECT_EQ(color.effectiveColor(), light);
    EXPECT_EQ(global.effectiveColor(), light);
}

TEST_F(ZTDynamicColorTest, whateverTakesAColorABrushOrAPaletteRoleTakesIt) {
    const DrawingContext context(Scheme::Dark);
    QImage image(4, 4, QImage::Format_ARGB32);
    QPainter painter(&image);
    painter.setPen(color);
    painter.setBrush(color);
    EXPECT_EQ(painter.pen().color(), dark);
    EXPECT_EQ(painter.brush(), QBrush(dark));
    QPalette palette;
    palette.setColor(QPalette::Link, color);
    palette.setBrush(QPalette::Mid, color);
    EXPECT_EQ(palette.color(QPalette::Link), dark);
    EXPECT_EQ(palette.brush(QPalette::Mid), QBrush(dark));
    QTextCharFormat format;
    format.setForeground(color);
    EXPECT_EQ(format.foreground().color(), dark);
    EXPECT_EQ(QPen(color).color(), dark);
}

TEST_F(ZTDynamicColorTest, aVariantOfItResolvesWhenItIsRead) {
    QListWidget list;
    auto *item = new QListWidgetItem(u"warning"_s, &list);
    item->setData(Qt::ForegroundRole, color);
    EXPECT_EQ(item->foreground().color(), light);
    setApplicationScheme(Scheme::Dark);
    EXPECT_EQ(item->foreground().color(), dark) << "as an item view asks for it";
    EXPECT_EQ(item->data(Qt::ForegroundRole).value<QColor>(), dark);
}

namespace {

// Every component of a colour, forwarded against what the colour itself answers.
void expectForwarded(const ZTDynamicColor &color, const QColor &expected, const char *which) {
    SCOPED_TRACE(which);
    EXPECT_EQ(color.colorSpace(), expected.spec());
    EXPECT_EQ(color.redComponent(), expected.redF());
    EXPECT_EQ(color.greenComponent(), expected.greenF());
    EXPECT_EQ(color.blueComponent(), expected.blueF());
    EXPECT_EQ(color.alphaComponent(), expected.alphaF());
    EXPECT_EQ(color.hueComponent(), expected.hsvHueF());
    EXPECT_EQ(color.saturationComponent(), expected.hsvSaturationF());
    EXPECT_EQ(color.brightnessComponent(), expected.valueF());
    EXPECT_EQ(color.cyanComponent(), expected.cyanF());
    EXPECT_EQ(color.magentaComponent(), expected.magentaF());
    EXPECT_EQ(color.yellowComponent(), expected.yellowF());
    EXPECT_EQ(color.blackComponent(), expected.blackF());
    EXPECT_NEAR(color.whiteComponent(), qGray(expected.rgb()) / 255.0, 0.005);
    EXPECT_EQ(color.CGColor(), expected.rgba64());
    float a = -2;
    float b = -2;
    float c = -2;
    float d = -2;
    float e = -2;
    color.getRed(&a, &b, &c, &d);
    EXPECT_THAT((std::array{a, b, c, d}), ElementsAre(expected.redF(), expected.greenF(),
                                                      expected.blueF(), expected.alphaF()));
    color.getHue(&a, &b, &c, &d);
    EXPECT_THAT((std::array{a, b, c, d}), ElementsAre(expected.hsvHueF(), expected.hsvSaturationF(),
                                                      expected.valueF(), expected.alphaF()));
    color.getCyan(&a, &b, &c, &d, &e);
    EXPECT_THAT((std::array{a, b, c, d, e}),
                ElementsAre(expected.cyanF(), expected.magentaF(), expected.yellowF(),
                            expected.blackF(), expected.alphaF()));
    color.getWhite(&a, &b);
    EXPECT_THAT((std::array{a, b}), ElementsAre(color.whiteComponent(), expected.alphaF()));
    // Nothing is written where nothing is wanted.
    color.getRed(nullptr, nullptr, nullptr, nullptr);
    color.getHue(nullptr, nullptr, nullptr, nullptr);
    color.getCyan(nullptr, nullptr, nullptr, nullptr, nullptr);
    color.getWhite(nullptr, nullptr);
}

struct SpaceRow {
    QString name;
    QColor::Spec space;
    int components;
};

const SpaceRow spaces[] = {
    {u"Rgb"_s, QColor::Rgb, 4},
    {u"Hsv"_s, QColor::Hsv, 4},
    {u"Hsl"_s, QColor::Hsl, 4},
    {u"Cmyk"_s, QColor::Cmyk, 5},
    {u"ExtendedRgb"_s, QColor::ExtendedRgb, 4},
};

} // namespace

TEST_F(ZTDynamicColorTest, theComponentsAreThoseOfTheColorThatCounts) {
    expectForwarded(color, light, "light");
    const DrawingContext context(Scheme::Dark);
    expectForwarded(color, dark, "dark");
}

TEST_F(ZTDynamicColorTest, aColorIsConvertedBetweenSpacesAndKnowsItsOwn) {
    for (const SpaceRow &row : spaces) {
        const std::string name = row.name.toStdString();
        EXPECT_EQ(color.colorUsingColorSpace(row.space), light.convertTo(row.space)) << name;
        EXPECT_EQ(color.colorUsingColorSpaceName(row.name), light.convertTo(row.space)) << name;
        const auto own = ZTDynamicColor::lightColor(light.convertTo(row.space), std::nullopt);
        EXPECT_EQ(own.colorSpace(), row.space) << name;
        EXPECT_EQ(own.colorSpaceName(), row.name) << name;
        EXPECT_EQ(own.numberOfComponents(), row.components) << name;
        ASSERT_EQ(own.getComponents().size(), row.components) << name;
        EXPECT_EQ(own.getComponents().constLast(), 1.0F) << name << ": the opacity is the last";
    }
    EXPECT_THAT(color.getComponents(), ElementsAre(light.redF(), light.greenF(), light.blueF(), 1));
    EXPECT_FALSE(color.colorUsingColorSpaceName(u"rgb"_s).isValid());
    EXPECT_FALSE(color.colorUsingColorSpaceName(u""_s).isValid());
    const auto none = ZTDynamicColor::lightColor(QColor(), std::nullopt);
    EXPECT_EQ(none.colorSpaceName(), u""_s);
    EXPECT_EQ(none.numberOfComponents(), 0);
}

TEST_F(ZTDynamicColorTest, colorsOfTheCatalogueHaveNames) {
    const auto tomato = ZTDynamicColor::lightColor(QColor(0xff, 0x63, 0x47), dark);
    EXPECT_EQ(tomato.colorNameComponent(), u"tomato"_s);
    EXPECT_EQ(tomato.catalogNameComponent(), u"SVG"_s);
    EXPECT_EQ(tomato.localizedColorNameComponent(), u"tomato"_s) << "there is no translation";
    EXPECT_EQ(tomato.localizedCatalogNameComponent(), u"SVG"_s);
    const DrawingContext context(Scheme::Dark);
    EXPECT_EQ(tomato.colorNameComponent(), std::nullopt);
    EXPECT_EQ(tomato.catalogNameComponent(), std::nullopt);
    EXPECT_EQ(tomato.localizedColorNameComponent(), std::nullopt);
    EXPECT_EQ(tomato.localizedCatalogNameComponent(), std::nullopt);
}

TEST_F(ZTDynamicColorTest, aTranslucentOrInvalidColorHasNoName) {
    const auto translucent = ZTDynamicColor::lightColor(QColor(0xff, 0x63, 0x47, 200), dark);
    EXPECT_EQ(translucent.colorNameComponent(), std::nullopt);
    EXPECT_EQ(ZTDynamicColor::lightColor(QColor(), dark).colorNameComponent(), std::nullopt);
}

TEST_F(ZTDynamicColorTest, thePainterOfTheContextIsGivenTheColor) {
    QImage image(8, 8, QImage::Format_ARGB32);
    QPainter painter(&image);
    const QPen wide(Qt::green, 3, Qt::DashLine);
    painter.setPen(wide);
    const DrawingContext context(Scheme::Light, &painter);
    color.setFill();
    EXPECT_EQ(painter.brush(), QBrush(light));
    EXPECT_EQ(painter.pen(), wide);
    color.setStroke();
    EXPECT_EQ(painter.pen().color(), light);
    EXPECT_EQ(painter.pen().width(), 3);
    EXPECT_EQ(painter.pen().style(), Qt::DashLine);
    const DrawingContext darkContext(Scheme::Dark, &painter);
    color.set();
    EXPECT_EQ(painter.pen().color(), dark);
    EXPECT_EQ(painter.brush(), QBrush(dark));
    const DrawingContext withoutPainter(Scheme::Light);
    color.set();
    EXPECT_EQ(painter.brush(), QBrush(dark)) << "it belongs to the context below";
}

TEST_F(ZTDynamicColorTest, withoutAContextThereIsNothingToSet) {
    QImage image(8, 8, QImage::Format_ARGB32);
    QPainter painter(&image);
    const QColor before = painter.pen().color();
    color.set();
    EXPECT_EQ(painter.pen().color(), before);
    EXPECT_EQ(painter.brush().style(), Qt::NoBrush);
}

TEST_F(ZTDynamicColorTest, highlightAndShadowLeadToWhiteAndBlack) {
    EXPECT_EQ(color.highlightWithLevel(0), light);
    EXPECT_EQ(color.highlightWithLevel(1).rgba(), qRgb(255, 255, 255));
    EXPECT_EQ(color.highlightWithLevel(0.5).rgba(), qRgb(228, 178, 153));
    EXPECT_EQ(color.shadowWithLevel(0), light);
    EXPECT_EQ(color.shadowWithLevel(1).rgba(), qRgb(0, 0, 0));
    EXPECT_EQ(color.shadowWithLevel(0.5).rgba(), qRgb(100, 50, 25));
    const DrawingContext context(Scheme::Dark);
    EXPECT_EQ(color.highlightWithLevel(1).rgba(), qRgba(255, 255, 255, 128));
    EXPECT_EQ(color.shadowWithLevel(1).rgba(), qRgba(0, 0, 0, 128)) << "as opaque as before";
}

TEST_F(ZTDynamicColorTest, levelsBeyondTheEndsCountAsTheEnds) {
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(color.highlightWithLevel(7), color.highlightWithLevel(1));
    EXPECT_EQ(color.shadowWithLevel(-1), light);
    EXPECT_EQ(color.blendedColorWithFraction(infinity, dark), dark);
    EXPECT_EQ(color.colorWithAlphaComponent(-infinity).alpha(), 0);
    EXPECT_EQ(color.colorWithAlphaComponent(1.5).alpha(), 255);
    EXPECT_EQ(color.colorWithAlphaComponent(std::nan("")).alpha(), 0);
}

TEST_F(ZTDynamicColorTest, aBlendMixesOpacityToo) {
    EXPECT_EQ(color.blendedColorWithFraction(0, dark), light);
    EXPECT_EQ(color.blendedColorWithFraction(1, dark), dark);
    EXPECT_EQ(color.blendedColorWithFraction(0.25, QColor(0, 0, 250, 0)).rgba(),
              qRgba(150, 75, 100, 191));
    EXPECT_FALSE(color.blendedColorWithFraction(0.5, QColor()).isValid());
}

TEST_F(ZTDynamicColorTest, whatIsMadeOfItStaysAsItWas) {
    setApplicationScheme(Scheme::Dark);
    const QColor faint = color.colorWithAlphaComponent(0.25);
    setApplicationScheme(Scheme::Light);
    EXPECT_EQ(faint.rgb(), dark.rgb()) << "based on the dark colour";
    EXPECT_EQ(faint.alpha(), 64);
    EXPECT_EQ(color.effectiveColor(), light);
}

TEST_F(ZTDynamicColorTest, systemEffectsShowWhatHappensToAControl) {
    using Effect = ZTDynamicColor::SystemEffect;
    const int own = light.lightness();
    EXPECT_EQ(color.colorWithSystemEffect(Effect::None), light);
    const QColor pressed = color.colorWithSystemEffect(Effect::Pressed);
    EXPECT_LT(pressed.lightness(), own);
    EXPECT_LT(color.colorWithSystemEffect(Effect::DeepPressed).lightness(), pressed.lightness());
    EXPECT_GT(color.colorWithSystemEffect(Effect::Rollover).lightness(), own);
    EXPECT_EQ(color.colorWithSystemEffect(Effect::Disabled).alpha(), 128);
    const DrawingContext context(Scheme::Dark);
    EXPECT_EQ(color.colorWithSystemEffect(Effect::Disabled).alpha(), 64) << "half of what it was";
}

TEST_F(ZTDynamicColorTest, theSameColorPaintsDifferentlyInTwoContexts) {
    QImage image(2, 1, QImage::Format_RGB32);
    QPainter painter(&image);
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
        const DrawingContext context(scheme, &painter);
        painter.fillRect(scheme == Scheme::Light ? 0 : 1, 0, 1, 1, QBrush(Qt::black));
        ZTDynamicColor::redWarningTextColor().setFill();
        painter.fillRect(scheme == Scheme::Light ? 0 : 1, 0, 1, 1, painter.brush());
    }
    EXPECT_EQ(image.pixel(0, 0), qRgb(191, 0, 0));
    EXPECT_EQ(image.pixel(1, 0), qRgb(255, 51, 0));
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTDynamicColor.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/DrawingContext.h"

#include "tests/unit/appearance/AppearanceFixture.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

class ZTDynamicColorAccentTest : public AppearanceTest {
protected:
    QString nameFor(const QVariant &setting) {
        platform.userDefaults.values.insert(u"AppleAccentColor"_s, setting);
        return ZTDynamicColor::accentColorName();
    }

    static QString noteOf(const char *number) {
        return u"*** unknown accent color index: "_s + QString::fromLatin1(number);
    }
};

} // namespace

TEST_F(ZTDynamicColorAccentTest, theNamesAreThePlatformsOwn) {
    const QStringList names = {ZTAccentColorNameBlue,   ZTAccentColorNamePurple,
                               ZTAccentColorNamePink,   ZTAccentColorNameRed,
                               ZTAccentColorNameOrange, ZTAccentColorNameYellow,
                               ZTAccentColorNameGreen,  ZTAccentColorNameGraphite};
    EXPECT_EQ(names.join(u' '), u"Blue Purple Pink Red Orange Yellow Green Graphite"_s);
}

TEST_F(ZTDynamicColorAccentTest, eachNumberHasItsName) {
    const std::pair<int, QString> rows[] = {
        {-1, ZTAccentColorNameGraphite}, {0, ZTAccentColorNameRed},   {1, ZTAccentColorNameOrange},
        {2, ZTAccentColorNameYellow},    {3, ZTAccentColorNameGreen}, {5, ZTAccentColorNamePurple},
        {6, ZTAccentColorNamePink},
    };
    for (const auto &[number, name] : rows) {
        EXPECT_EQ(nameFor(number), name) << number;
        EXPECT_EQ(nameFor(qlonglong(number)), name) << number;
        EXPECT_EQ(nameFor(double(number)), name) << number;
    }
    EXPECT_EQ(nameFor(2.9), ZTAccentColorNameYellow) << "its integer value";
    EXPECT_EQ(nameFor(true), ZTAccentColorNameOrange) << "a truth is a number";
    EXPECT_TRUE(platform.log.lines().isEmpty());
}

TEST_F(ZTDynamicColorAccentTest, withoutANumberItIsBlueAndNothingIsNoted) {
    EXPECT_EQ(ZTDynamicColor::accentColorName(), ZTAccentColorNameBlue) << "no setting";
    for (const QVariant &setting :
         {QVariant(u"3"_s), QVariant(u"Red"_s), QVariant(QVariantList{3}), QVariant(std::nan(""))})
        EXPECT_EQ(nameFor(setting), ZTAccentColorNameBlue) << setting.typeName();
    EXPECT_TRUE(platform.log.lines().isEmpty());
}

TEST_F(ZTDynamicColorAccentTest, anUnknownNumberIsBlueAndNotedOnce) {
    EXPECT_EQ(nameFor(4), ZTAccentColorNameBlue);
    EXPECT_EQ(nameFor(4), ZTAccentColorNameBlue);
    EXPECT_EQ(platform.log.lines(), QStringList{noteOf("4")});
}

TEST_F(ZTDynamicColorAccentTest, anUnknownNumberIsNotedAgainAfterAnotherOneOnly) {
    for (const int number : {4, 3, 4, -2, -2, 4, 7})
        nameFor(number);
    EXPECT_EQ(platform.log.lines(),
              (QStringList{noteOf("4"), noteOf("-2"), noteOf("4"), noteOf("7")}));
}

TEST_F(ZTDynamicColorAccentTest, numbersWithoutMeasureAreUnknownToo) {
    EXPECT_EQ(nameFor(1e300), ZTAccentColorNameBlue);
    EXPECT_EQ(nameFor(-std::numeric_limits<double>::infinity()), ZTAccentColorNameBlue);
    EXPECT_EQ(platform.log.lines(),
              (QStringList{noteOf("9223372036854775807"), noteOf("-9223372036854775808")}));
}

TEST_F(ZTDynamicColorAccentTest, theRedOfWarningsIsMadeOnce) {
    const ZTDynamicColor &red = ZTDynamicColor::redWarningTextColor();
    EXPECT_EQ(&red, &ZTDynamicColor::redWarningTextColor());
    EXPECT_EQ(red.aquaColor(), QColor::fromRgbF(0.75F, 0, 0));
    EXPECT_EQ(red.darkAquaColor(), QColor::fromRgbF(1, 0.2F, 0));
    EXPECT_EQ(red.globalAppearance(), GlobalAppearance::Unused);
}

namespace {

struct MenuRow {
    QString name;
    std::array<double, 3> light;
    std::array<double, 3> dark;
};

const MenuRow menus[] = {
    {u"Blue"_s, {0.16, 0.43, 0.95}, {0.04, 0.29, 0.76}},
    {u"Purple"_s, {0.57, 0.26, 0.58}, {0.44, 0.18, 0.45}},
    {u"Pink"_s, {0.95, 0.31, 0.61}, {0.73, 0.16, 0.43}},
    {u"Red"_s, {0.85, 0.25, 0.29}, {0.76, 0.18, 0.22}},
    {u"Orange"_s, {0.95, 0.51, 0.22}, {0.73, 0.34, 0.08}},
    {u"Yellow"_s, {0.97, 0.71, 0.25}, {0.76, 0.53, 0.11}},
    {u"Green"_s, {0.42, 0.73, 0.32}, {0.26, 0.54, 0.17}},
    {u"Graphite"_s, {0.59, 0.59, 0.59}, {0.34, 0.34, 0.34}},
};

const MenuRow menuItems[] = {
    {u"Blue"_s, {60, 139, 246}, {12, 111, 225}},
    {u"Purple"_s, {169, 99, 170}, {135, 59, 135}},
    {u"Pink"_s, {248, 114, 176}, {218, 74, 142}},
    {u"Red"_s, {229, 95, 100}, {199, 54, 60}},
    {u"Orange"_s, {248, 154, 79}, {218, 117, 31}},
    {u"Yellow"_s, {252, 198, 90}, {222, 164, 42}},
    {u"Green"_s, {128, 198, 107}, {90, 165, 66}},
    {u"Graphite"_s, {162, 162, 162}, {124, 128, 131}},
};

void expectComponents(const QColor &color, const std::array<double, 3> &expected, double whole) {
    constexpr double rounding = 1.0 / 65535;
    EXPECT_NEAR(static_cast<double>(color.redF()), expected[0] / whole, rounding);
    EXPECT_NEAR(static_cast<double>(color.greenF()), expected[1] / whole, rounding);
    EXPECT_NEAR(static_cast<double>(color.blueF()), expected[2] / whole, rounding);
    EXPECT_EQ(color.alpha(), 255);
}

void expectTable(const ZTDynamicColor::ColorsByName &colors, const MenuRow (&rows)[8], double whole,
                 ZTDynamicColor::GlobalAppearance global) {
    EXPECT_EQ(colors.size(), 8U);
    for (const MenuRow &row : rows) {
        SCOPED_TRACE(row.name.toStdString());
        const auto found = colors.find(row.name);
        ASSERT_NE(found, colors.end());
        expectComponents(found->second.aquaColor(), row.light, whole);
        expectComponents(found->second.darkAquaColor().value_or(QColor()), row.dark, whole);
        EXPECT_EQ(found->second.globalAppearance(), global);
    }
}

} // namespace

TEST_F(ZTDynamicColorAccentTest, theTablesOfMenuColorsAreComplete) {
    expectTable(ZTDynamicColor::menuHighlightColors(), menus, 1, GlobalAppearance::Used);
    expectTable(ZTDynamicColor::menuItemHighlightColors(), menuItems, 255,
                GlobalAppearance::Unused);
}

TEST_F(ZTDynamicColorAccentTest, menuColorsFollowTheAccentColor) {
    for (const auto &[number, name] : {std::pair(3, u"Green"_s), std::pair(-1, u"Graphite"_s)}) {
        nameFor(number);
        EXPECT_EQ(ZTDynamicColor::menuHighlightColor(),
                  ZTDynamicColor::menuHighlightColors().at(name));
        EXPECT_EQ(ZTDynamicColor::menuItemHighlightColor(),
                  ZTDynamicColor::menuItemHighlightColors().at(name));
    }
}

TEST_F(ZTDynamicColorAccentTest, aMenuFollowsTheUserAndItsItemsWhatTheyAreDrawnIn) {
    setDesktopScheme(Scheme::Dark);
    const DrawingContext context(Scheme::Light);
    expectComponents(ZTDynamicColor::menuHighlightColor(), menus[0].dark, 1);
    expectComponents(ZTDynamicColor::menuItemHighlightColor(), menuItems[0].light, 255);
}

TEST_F(ZTDynamicColorAccentTest, systemsWithoutAppearancesHaveThePalettesHighlight) {
    platform.systemVersion.framework = highSierra;
    const QColor highlight = QApplication::palette().color(QPalette::Highlight);
    EXPECT_EQ(ZTDynamicColor::menuHighlightColor().effectiveColor(), highlight);
    EXPECT_EQ(ZTDynamicColor::menuItemHighlightColor().effectiveColor(), highlight);
    nameFor(4);
    EXPECT_TRUE(platform.log.lines().size() == 1) << "by this very question";
    ZTDynamicColor::menuHighlightColor();
    EXPECT_EQ(platform.log.lines().size(), 1) << "the accent colour is not asked for";
}

TEST_F(ZTDynamicColorAccentTest, anAccentWithoutAnEntryIsTheSystemsAtFourFifths) {
    const QColor highlight = QApplication::palette().color(QPalette::Highlight);
    const auto &colors = ZTDynamicColor::menuHighlightColors();
    const QColor own = ZTDynamicColor::colorForAccent(colors, u"Teal"_s);
    EXPECT_EQ(own.rgb(), highlight.rgb());
    EXPECT_EQ(own.alpha(), 204);
    platform.appearance.accent = {0.2, 0.6, 0.4};
    EXPECT_EQ(QColor(ZTDynamicColor::colorForAccent(colors, u"Teal"_s)).rgba(),
              qRgba(51, 153, 102, 204));
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The ready-made colours, and those that go with the user's accent colour.

#include "ZTStuff/ZTClasses/ZTDynamicColor.h"

#include "Platform/Appearance.h"
#include "Platform/Platform.h"
#include "Platform/UserDefaults.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"
#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include <QGuiApplication>
#include <QPalette>

#include <cmath>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;
using GlobalAppearance = ZTDynamicColor::GlobalAppearance;

namespace {

// The last unknown number that was noted in the log.
long unknownColorIndex = 0;

struct ColorRow {
    QString accentName;
    QColor light;
    QColor dark;
};

ZTDynamicColor::ColorsByName colorsByName(std::initializer_list<ColorRow> rows,
                                          GlobalAppearance global) {
    ZTDynamicColor::ColorsByName colors;
    for (const ColorRow &row : rows)
        colors.emplace(row.accentName, ZTDynamicColor::lightColor(row.light, row.dark, global));
    return colors;
}

QColor fractions(float red, float green, float blue) {
    return QColor::fromRgbF(red, green, blue);
}

QColor of255(int red, int green, int blue) {
    return QColor::fromRgb(red, green, blue);
}

std::optional<long> integerOf(const QVariant &value) {
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::LongLong:
        return static_cast<long>(value.toLongLong());
    case QMetaType::Double: {
        const double number = value.toDouble();
        if (std::isnan(number))
            return std::nullopt;
        // The largest integer cannot be told from the next number after it here.
        constexpr double limit = -static_cast<double>(std::numeric_limits<long>::min());
        if (number >= limit)
            return std::numeric_limits<long>::max();
        return number <= -limit ? std::numeric_limits<long>::min() : static_cast<long>(number);
    }
    default:
        return std::nullopt; // a text is no number, also when it reads like one
    }
}

std::optional<QString> accentNameOf(long index) {
    switch (index) {
    case -1:
        return ZTAccentColorNameGraphite;
    case 0:
        return ZTAccentColorNameRed;
    case 1:
        return ZTAccentColorNameOrange;
    case 2:
        return ZTAccentColorNameYellow;
    case 3:
        return ZTAccentColorNameGreen;
    case 5:
        return ZTAccentColorNamePurple;
    case 6:
        return ZTAccentColorNamePink;
    default:
        return std::nullopt; // blue has no number: it is what holds without one
    }
}

QColor paletteHighlight() {
    return QGuiApplication::palette().color(QPalette::Active, QPalette::Highlight);
}

QColor controlAccentColor() {
    const std::optional<zt::AccentColor> accent = zt::currentPlatform().appearance.accentColor();
    return accent ? QColor::fromRgbF(static_cast<float>(accent->red),
                                     static_cast<float>(accent->green),
                                     static_cast<float>(accent->blue))
                  : paletteHighlight();
}

ZTDynamicColor menuColor(const ZTDynamicColor::ColorsByName &colors) {
    return ZTUtilities::mojaveOrNewer()
               ? ZTDynamicColor::colorForAccent(colors, ZTDynamicColor::accentColorName())
               : ZTDynamicColor::lightColor(paletteHighlight(), std::nullopt);
}

} // namespace

const ZTDynamicColor &ZTDynamicColor::redWarningTextColor() {
    static const ZTDynamicColor color =
        lightColor(fractions(0.75F, 0.0F, 0.0F), fractions(1.0F, 0.2F, 0.0F));
    return color;
}

QString ZTDynamicColor::accentColorName() {
    const std::optional<QVariant> value =
        zt::currentPlatform().userDefaults.objectForKey(u"AppleAccentColor"_s);
    const std::optional<long> index = value ? integerOf(*value) : std::nullopt;
    if (!index)
        return ZTAccentColorNameBlue;
    if (const std::optional<QString> name = accentNameOf(*index))
        return *name;
    if (std::exchange(unknownColorIndex, *index) != *index)
        ZTLog("*** unknown accent color index: %ld", *index);
    return ZTAccentColorNameBlue;
}

ZTDynamicColor ZTDynamicColor::menuHighlightColor() {
    return menuColor(menuHighlightColors());
}

ZTDynamicColor ZTDynamicColor::menuItemHighlightColor() {
    return menuColor(menuItemHighlightColors());
}

const ZTDynamicColor::ColorsByName &ZTDynamicColor::menuHighlightColors() {
    static const ColorsByName colors = colorsByName(
        {
            {ZTAccentColorNameBlue, fractions(0.16F, 0.43F, 0.95F), fractions(0.04F, 0.29F, 0.76F)},
            {ZTAccentColorNamePurple, fractions(0.57F, 0.26F, 0.58F),
             fractions(0.44F, 0.18F, 0.45F)},
            {ZTAccentColorNamePink, fractions(0.95F, 0.31F, 0.61F), fractions(0.73F, 0.16F, 0.43F)},
            {ZTAccentColorNameRed, fractions(0.85F, 0.25F, 0.29F), fractions(0.76F, 0.18F, 0.22F)},
            {ZTAccentColorNameOrange, fractions(0.95F, 0.51F, 0.22F),
             fractions(0.73F, 0.34F, 0.08F)},
            {ZTAccentColorNameYellow, fractions(0.97F, 0.71F, 0.25F),
             fractions(0.76F, 0.53F, 0.11F)},
            {ZTAccentColorNameGreen, fractions(0.42F, 0.73F, 0.32F),
             fractions(0.26F, 0.54F, 0.17F)},
            {ZTAccentColorNameGraphite, fractions(0.59F, 0.59F, 0.59F),
             fractions(0.34F, 0.34F, 0.34F)},
        },
        GlobalAppearance::Used);
    return colors;
}

const ZTDynamicColor::ColorsByName &ZTDynamicColor::menuItemHighlightColors() {
    static const ColorsByName colors = colorsByName(
        {
            {ZTAccentColorNameBlue, of255(60, 139, 246), of255(12, 111, 225)},
            {ZTAccentColorNamePurple, of255(169, 99, 170), of255(135, 59, 135)},
            {ZTAccentColorNamePink, of255(248, 114, 176), of255(218, 74, 142)},
            {ZTAccentColorNameRed, of255(229, 95, 100), of255(199, 54, 60)},
            {ZTAccentColorNameOrange, of255(248, 154, 79), of255(218, 117, 31)},
            {ZTAccentColorNameYellow, of255(252, 198, 90), of255(222, 164, 42)},
            {ZTAccentColorNameGreen, of255(128, 198, 107), of255(90, 165, 66)},
            {ZTAccentColorNameGraphite, of255(162, 162, 162), of255(124, 128, 131)},
        },
        GlobalAppearance::Unused);
    return colors;
}

ZTDynamicColor ZTDynamicColor::colorForAccent(const ColorsByName &colors,
                                              const QString &accentName) {
    constexpr float opacity = 0.8F;
    const auto found = colors.find(accentName);
    if (found != colors.end())
        return found->second;
    QColor accent = controlAccentColor();
    accent.setAlphaF(opacity);
    return lightColor(accent, std::nullopt);
}

void ZTDynamicColor::platformChanged() {
    unknownColorIndex = 0;
}

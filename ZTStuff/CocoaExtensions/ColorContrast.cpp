// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/ColorContrast.h"

#include "ZTStuff/ZTClasses/ZTDynamicColor.h"

#include <algorithm>
#include <cmath>

namespace {

// The guidelines' formulas; the constants are theirs.
double linear(float component) {
    const auto value = static_cast<double>(component);
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

} // namespace

double contrastRatio(const QColor &one, const QColor &other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor textColorOn(const QColor &background) {
    constexpr double enough = 4.5;
    return contrastRatio(Qt::white, background) >= enough ? Qt::white : Qt::black;
}

ZTDynamicColor textColorOn(const ZTDynamicColor &background) {
    std::optional<QColor> dark;
    if (background.darkAquaColor())
        dark = textColorOn(*background.darkAquaColor());
    return ZTDynamicColor::lightColor(textColorOn(background.aquaColor()), dark,
                                      background.globalAppearance());
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/AccentColorIndex.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace zt {

namespace {

// Greys that desktops offer as accent colours are not without any colour at all.
constexpr double greatestSaturationOfGrey = 0.3;

// In degrees on the colour circle.
constexpr std::pair<AccentColorIndex, double> hues[] = {
    {AccentColorIndex::Red, 358},   {AccentColorIndex::Orange, 27}, {AccentColorIndex::Yellow, 44},
    {AccentColorIndex::Green, 106}, {AccentColorIndex::Blue, 215},  {AccentColorIndex::Purple, 290},
    {AccentColorIndex::Pink, 332},
};

double hueOf(const AccentColor &color, double greatest, double range) {
    constexpr double sector = 60;
    if (color.red == greatest)
        return sector * ((color.green - color.blue) / range);
    if (color.green == greatest)
        return sector * (2 + (color.blue - color.red) / range);
    return sector * (4 + (color.red - color.green) / range);
}

// Around the circle, whichever way is shorter.
double distance(double hue, double otherHue) {
    return std::abs(std::remainder(hue - otherHue, 360.0));
}

} // namespace

AccentColorIndex accentColorIndexOf(const AccentColor &color) {
    const auto [least, greatest] = std::minmax({color.red, color.green, color.blue});
    if (greatest - least <= greatestSaturationOfGrey * greatest)
        return AccentColorIndex::Graphite;
    const double hue = hueOf(color, greatest, greatest - least);
    return std::min_element(std::begin(hues), std::end(hues),
                            [hue](const auto &a, const auto &b) {
                                return distance(hue, a.second) < distance(hue, b.second);
                            })
        ->first;
}

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/AppearancePalette.h"

#include <array>
#include <utility>

namespace {

using RoleColor = std::pair<QPalette::ColorRole, QRgb>;

constexpr std::array lightColors{
    RoleColor{QPalette::Window, 0xfffafafb},
    RoleColor{QPalette::WindowText, 0xff1e1e20},
    RoleColor{QPalette::Base, 0xffffffff},
    RoleColor{QPalette::AlternateBase, 0xfff3f3f5},
    RoleColor{QPalette::Text, 0xff1e1e20},
    RoleColor{QPalette::Button, 0xffebebed},
    RoleColor{QPalette::ButtonText, 0xff1e1e20},
    RoleColor{QPalette::BrightText, 0xffffffff},
    RoleColor{QPalette::Highlight, 0xff1a5fb4},
    RoleColor{QPalette::HighlightedText, 0xffffffff},
    RoleColor{QPalette::Link, 0xff1a5fb4},
    RoleColor{QPalette::LinkVisited, 0xff613583},
    RoleColor{QPalette::ToolTipBase, 0xff2d2d30},
    RoleColor{QPalette::ToolTipText, 0xffffffff},
    RoleColor{QPalette::PlaceholderText, 0xff6b6b70},
    RoleColor{QPalette::Light, 0xffffffff},
    RoleColor{QPalette::Midlight, 0xfff3f3f5},
    RoleColor{QPalette::Mid, 0xffc4c4c8},
    RoleColor{QPalette::Dark, 0xff9a9aa0},
    RoleColor{QPalette::Shadow, 0xff5e5e64},
};

constexpr std::array darkColors{
    RoleColor{QPalette::Window, 0xff1e1e20},
    RoleColor{QPalette::WindowText, 0xffffffff},
    RoleColor{QPalette::Base, 0xff18181a},
    RoleColor{QPalette::AlternateBase, 0xff1d1d1f},
    RoleColor{QPalette::Text, 0xffffffff},
    RoleColor{QPalette::Button, 0xff3a3a3d},
    RoleColor{QPalette::ButtonText, 0xffffffff},
    RoleColor{QPalette::BrightText, 0xffffffff},
    RoleColor{QPalette::Highlight, 0xff1c71d8},
    RoleColor{QPalette::HighlightedText, 0xffffffff},
    RoleColor{QPalette::Link, 0xff78aeed},
    RoleColor{QPalette::LinkVisited, 0xffc9a0e0},
    RoleColor{QPalette::ToolTipBase, 0xff3a3a3d},
    RoleColor{QPalette::ToolTipText, 0xffffffff},
    RoleColor{QPalette::PlaceholderText, 0xffa0a0a6},
    RoleColor{QPalette::Light, 0xff56565b},
    RoleColor{QPalette::Midlight, 0xff454549},
    RoleColor{QPalette::Mid, 0xff303033},
    RoleColor{QPalette::Dark, 0xff19191b},
    RoleColor{QPalette::Shadow, 0xff000000},
};

// Instead of some of the above, for those who want more contrast.
constexpr std::array lightContrastColors{
    RoleColor{QPalette::Window, 0xffffffff},
    RoleColor{QPalette::WindowText, 0xff000000},
    RoleColor{QPalette::Text, 0xff000000},
    RoleColor{QPalette::AlternateBase, 0xffffffff},
    RoleColor{QPalette::Button, 0xffd8d8d8},
    RoleColor{QPalette::ButtonText, 0xff000000},
    RoleColor{QPalette::Highlight, 0xff00307a},
    RoleColor{QPalette::Link, 0xff00307a},
    RoleColor{QPalette::LinkVisited, 0xff4a1a6b},
    RoleColor{QPalette::ToolTipBase, 0xff000000},
    RoleColor{QPalette::PlaceholderText, 0xff404040},
    RoleColor{QPalette::Mid, 0xff606060},
    RoleColor{QPalette::Dark, 0xff404040},
    RoleColor{QPalette::Shadow, 0xff000000},
};

constexpr std::array darkContrastColors{
    RoleColor{QPalette::Window, 0xff000000},
    RoleColor{QPalette::Base, 0xff000000},
    RoleColor{QPalette::AlternateBase, 0xff000000},
    RoleColor{QPalette::Button, 0xff303030},
    RoleColor{QPalette::Highlight, 0xff9cc8ff},
    RoleColor{QPalette::HighlightedText, 0xff000000},
    RoleColor{QPalette::Link, 0xff9cc8ff},
    RoleColor{QPalette::LinkVisited, 0xffe0c8f0},
    RoleColor{QPalette::ToolTipBase, 0xff000000},
    RoleColor{QPalette::PlaceholderText, 0xffc0c0c0},
    RoleColor{QPalette::Light, 0xffc0c0c0},
    RoleColor{QPalette::Midlight, 0xffa0a0a0},
};

constexpr std::pair<QPalette::ColorRole, QPalette::ColorRole> textsOnBackgrounds[] = {
    {QPalette::WindowText, QPalette::Window},
    {QPalette::Text, QPalette::Base},
    {QPalette::ButtonText, QPalette::Button},
};

constexpr QRgb lightDisabledText = 0xff86868b;
constexpr QRgb darkDisabledText = 0xff86868c;
constexpr QRgb lightContrastDisabledText = 0xff555555;
constexpr QRgb darkContrastDisabledText = 0xffb0b0b0;

template <std::size_t count>
void setColors(QPalette &palette, const std::array<RoleColor, count> &colors) {
    for (const auto &[role, color] : colors)
        palette.setColor(QPalette::All, role, QColor::fromRgb(color));
}

void setDisabledText(QPalette &palette, QRgb color) {
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor::fromRgb(color));
}

} // namespace

QPalette paletteForScheme(zt::Appearance::Scheme scheme) {
    const bool dark = scheme == zt::Appearance::Scheme::Dark;
    QPalette palette;
    setColors(palette, dark ? darkColors : lightColors);
    setDisabledText(palette, dark ? darkDisabledText : lightDisabledText);
    return palette;
}

QPalette contrastPaletteForScheme(zt::Appearance::Scheme scheme) {
    QPalette palette = paletteForScheme(scheme);
    if (scheme == zt::Appearance::Scheme::Dark) {
        setColors(palette, darkContrastColors);
        setDisabledText(palette, darkContrastDisabledText);
    } else {
        setColors(palette, lightContrastColors);
        setDisabledText(palette, lightContrastDisabledText);
    }
    return palette;
}

bool isDarkPalette(const QPalette &palette, const QList<QPalette::ColorRole> &passingOver) {
    int votes = 0; // for dark, less those for light
    for (const auto &[text, background] : textsOnBackgrounds) {
        if (passingOver.contains(text) || passingOver.contains(background))
            continue;
        const bool isDark = palette.color(QPalette::Active, text).lightness() >
                            palette.color(QPalette::Active, background).lightness();
        votes += isDark ? 1 : -1;
    }
    return votes > 0;
}

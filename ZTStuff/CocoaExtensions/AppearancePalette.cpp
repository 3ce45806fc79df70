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

constexpr std::pair<QPalette::ColorRole, QPalette::ColorRole> textsOnBackgrounds[] = {
    {QPalette::WindowText, QPalette::Window},
    {QPalette::Text, QPalette::Base},
    {QPalette::ButtonText, QPalette::Button},
};

constexpr QRgb lightDisabledText = 0xff86868b;
constexpr QRgb darkDisabledText = 0xff86868c;

} // namespace

QPalette paletteForScheme(zt::Appearance::Scheme scheme) {
    const bool dark = scheme == zt::Appearance::Scheme::Dark;
    QPalette palette;
    for (const auto &[role, color] : dark ? darkColors : lightColors)
        palette.setColor(QPalette::All, role, QColor::fromRgb(color));
    const QColor disabled = QColor::fromRgb(dark ? darkDisabledText : lightDisabledText);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, disabled);
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

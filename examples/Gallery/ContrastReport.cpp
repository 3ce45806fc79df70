// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "examples/Gallery/ContrastReport.h"

#include "ZTStuff/CocoaExtensions/AppearancePalette.h"
#include "ZTStuff/CocoaExtensions/ColorContrast.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/DrawingContext.h"
#include "ZTStuff/ZTClasses/ZTDynamicColor.h"

#include <cstdio>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

using Scheme = zt::Appearance::Scheme;

constexpr double leastContrast = 4.5;

// Answers whether the text is hard to read.
bool printPair(const char *appearance, const QString &what, const QColor &text,
               const QColor &background) {
    const double contrast = contrastRatio(text, background);
    const bool isHard = contrast < leastContrast;
    std::printf("%-5s  %-34s %s on %s  %5.2f%s\n", appearance, what.toUtf8().constData(),
                text.name().toUtf8().constData(), background.name().toUtf8().constData(), contrast,
                isHard ? "  below 4.5" : "");
    return isHard;
}

int printMenuColors(const char *appearance, const QString &kind,
                    const ZTDynamicColor::ColorsByName &colors) {
    int hard = 0;
    for (const auto &[name, color] : colors) {
        ZTDynamicColor background = color;
        background.useGlobalAppearance(ZTDynamicColor::GlobalAppearance::Unused);
        const QString what = kind + u' ' + name;
        hard += printPair(appearance, what, textColorOn(background), background) ? 1 : 0;
        // What a platform's own menus would have on it.
        printPair(appearance, what + u", white"_s, Qt::white, background);
    }
    return hard;
}

int printScheme(const char *appearance, Scheme scheme) {
    const DrawingContext context(scheme);
    const QPalette palette = paletteForScheme(scheme);
    const QColor red = ZTDynamicColor::redWarningTextColor();
    int hard = 0;
    for (const auto &[role, name] : {std::pair(QPalette::Window, u"warning on a window"_s),
                                     std::pair(QPalette::Base, u"warning on a field"_s)})
        hard += printPair(appearance, name, red, palette.color(role)) ? 1 : 0;
    hard += printMenuColors(appearance, u"menu title"_s, ZTDynamicColor::menuHighlightColors());
    hard += printMenuColors(appearance, u"menu item"_s, ZTDynamicColor::menuItemHighlightColors());
    return hard;
}

} // namespace

int printContrastReport() {
    return printScheme("light", Scheme::Light) + printScheme("dark", Scheme::Dark);
}

} // namespace gallery

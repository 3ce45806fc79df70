// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "examples/Gallery/Pages.h"

#include "ZTStuff/CocoaExtensions/AppearancePalette.h"
#include "ZTStuff/CocoaExtensions/ColorContrast.h"
#include "ZTStuff/CocoaExtensions/DynamicColorPalette.h"
#include "ZTStuff/ZTClasses/ZTDynamicColor.h"

#include "examples/Gallery/Swatch.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

#include <optional>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

using Scheme = zt::Appearance::Scheme;
using Effect = ZTDynamicColor::SystemEffect;

// A part of the window in one appearance, or in the application's own.
QGroupBox *makePanel(const QString &title, std::optional<Scheme> scheme) {
    auto *panel = new QGroupBox(title);
    panel->setAutoFillBackground(true);
    if (scheme)
        panel->setPalette(paletteForScheme(*scheme));
    return panel;
}

// On the panel itself.
Swatch *makeTextSwatch(const QString &text, std::function<QColor()> color) {
    const auto nothing = [] { return QColor(Qt::transparent); };
    return new Swatch({.text = text, .textColor = std::move(color), .background = nothing});
}

Swatch *makeFilledSwatch(const QString &text, const std::function<QColor()> &color) {
    return new Swatch(
        {.text = text, .textColor = [color] { return textColorOn(color()); }, .background = color});
}

QGroupBox *makeWarningPanel(const QString &title, std::optional<Scheme> scheme) {
    QGroupBox *panel = makePanel(title, scheme);
    auto *layout = new QVBoxLayout(panel);
    const ZTDynamicColor &red = ZTDynamicColor::redWarningTextColor();
    auto *label = new QLabel(u"A label that follows"_s);
    followDynamicColor(*label, QPalette::WindowText, red);
    layout->addWidget(label);
    layout->addWidget(makeTextSwatch(u"Text in the context"_s, [red] { return QColor(red); }));
    const std::pair<QString, std::function<QColor()>> made[] = {
        {u"Its red"_s, [red] { return red.effectiveColor(); }},
        {u"Highlight 30 %"_s, [red] { return red.highlightWithLevel(0.3); }},
        {u"Shadow 30 %"_s, [red] { return red.shadowWithLevel(0.3); }},
        {u"Half blue"_s, [red] { return red.blendedColorWithFraction(0.5, Qt::blue); }},
        {u"Below the mouse"_s, [red] { return red.colorWithSystemEffect(Effect::Rollover); }},
        {u"Pressed"_s, [red] { return red.colorWithSystemEffect(Effect::Pressed); }},
        {u"Deeply pressed"_s, [red] { return red.colorWithSystemEffect(Effect::DeepPressed); }},
    };
    for (const auto &[text, color] : made)
        layout->addWidget(makeFilledSwatch(text, color));
    layout->addWidget(makeTextSwatch(
        u"Disabled"_s, [red] { return red.colorWithSystemEffect(Effect::Disabled); }));
    layout->addStretch();
    return panel;
}

QGroupBox *makeAccentPanel(const QString &title, Scheme scheme,
                           const ZTDynamicColor::ColorsByName &colors) {
    QGroupBox *panel = makePanel(title, scheme);
    auto *layout = new QVBoxLayout(panel);
    for (const auto &[name, color] : colors) {
        // In the panel's appearance, also those that would follow the user's setting.
        ZTDynamicColor shown = color;
        shown.useGlobalAppearance(ZTDynamicColor::GlobalAppearance::Unused);
        layout->addWidget(makeFilledSwatch(name, [shown] { return QColor(shown); }));
    }
    return panel;
}

} // namespace

QWidget *makeColorPage() {
    auto *page = new QWidget;
    auto *layout = new QGridLayout(page);
    layout->addWidget(makeWarningPanel(u"As the application is"_s, std::nullopt), 0, 0);
    layout->addWidget(makeWarningPanel(u"Light"_s, Scheme::Light), 0, 1);
    layout->addWidget(makeWarningPanel(u"Dark"_s, Scheme::Dark), 0, 2);
    return page;
}

QWidget *makeMenuPage() {
    auto *page = new QWidget;
    auto *layout = new QGridLayout(page);
    const auto &titles = ZTDynamicColor::menuHighlightColors();
    const auto &items = ZTDynamicColor::menuItemHighlightColors();
    layout->addWidget(makeAccentPanel(u"Menu titles, light"_s, Scheme::Light, titles), 0, 0);
    layout->addWidget(makeAccentPanel(u"Menu titles, dark"_s, Scheme::Dark, titles), 0, 1);
    layout->addWidget(makeAccentPanel(u"Menu items, light"_s, Scheme::Light, items), 0, 2);
    layout->addWidget(makeAccentPanel(u"Menu items, dark"_s, Scheme::Dark, items), 0, 3);
    auto *chosen = new QWidget;
    auto *row = new QHBoxLayout(chosen);
    row->setContentsMargins({});
    const auto addChosen = [row](const QString &text, ZTDynamicColor (*color)()) {
        row->addWidget(makeFilledSwatch(text + ZTDynamicColor::accentColorName(),
                                        [color] { return QColor(color()); }));
    };
    addChosen(u"A menu title of yours: "_s, ZTDynamicColor::menuHighlightColor);
    addChosen(u"A menu item of yours: "_s, ZTDynamicColor::menuItemHighlightColor);
    layout->addWidget(chosen, 1, 0, 1, 4);
    layout->setRowStretch(2, 1);
    return page;
}

} // namespace gallery

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTDynamicColor.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/DrawingContext.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPen>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

const std::pair<QColor::Spec, QString> colorSpaces[] = {
    {QColor::Rgb, u"Rgb"_s},
    {QColor::Hsv, u"Hsv"_s},
    {QColor::Cmyk, u"Cmyk"_s},
    {QColor::Hsl, u"Hsl"_s},
    {QColor::ExtendedRgb, u"ExtendedRgb"_s},
};

constexpr const char *translationContext = "QColor";

void assign(float *target, float value) {
    if (target != nullptr)
        *target = value;
}

// What is no number at all counts as 0.
float fractionOf(double value) {
    return value > 0 ? static_cast<float>(std::min(value, 1.0)) : 0.0F;
}

float mixed(float a, float b, float fraction) {
    return a + (b - a) * fraction;
}

QColor mixed(const QColor &a, const QColor &b, float fraction) {
    const QColor from = a.toRgb();
    const QColor to = b.toRgb();
    return QColor::fromRgbF(
        mixed(from.redF(), to.redF(), fraction), mixed(from.greenF(), to.greenF(), fraction),
        mixed(from.blueF(), to.blueF(), fraction), mixed(from.alphaF(), to.alphaF(), fraction));
}

QColor withAlpha(QColor color, float alpha) {
    color.setAlphaF(alpha);
    return color;
}

} // namespace

QColor::Spec ZTDynamicColor::colorSpace() const {
    return effectiveColor().spec();
}

QColor ZTDynamicColor::colorUsingColorSpace(QColor::Spec colorSpace) const {
    return effectiveColor().convertTo(colorSpace);
}

QString ZTDynamicColor::colorSpaceName() const {
    const QColor::Spec own = colorSpace();
    for (const auto &[space, name] : colorSpaces) {
        if (space == own)
            return name;
    }
    return {};
}

QColor ZTDynamicColor::colorUsingColorSpaceName(const QString &name) const {
    for (const auto &[space, spaceName] : colorSpaces) {
        if (spaceName == name)
            return colorUsingColorSpace(space);
    }
    return {};
}

int ZTDynamicColor::numberOfComponents() const {
    return static_cast<int>(getComponents().size());
}

QList<float> ZTDynamicColor::getComponents() const {
    const QColor color = effectiveColor();
    switch (color.spec()) {
    case QColor::Rgb:
    case QColor::ExtendedRgb:
        return {color.redF(), color.greenF(), color.blueF(), color.alphaF()};
    case QColor::Hsv:
        return {color.hsvHueF(), color.hsvSaturationF(), color.valueF(), color.alphaF()};
    case QColor::Hsl:
        return {color.hslHueF(), color.hslSaturationF(), color.lightnessF(), color.alphaF()};
    case QColor::Cmyk:
        return {color.cyanF(), color.magentaF(), color.yellowF(), color.blackF(), color.alphaF()};
    case QColor::Invalid:
        break;
    }
    return {};
}

float ZTDynamicColor::redComponent() const {
    return effectiveColor().redF();
}

float ZTDynamicColor::greenComponent() const {
    return effectiveColor().greenF();
}

float ZTDynamicColor::blueComponent() const {
    return effectiveColor().blueF();
}

void ZTDynamicColor::getRed(float *red, float *green, float *blue, float *alpha) const {
    const QColor color = effectiveColor();
    assign(red, color.redF());
    assign(green, color.greenF());
    assign(blue, color.blueF());
    assign(alpha, color.alphaF());
}

float ZTDynamicColor::hueComponent() const {
    return effectiveColor().hsvHueF();
}

float ZTDynamicColor::saturationComponent() const {
    return effectiveColor().hsvSaturationF();
}

float ZTDynamicColor::brightnessComponent() const {
    return effectiveColor().valueF();
}

void ZTDynamicColor::getHue(float *hue, float *saturation, float *brightness, float *alpha) const {
    const QColor color = effectiveColor();
    assign(hue, color.hsvHueF());
    assign(saturation, color.hsvSaturationF());
    assign(brightness, color.valueF());
    assign(alpha, color.alphaF());
}

float ZTDynamicColor::whiteComponent() const {
    float white = 0;
    getWhite(&white, nullptr);
    return white;
}

void ZTDynamicColor::getWhite(float *white, float *alpha) const {
    const QColor color = effectiveColor();
    // The weights of qGray().
    assign(white, (color.redF() * 11 + color.greenF() * 16 + color.blueF() * 5) / 32);
    assign(alpha, color.alphaF());
}

float ZTDynamicColor::cyanComponent() const {
    return effectiveColor().cyanF();
}

float ZTDynamicColor::magentaComponent() const {
    return effectiveColor().magentaF();
}

float ZTDynamicColor::yellowComponent() const {
    return effectiveColor().yellowF();
}

float ZTDynamicColor::blackComponent() const {
    return effectiveColor().blackF();
}

void ZTDynamicColor::getCyan(float *cyan, float *magenta, float *yellow, float *black,
                             float *alpha) const {
    const QColor color = effectiveColor();
    assign(cyan, color.cyanF());
    assign(magenta, color.magentaF());
    assign(yellow, color.yellowF());
    assign(black, color.blackF());
    assign(alpha, color.alphaF());
}

float ZTDynamicColor::alphaComponent() const {
    return effectiveColor().alphaF();
}

QRgba64 ZTDynamicColor::CGColor() const {
    return effectiveColor().rgba64();
}

std::optional<QString> ZTDynamicColor::catalogNameComponent() const {
    return colorNameComponent() ? std::optional(u"SVG"_s) : std::nullopt;
}

std::optional<QString> ZTDynamicColor::colorNameComponent() const {
    const QColor color = effectiveColor();
    if (!color.isValid() || color.alpha() != 255)
        return std::nullopt;
    const QStringList names = QColor::colorNames();
    const auto name = std::find_if(names.begin(), names.end(), [&color](const QString &candidate) {
        const QColor named(candidate);
        return named.alpha() == 255 && named.rgb() == color.rgb();
    });
    return name == names.end() ? std::nullopt : std::optional(*name);
}

std::optional<QString> ZTDynamicColor::localizedCatalogNameComponent() const {
    const std::optional<QString> name = catalogNameComponent();
    return name ? std::optional(QCoreApplication::translate(translationContext, name->toUtf8()))
                : std::nullopt;
}

std::optional<QString> ZTDynamicColor::localizedColorNameComponent() const {
    const std::optional<QString> name = colorNameComponent();
    return name ? std::optional(QCoreApplication::translate(translationContext, name->toUtf8()))
                : std::nullopt;
}

void ZTDynamicColor::setStroke() const {
    const DrawingContext *context = DrawingContext::current();
    if (context == nullptr || context->painter() == nullptr)
        return;
    QPen pen = context->painter()->pen();
    pen.setColor(effectiveColor());
    context->painter()->setPen(pen);
}

void ZTDynamicColor::setFill() const {
    const DrawingContext *context = DrawingContext::current();
    if (context != nullptr && context->painter() != nullptr)
        context->painter()->setBrush(effectiveColor());
}

void ZTDynamicColor::set() const {
    setStroke();
    setFill();
}

QColor ZTDynamicColor::highlightWithLevel(double level) const {
    const QColor color = effectiveColor();
    return withAlpha(mixed(color, Qt::white, fractionOf(level)), color.alphaF());
}

QColor ZTDynamicColor::shadowWithLevel(double level) const {
    const QColor color = effectiveColor();
    return withAlpha(mixed(color, Qt::black, fractionOf(level)), color.alphaF());
}

QColor ZTDynamicColor::colorWithAlphaComponent(double alpha) const {
    return withAlpha(effectiveColor(), fractionOf(alpha));
}

QColor ZTDynamicColor::blendedColorWithFraction(double fraction, const QColor &ofColor) const {
    return ofColor.isValid() ? mixed(effectiveColor(), ofColor, fractionOf(fraction)) : QColor();
}

QColor ZTDynamicColor::colorWithSystemEffect(SystemEffect effect) const {
    constexpr double pressed = 0.15;
    constexpr double deepPressed = 0.3;
    constexpr double belowMouse = 0.1;
    constexpr double disabledOpacity = 0.5;
    switch (effect) {
    case SystemEffect::None:
        break;
    case SystemEffect::Pressed:
        return shadowWithLevel(pressed);
    case SystemEffect::DeepPressed:
        return shadowWithLevel(deepPressed);
    case SystemEffect::Disabled:
        return colorWithAlphaComponent(disabledOpacity * double(alphaComponent()));
    case SystemEffect::Rollover:
        return highlightWithLevel(belowMouse);
    }
    return effectiveColor();
}

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A colour with a light and a dark variant, which is the one that fits when it is used.

#include <QBrush>
#include <QByteArray>
#include <QColor>
#include <QList>
#include <QMetaType>
#include <QRgba64>
#include <QString>
#include <QVariant>

#include <map>
#include <optional>

// The names of the accent colours.
inline const QString ZTAccentColorNameBlue = QStringLiteral("Blue");
inline const QString ZTAccentColorNamePurple = QStringLiteral("Purple");
inline const QString ZTAccentColorNamePink = QStringLiteral("Pink");
inline const QString ZTAccentColorNameRed = QStringLiteral("Red");
inline const QString ZTAccentColorNameOrange = QStringLiteral("Orange");
inline const QString ZTAccentColorNameYellow = QStringLiteral("Yellow");
inline const QString ZTAccentColorNameGreen = QStringLiteral("Green");
inline const QString ZTAccentColorNameGraphite = QStringLiteral("Graphite");

// A value; copies are independent. It can be given to whatever takes a QColor, a QBrush or a
// QVariant, and becomes the colour for that moment:
//     painter.setPen(color);  painter.setBrush(color);  palette.setColor(QPalette::Text, color);
// An item of a model may have it for Qt::ForegroundRole as it is: item views ask anew each time
// they paint. What takes either a colour or a brush (QPainter::fillRect) needs effectiveColor(). A
// palette that is to change with the appearance: followDynamicColor(), in DynamicColorPalette.h.
//
// Uses the current platform. Thread: main; any for one that follows a drawing context of that
// thread.
class ZTDynamicColor {
public:
    // What decides between light and dark: the drawing context, which is the application's own
    // palette where there is none (see DrawingContext); or the user's setting, whatever is drawn.
    enum class GlobalAppearance { Unused, Used };

    enum class SystemEffect { None, Pressed, DeepPressed, Disabled, Rollover };

    using ColorsByName = std::map<QString, ZTDynamicColor>;

    static ZTDynamicColor lightColor(const QColor &aquaColor,
                                     const std::optional<QColor> &darkColor);
    static ZTDynamicColor lightColor(const QColor &aquaColor,
                                     const std::optional<QColor> &darkColor,
                                     GlobalAppearance global);
    // Without a dark colour the light one counts always.
    ZTDynamicColor(const QColor &aquaColor, const std::optional<QColor> &darkAquaColor,
                   GlobalAppearance global);

    // Sets what decides, and answers this colour, so that it can follow a factory's call.
    ZTDynamicColor &useGlobalAppearance(GlobalAppearance global);

    const QColor &aquaColor() const { return m_aquaColor; }
    const std::optional<QColor> &darkAquaColor() const { return m_darkAquaColor; }
    GlobalAppearance globalAppearance() const { return m_global; }

    // The colour that counts now, asked afresh each time. The light one on systems that have no
    // appearances (before `mojaveOrNewer`).
    QColor effectiveColor() const;

    operator QColor() const { return effectiveColor(); }
    operator QBrush() const { return {effectiveColor()}; }
    operator QVariant() const;

    // Both colours and what decides.
    friend bool operator==(const ZTDynamicColor &a, const ZTDynamicColor &b) = default;

    // Archiving. What decides is not kept: a restored colour follows the drawing context. Of the
    // keys only "aquaColor" and "darkAquaColor" are looked at; there is no colour without the
    // first, or when either is something else than a colour.
    static constexpr bool supportsSecureCoding() { return true; }
    void encodeWithCoder(QVariantMap &coder) const;
    static std::optional<ZTDynamicColor> initWithCoder(const QVariantMap &coder);
    // The same as bytes. Those of an archive that was tampered with, or is none, make no colour;
    // they can be anybody's. Thread: any.
    QByteArray archivedData() const;
    static std::optional<ZTDynamicColor> unarchivedColor(const QByteArray &data);

    // The operations of colours, each on effectiveColor(). Those that make a colour make a plain
    // one, fixed to the appearance of this moment. Components go from 0 to 1; the hue of a grey is
    // -1.

    QColor::Spec colorSpace() const;
    QColor colorUsingColorSpace(QColor::Spec colorSpace) const;
    // "Rgb", "Hsv", "Cmyk", "Hsl" or "ExtendedRgb"; other names make an invalid colour.
    QString colorSpaceName() const;
    QColor colorUsingColorSpaceName(const QString &name) const;
    // The components in the colour's own space, the opacity last.
    int numberOfComponents() const;
    QList<float> getComponents() const;

    float redComponent() const;
    float greenComponent() const;
    float blueComponent() const;
    // A null pointer leaves its component out, here and below.
    void getRed(float *red, float *green, float *blue, float *alpha) const;
    float hueComponent() const;
    float saturationComponent() const;
    float brightnessComponent() const;
    void getHue(float *hue, float *saturation, float *brightness, float *alpha) const;
    // The white of a grey that is as bright, as qGray() has it.
    float whiteComponent() const;
    void getWhite(float *white, float *alpha) const;
    float cyanComponent() const;
    float magentaComponent() const;
    float yellowComponent() const;
    float blackComponent() const;
    void getCyan(float *cyan, float *magenta, float *yellow, float *black, float *alpha) const;
    float alphaComponent() const;
    // What pixels are made of.
    QRgba64 CGColor() const;

    // The catalogue is that of the SVG names: "SVG" and for instance "tomato". No value for a
    // colour without a name. The localized ones are translated in the context "QColor".
    std::optional<QString> catalogNameComponent() const;
    std::optional<QString> colorNameComponent() const;
    std::optional<QString> localizedCatalogNameComponent() const;
    std::optional<QString> localizedColorNameComponent() const;

    // Gives the painter of the current drawing context this colour: to its pen, whose width and
    // style stay; to its brush, which becomes a solid one; to both. Nothing where there is none.
    void setStroke() const;
    void setFill() const;
    void set() const;

    // Mixed with so much white or black, as opaque as before. Fractions beyond 0 and 1 count as
    // these.
    QColor highlightWithLevel(double level) const;
    QColor shadowWithLevel(double level) const;
    QColor colorWithAlphaComponent(double alpha) const;
    // So much of the other colour, opacity included. Invalid when the other colour is.
    QColor blendedColorWithFraction(double fraction, const QColor &ofColor) const;
    // How a control in this colour shows what happens to it: darker while it is pressed, half as
    // opaque while it is disabled, lighter below the mouse.
    QColor colorWithSystemEffect(SystemEffect effect) const;

    // The red of texts that warn.
    static const ZTDynamicColor &redWarningTextColor();

    // The name of the user's accent colour. Blue when he has chosen none, or one by an unknown
    // number, which is noted in the log; the same number again only after another unknown one.
    static QString accentColorName();

    // The backgrounds of a chosen menu title, which follows the user's setting, and of a chosen
    // menu item, which follows what it is drawn in. On systems without appearances the palette's
    // highlight.
    static ZTDynamicColor menuHighlightColor();
    static ZTDynamicColor menuItemHighlightColor();
    // All of them by the name of the accent colour.
    static const ColorsByName &menuHighlightColors();
    static const ColorsByName &menuItemHighlightColors();
    // The one of that name; if there is none, the accent colour as it is, at four fifths of its
    // opacity.
    static ZTDynamicColor colorForAccent(const ColorsByName &colors, const QString &accentName);

    // Forgets which number was noted in the log, for a program that has made another platform the
    // current one.
    static void platformChanged();

private:
    QColor m_aquaColor;
    std::optional<QColor> m_darkAquaColor;
    GlobalAppearance m_global;
};

Q_DECLARE_METATYPE(ZTDynamicColor)

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// An archive is a mark and a version, then for each key: its name, the class of what is under it
// and the bytes of that. Nothing but colours is ever made of it.

#include "ZTStuff/ZTClasses/ZTDynamicColor.h"

#include <QDataStream>
#include <QIODevice>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString aquaColorKey = u"aquaColor"_s;
const QString darkAquaColorKey = u"darkAquaColor"_s;

constexpr quint32 archiveMark = 0x5a544443; // "ZTDC"
constexpr quint16 archiveVersion = 1;
constexpr auto streamVersion = QDataStream::Qt_6_0;
constexpr qsizetype longestArchive = 4096; // several times as long as any of ours
const QByteArray colorClass = "QColor";

// As QDataStream has a colour: its space, the opacity, and four components or three and a blank.
struct ColorFields {
    qint8 space = 0;
    quint16 alpha = 0;
    std::array<quint16, 4> components{};
};

// The least number that is not finite in 16 bits of floating point, and the sign.
constexpr quint16 infinity = 0x7c00;
constexpr quint16 signBit = 0x8000;

bool isFinite(quint16 half) {
    return (half & infinity) != infinity;
}

// The framework takes any numbers for a colour, and works with them.
bool isColor(const ColorFields &fields) {
    constexpr quint16 fullCircle = 36000;
    constexpr quint16 noHue = 0xffff;
    constexpr quint16 one = 0x3c00; // in 16 bits of floating point
    const auto &[first, second, third, fourth] = fields.components;
    switch (fields.space) {
    case QColor::Rgb:
        return fourth == 0;
    case QColor::Hsv:
    case QColor::Hsl:
        return fourth == 0 && (first < fullCircle || first == noHue);
    case QColor::Cmyk:
        return true;
    case QColor::ExtendedRgb:
        return fourth == 0 && isFinite(first) && isFinite(second) && isFinite(third) &&
               (fields.alpha & signBit) == 0 && fields.alpha <= one;
    default:
        return false;
    }
}

QByteArray bytesOf(const QColor &color) {
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(streamVersion);
    stream << color;
    return bytes;
}

std::optional<QColor> colorFrom(const QByteArray &bytes) {
    QDataStream stream(bytes);
    stream.setVersion(streamVersion);
    ColorFields fields;
    stream >> fields.space >> fields.alpha;
    for (quint16 &component : fields.components)
        stream >> component;
    if (stream.status() != QDataStream::Ok || !stream.atEnd() || !isColor(fields))
        return std::nullopt;
    QDataStream again(bytes);
    again.setVersion(streamVersion);
    QColor color;
    again >> color;
    return color;
}

// No value when the key is missing; one that is not valid when it is no colour.
std::optional<QColor> colorForKey(const QVariantMap &coder, const QString &key) {
    const auto found = coder.constFind(key);
    if (found == coder.cend())
        return std::nullopt;
    return found->typeId() == QMetaType::QColor ? found->value<QColor>() : QColor();
}

} // namespace

void ZTDynamicColor::encodeWithCoder(QVariantMap &coder) const {
    coder.insert(aquaColorKey, m_aquaColor);
    if (m_darkAquaColor)
        coder.insert(darkAquaColorKey, *m_darkAquaColor);
}

std::optional<ZTDynamicColor> ZTDynamicColor::initWithCoder(const QVariantMap &coder) {
    const std::optional<QColor> light = colorForKey(coder, aquaColorKey);
    const std::optional<QColor> dark = colorForKey(coder, darkAquaColorKey);
    if (!light || !light->isValid() || (dark && !dark->isValid()))
        return std::nullopt;
    return lightColor(*light, dark);
}

QByteArray ZTDynamicColor::archivedData() const {
    QVariantMap coder;
    encodeWithCoder(coder);
    QByteArray data;
    QDataStream stream(&data, QIODevice::WriteOnly);
    stream.setVersion(streamVersion);
    stream << archiveMark << archiveVersion;
    for (const auto &[key, value] : std::as_const(coder).asKeyValueRange())
        stream << key.toUtf8() << colorClass << bytesOf(value.value<QColor>());
    return data;
}

std::optional<ZTDynamicColor> ZTDynamicColor::unarchivedColor(const QByteArray &data) {
    if (data.size() > longestArchive)
        return std::nullopt;
    QDataStream stream(data);
    stream.setVersion(streamVersion);
    quint32 mark = 0;
    quint16 version = 0;
    stream >> mark >> version;
    if (stream.status() != QDataStream::Ok || mark != archiveMark || version != archiveVersion)
        return std::nullopt;
    QVariantMap coder;
    while (!stream.atEnd()) {
        QByteArray key;
        QByteArray className;
        QByteArray content;
        stream >> key >> className >> content;
        const QString name = QString::fromUtf8(key);
        if (stream.status() != QDataStream::Ok || coder.contains(name))
            return std::nullopt;
        // What a later version adds is passed over, whatever it is.
        const std::optional<QColor> color =
            className == colorClass ? colorFrom(content) : std::nullopt;
        coder.insert(name, color ? QVariant(*color) : QVariant());
    }
    return initWithCoder(coder);
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/StringExtensionsValues.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/NumberReading.h"

#include <QCryptographicHash>
#include <QVarLengthArray>

#include <algorithm>
#include <cstdlib>

namespace StringExtensions {

namespace {

// Whether the unit may be part of a number as the C library reads it, or stand before one.
bool belongsToNumber(char16_t unit) {
    const auto letter = static_cast<char16_t>(unit | 0x20);
    return (unit >= u'0' && unit <= u'9') || (letter >= u'a' && letter <= u'z') || unit == u' ' ||
           (unit >= 0x09 && unit <= 0x0D) || unit == u'+' || unit == u'-';
}

} // namespace

std::int64_t numericValue(const QString &receiver) {
    const char16_t *const units = QStringView(receiver).utf16();
    const char16_t *const end = std::find_if_not(units, units + receiver.size(), belongsToNumber);
    constexpr qsizetype usualLength = 64;
    QVarLengthArray<char, usualLength> number(end - units + 1);
    *std::transform(units, end, number.begin(),
                    [](char16_t unit) { return static_cast<char>(unit); }) = '\0';
    return std::strtol(number.constData(), nullptr, 0);
}

bool booleanValue(const QString &receiver) {
    constexpr QStringView trueInitials = u"TtYy1";
    return !receiver.isEmpty() &&
           (trueInitials.contains(receiver.front()) || integerValue(receiver) != 0);
}

bool isIntegerNumber(const QString &receiver) {
    return !receiver.isEmpty() && std::all_of(receiver.begin(), receiver.end(), [](QChar unit) {
        return unit >= u'0' && unit <= u'9';
    });
}

float smartFloatValue(const QString &receiver) {
    const qsizetype comma = receiver.indexOf(u',');
    if (comma < 0)
        return floatValue(receiver);
    const qsizetype period = receiver.indexOf(u'.');
    QString number = receiver;
    if (period < 0)
        number.replace(u',', u'.');
    else if (period < comma)
        number.remove(u'.').replace(u',', u'.');
    else
        number.remove(u',');
    return floatValue(number);
}

QString MD5String(const QString &receiver) {
    const QStringView text(receiver);
    QCryptographicHash hash(QCryptographicHash::Md5);
    // Piece by piece, so that the bytes need no memory of the text's size.
    constexpr qsizetype pieceLength = 16384;
    for (qsizetype start = 0; start < text.size();) {
        QStringView piece = text.mid(start, pieceLength);
        start += piece.size();
        // No pair is cut in two.
        if (start < text.size() && piece.back().isHighSurrogate() && text[start].isLowSurrogate())
            piece = QStringView(piece.begin(), text.begin() + ++start);
        const QByteArray bytes = piece.toUtf8();
        const qsizetype null = bytes.indexOf('\0');
        hash.addData(QByteArrayView(bytes).first(null < 0 ? bytes.size() : null));
        if (null >= 0)
            break;
    }
    return QString::fromLatin1(hash.result().toHex());
}

} // namespace StringExtensions

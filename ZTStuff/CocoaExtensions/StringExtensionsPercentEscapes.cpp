// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/StringExtensionsEscapes.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/Scalars.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace StringExtensions {

namespace {

constexpr std::array<bool, 128> isLegalInAddress = [] {
    std::array<bool, 128> legal = {};
    for (const char character : std::string_view("ABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                                 "abcdefghijklmnopqrstuvwxyz"
                                                 "0123456789-_.~!*'();:@&=+$,/?"))
        legal.at(static_cast<std::size_t>(character)) = true;
    return legal;
}();

bool isLegal(char16_t unit) {
    return unit < isLegalInAddress.size() && isLegalInAddress[unit];
}

int utf8Length(char32_t scalar) {
    return scalar < 0x80 ? 1 : scalar < 0x800 ? 2 : scalar < 0x10000 ? 3 : 4;
}

// The length of the text with its escapes; none when it cannot be written as UTF-8.
std::optional<qsizetype> escapedLength(QStringView text) {
    const char16_t *const units = text.utf16();
    qsizetype length = 0;
    for (qsizetype index = 0; index < text.size();) {
        if (units[index] < isLegalInAddress.size()) {
            length += isLegalInAddress[units[index++]] ? 1 : 3;
            continue;
        }
        const Scalar scalar = scalarAt(text, index);
        if (QChar::isSurrogate(scalar.value))
            return std::nullopt;
        length += qsizetype{3} * utf8Length(scalar.value);
        index += scalar.length;
    }
    return length;
}

QChar *writeEscape(std::uint32_t byte, QChar *output) {
    static constexpr char16_t digits[] = u"0123456789ABCDEF";
    *output++ = u'%';
    *output++ = QChar(digits[byte >> 4]);
    *output++ = QChar(digits[byte & 15]);
    return output;
}

QChar *writeEscapes(char32_t scalar, QChar *output) {
    static constexpr std::array<std::uint32_t, 5> leadingBits = {0, 0, 0xC0, 0xE0, 0xF0};
    const int length = utf8Length(scalar);
    int shift = 6 * (length - 1);
    output =
        writeEscape(leadingBits.at(static_cast<std::size_t>(length)) | scalar >> shift, output);
    while (shift > 0) {
        shift -= 6;
        output = writeEscape(0x80 | (scalar >> shift & 0x3F), output);
    }
    return output;
}

// The text with escapes; none when it cannot be written as UTF-8.
std::optional<QString> withPercentEscapes(const QString &text) {
    const QStringView view(text);
    const std::optional<qsizetype> length = escapedLength(view);
    if (!length || *length == view.size())
        return length ? std::optional(text) : std::nullopt;
    QString escaped(*length, Qt::Uninitialized);
    QChar *output = escaped.data();
    for (qsizetype index = 0; index < view.size();) {
        const char16_t unit = view.utf16()[index];
        if (isLegal(unit)) {
            *output++ = QChar(unit);
            ++index;
        } else if (unit < isLegalInAddress.size()) {
            output = writeEscape(unit, output);
            ++index;
        } else {
            const Scalar scalar = scalarAt(view, index);
            output = writeEscapes(scalar.value, output);
            index += scalar.length;
        }
    }
    return escaped;
}

// The value of each hexadecimal digit; negative for other characters.
constexpr std::array<std::int8_t, 128> hexadecimalDigits = [] {
    std::array<std::int8_t, 128> values = {};
    values.fill(-1);
    for (std::size_t digit = 0; digit < 16; ++digit) {
        values.at(static_cast<std::size_t>("0123456789abcdef"[digit])) = std::int8_t(digit);
        values.at(static_cast<std::size_t>("0123456789ABCDEF"[digit])) = std::int8_t(digit);
    }
    return values;
}();

int hexadecimalDigit(char16_t unit) {
    return unit < hexadecimalDigits.size() ? hexadecimalDigits[unit] : -1;
}

// The byte of the escape at the position; negative when no escape stands there.
int escapedByte(const char16_t *position, const char16_t *last) {
    if (last - position < 3 || *position != u'%')
        return -1;
    const int high = hexadecimalDigit(position[1]);
    const int low = hexadecimalDigit(position[2]);
    return high < 0 || low < 0 ? -1 : high << 4 | low;
}

// The character whose UTF-8 the escapes at the position hold, and the units it takes; none when
// they do not. Only the shortest form counts, and surrogates are no characters.
std::optional<Scalar> escapedScalar(const char16_t *position, const char16_t *last) {
    const int lead = escapedByte(position, last);
    if (lead < 0xC2 || lead > 0xF4)
        return std::nullopt;
    const int length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    auto value = static_cast<char32_t>(lead & (0x7F >> length));
    for (int index = 1; index < length; ++index) {
        position += 3;
        const int byte = escapedByte(position, last);
        if ((byte & ~0x3F) != 0x80)
            return std::nullopt;
        value = value << 6 | static_cast<char32_t>(byte & 0x3F);
    }
    if (utf8Length(value) != length || QChar::isSurrogate(value) ||
        value > QChar::LastValidCodePoint)
        return std::nullopt;
    return Scalar{value, 3 * length};
}

} // namespace

QString stringWithPercentEscapes(const QString &receiver) {
    return withPercentEscapes(stringWithExpandedPercentEscapes(receiver)).value_or(receiver);
}

QString stringWithExpandedPercentEscapes(const QString &receiver) {
    const QStringView text(receiver);
    const qsizetype firstEscape = text.indexOf(u'%');
    if (firstEscape < 0)
        return receiver;
    const char16_t *position = text.utf16() + firstEscape;
    const char16_t *const last = text.utf16() + text.size();
    QString plain(text.size(), Qt::Uninitialized);
    QChar *output = std::copy_n(text.begin(), firstEscape, plain.data());
    while (position != last) {
        if (*position != u'%') {
            *output++ = QChar(*position++);
            continue;
        }
        if (const int byte = escapedByte(position, last); byte >= 0 && byte < 0x80) {
            *output++ = QChar(static_cast<char16_t>(byte));
            position += 3;
            continue;
        }
        const std::optional<Scalar> scalar = escapedScalar(position, last);
        if (!scalar)
            return receiver;
        for (const char16_t unit : QChar::fromUcs4(scalar->value))
            *output++ = QChar(unit);
        position += scalar->length;
    }
    plain.truncate(output - plain.constData());
    return plain;
}

} // namespace StringExtensions

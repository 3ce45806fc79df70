// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/StringEncoding.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/Scalars.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/TextConverter.h"

#include "Platform/MacRoman.h"

#include <QStringDecoder>
#include <QStringEncoder>
#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace {

enum class ByteOrder { Big, Little };

constexpr ByteOrder nativeOrder = Q_BYTE_ORDER == Q_BIG_ENDIAN ? ByteOrder::Big : ByteOrder::Little;
constexpr char16_t mark = 0xFEFF;
constexpr char16_t swappedMark = 0xFFFE;

// Copies numbers, turned from the order into the processor's or back where the two differ.
template <typename Number>
void copyInOrder(const void *from, qsizetype count, void *to, ByteOrder order) {
    if (count == 0)
        return; // the pointers may be null
    if (order == ByteOrder::Big)
        qFromBigEndian<Number>(from, count, to);
    else
        qFromLittleEndian<Number>(from, count, to);
}

QString textOfUtf16(QByteArrayView bytes, ByteOrder order) {
    QString text(bytes.size() / 2, Qt::Uninitialized);
    copyInOrder<char16_t>(bytes.data(), text.size(), text.data(), order);
    if (text.startsWith(QChar(mark)))
        text.remove(0, 1);
    return text;
}

QString textOfMarkedUtf16(QByteArrayView bytes) {
    char16_t first = 0;
    if (bytes.size() >= 2)
        std::memcpy(&first, bytes.data(), sizeof first);
    const bool isSwapped = first == swappedMark;
    const ByteOrder foreignOrder =
        nativeOrder == ByteOrder::Big ? ByteOrder::Little : ByteOrder::Big;
    return textOfUtf16(bytes, isSwapped ? foreignOrder : nativeOrder);
}

QByteArray utf16Of(const QString &text, ByteOrder order) {
    QByteArray bytes(text.size() * 2, Qt::Uninitialized);
    copyInOrder<char16_t>(text.constData(), text.size(), bytes.data(), order);
    return bytes;
}

std::optional<QString> textOfUtf32(QByteArrayView bytes, ByteOrder order) {
    if (bytes.size() % 4 != 0)
        return std::nullopt;
    QString text(bytes.size() / 2, Qt::Uninitialized);
    QChar *output = text.data();
    for (qsizetype index = 0; index < bytes.size(); index += 4) {
        char32_t scalar = 0;
        copyInOrder<char32_t>(bytes.data() + index, 1, &scalar, order);
        if (scalar > QChar::LastValidCodePoint || QChar::isSurrogate(scalar))
            return std::nullopt;
        if (index == 0 && scalar == mark)
            continue;
        for (const char16_t unit : QChar::fromUcs4(scalar))
            *output++ = QChar(unit);
    }
    text.truncate(output - text.constData());
    return text;
}

std::optional<QByteArray> utf32Of(const QString &text, ByteOrder order) {
    QByteArray bytes(text.size() * 4, Qt::Uninitialized);
    char *output = bytes.data();
    for (qsizetype index = 0; index < text.size();) {
        const Scalar scalar = scalarAt(text, index);
        if (QChar::isSurrogate(scalar.value))
            return std::nullopt;
        copyInOrder<char32_t>(&scalar.value, 1, output, order);
        output += 4;
        index += scalar.length;
    }
    bytes.truncate(output - bytes.constData());
    return bytes;
}

std::optional<QString> textOfUtf8(QByteArrayView bytes) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder.decode(bytes);
    if (decoder.hasError())
        return std::nullopt;
    return text;
}

std::optional<QByteArray> utf8Of(const QString &text) {
    QStringEncoder encoder(QStringEncoder::Utf8, QStringEncoder::Flag::Stateless);
    QByteArray bytes = encoder.encode(text);
    if (encoder.hasError())
        return std::nullopt;
    return bytes;
}

std::optional<QByteArray> latin1Of(const QString &text) {
    if (std::ranges::any_of(text, [](QChar unit) { return unit.unicode() > 0xFF; }))
        return std::nullopt;
    return text.toLatin1();
}

} // namespace

std::optional<QString> stringWithData(QByteArrayView bytes, StringEncoding encoding) {
    switch (encoding) {
    case StringEncoding::UTF8:
        return textOfUtf8(bytes);
    case StringEncoding::ISOLatin1:
        return QString::fromLatin1(bytes);
    case StringEncoding::Unicode:
        return textOfMarkedUtf16(bytes);
    case StringEncoding::MacOSRoman:
        return zt::stringFromMacRoman(bytes);
    case StringEncoding::UTF16BigEndian:
        return textOfUtf16(bytes, ByteOrder::Big);
    case StringEncoding::UTF16LittleEndian:
        return textOfUtf16(bytes, ByteOrder::Little);
    case StringEncoding::UTF32BigEndian:
        return textOfUtf32(bytes, ByteOrder::Big);
    case StringEncoding::UTF32LittleEndian:
        return textOfUtf32(bytes, ByteOrder::Little);
    default:
        break;
    }
    const char *const name = nameOfEncoding(encoding);
    const auto converter = name ? TextConverter::named(name) : std::nullopt;
    return converter ? converter->toTextExactly(bytes) : std::nullopt;
}

std::optional<QByteArray> dataUsingEncoding(const QString &text, StringEncoding encoding) {
    switch (encoding) {
    case StringEncoding::UTF8:
        return utf8Of(text);
    case StringEncoding::ISOLatin1:
        return latin1Of(text);
    case StringEncoding::Unicode:
        return utf16Of(QChar(mark) + text, nativeOrder);
    case StringEncoding::MacOSRoman:
        return zt::macRomanFromString(text);
    case StringEncoding::UTF16BigEndian:
        return utf16Of(text, ByteOrder::Big);
    case StringEncoding::UTF16LittleEndian:
        return utf16Of(text, ByteOrder::Little);
    case StringEncoding::UTF32BigEndian:
        return utf32Of(text, ByteOrder::Big);
    case StringEncoding::UTF32LittleEndian:
        return utf32Of(text, ByteOrder::Little);
    default:
        break;
    }
    const char *const name = nameOfEncoding(encoding);
    const auto converter = name ? TextConverter::named(name) : std::nullopt;
    return converter ? converter->fromTextExactly(text) : std::nullopt;
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/PlainTextDecoder.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/TextConverter.h"

#include <QRegularExpression>
#include <QStringDecoder>

#include <unicode/ucsdet.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

struct DetectorCloser {
    void operator()(UCharsetDetector *detector) const { ucsdet_close(detector); }
};

// What is looked at when an encoding is guessed.
constexpr qsizetype sampleSize = 65536;

// The text when all bytes are valid in the Unicode encoding.
std::optional<QString> validText(QByteArrayView bytes, QStringConverter::Encoding encoding) {
    QStringDecoder decoder(encoding, QStringConverter::Flag::Stateless);
    QString text = decoder.decode(bytes);
    if (decoder.hasError())
        return std::nullopt;
    return text;
}

// UTF-16 without a mark: the null bytes of ASCII characters, line ends at least, lie all on the
// same side of their units. `leastShare` is how many units must have one, as a divisor.
std::optional<QString> unmarkedUtf16Text(QByteArrayView bytes, qsizetype leastShare) {
    std::array<qsizetype, 2> nulls = {0, 0};
    const QByteArrayView sample = bytes.first(std::min(bytes.size(), sampleSize));
    for (qsizetype i = 0; i < sample.size(); ++i) {
        if (sample[i] == '\0')
            ++nulls.at(static_cast<std::size_t>(i) % 2);
    }
    const bool isOneSided = (nulls[0] == 0) != (nulls[1] == 0);
    if (bytes.size() % 2 != 0 || !isOneSided ||
        nulls[0] + nulls[1] < sample.size() / 2 / leastShare)
        return std::nullopt;
    return validText(bytes, nulls[0] > 0 ? QStringConverter::Utf16BE : QStringConverter::Utf16LE);
}

// Texts from before Mac OS X end their lines with a carriage return alone.
bool hasOldMacLineEnds(QByteArrayView bytes) {
    return bytes.contains('\r') && !bytes.contains('\n');
}

// The encoding that the detector believes in.
QByteArray detectedEncoding(QByteArrayView bytes, bool isMarkup) {
    const QByteArrayView sample = bytes.first(std::min(bytes.size(), sampleSize));
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<UCharsetDetector, DetectorCloser> detector(ucsdet_open(&status));
    if (U_FAILURE(status))
        return {};
    ucsdet_enableInputFilter(detector.get(), static_cast<UBool>(isMarkup));
    ucsdet_setText(detector.get(), sample.data(), static_cast<std::int32_t>(sample.size()),
                   &status);
    const UCharsetMatch *match = ucsdet_detect(detector.get(), &status);
    if (U_FAILURE(status) || !match)
        return {};
    // Western texts are short of evidence; a guess that is no better than chance is dropped.
    constexpr int leastConfidence = 20;
    if (ucsdet_getConfidence(match, &status) < leastConfidence)
        return {};
    return ucsdet_getName(match, &status);
}

// The detector tells the ISO encodings; in practice their Windows supersets are in use.
QByteArray withSuperset(const QByteArray &encoding) {
    if (encoding == "ISO-8859-1" || encoding.startsWith("UTF-"))
        return "windows-1252"; // valid Unicode was found before, so that this is none
    if (encoding == "ISO-8859-9")
        return "windows-1254";
    return encoding;
}

QString decodeLegacyText(QByteArrayView bytes, bool isMarkup) {
    QByteArray encoding = withSuperset(detectedEncoding(bytes, isMarkup));
    if (hasOldMacLineEnds(bytes) && (encoding.isEmpty() || encoding.startsWith("windows-125") ||
                                     encoding.startsWith("ISO-8859-")))
        encoding = "macintosh";
    if (encoding.isEmpty())
        encoding = "windows-1252";
    const auto converter = TextConverter::named(encoding.constData());
    return converter ? converter->toText(bytes) : QString::fromLatin1(bytes);
}

// ISO-2022 switches between character sets by escape sequences; its bytes are all ASCII.
bool hasCharacterSetEscapes(QByteArrayView bytes) {
    return bytes.contains("\x1B$") || bytes.contains("\x1B(");
}

QString decodeText(QByteArrayView bytes, bool isMarkup) {
    if (const auto marked = QStringConverter::encodingForData(bytes))
        return QStringDecoder(*marked).decode(bytes);
    const bool hasNulls = bytes.contains('\0');
    if (hasNulls) {
        // A stray null byte does not make UTF-16 of an ASCII text.
        if (auto text = unmarkedUtf16Text(bytes, 4))
            return *std::move(text);
    }
    if (!hasCharacterSetEscapes(bytes)) {
        if (auto text = validText(bytes, QStringConverter::Utf8))
            return *std::move(text);
    }
    if (hasNulls) {
        if (auto text = unmarkedUtf16Text(bytes, sampleSize))
            return *std::move(text);
    }
    return decodeLegacyText(bytes, isMarkup);
}

// The encoding that the XML declaration or a <meta> element of HTML names.
QByteArray declaredEncoding(QByteArrayView bytes) {
    constexpr qsizetype headSize = 2048;
    const QString head = QString::fromLatin1(bytes.first(std::min(bytes.size(), headSize)));
    static const QRegularExpression declaration(
        uR"((?:<\?xml[^>]*\bencoding|<meta[^>]*\bcharset)\s*=\s*["']?([A-Za-z0-9_.:-]+))"_s,
        QRegularExpression::CaseInsensitiveOption);
    return declaration.match(head).captured(1).toLatin1();
}

} // namespace

QString decodePlainText(QByteArrayView bytes) {
    return decodeText(bytes, false);
}

QString decodeHtml(QByteArrayView bytes) {
    const QByteArray declared = declaredEncoding(bytes);
    // A declaration that could be read as ASCII is wrong when it says UTF-16.
    const bool isUsable = !declared.isEmpty() && !declared.toUpper().startsWith("UTF");
    if (isUsable && !QStringConverter::encodingForData(bytes)) {
        if (const auto converter =
                TextConverter::named(withSuperset(declared.toUpper()).constData()))
            return converter->toText(bytes);
    }
    return decodeText(bytes, true);
}

QString cleanedText(const QString &text) {
    QString cleaned;
    cleaned.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text[i];
        const bool hasNext = i + 1 < text.size();
        if (unit == u'\r') {
            if (!hasNext || text[i + 1] != u'\n')
                cleaned += u'\n';
        } else if (unit == u'\f' || unit == u'\v' || unit == u'\x85') {
            cleaned += u'\n';
        } else if (unit.isHighSurrogate() && hasNext && text[i + 1].isLowSurrogate()) {
            cleaned += unit;
            cleaned += text[++i];
        } else if (unit.isSurrogate() || unit.unicode() >= 0xFFFC ||
                   (unit.unicode() >= 0xFDD0 && unit.unicode() <= 0xFDEF)) {
            cleaned += QChar::ReplacementCharacter;
        } else if (unit.unicode() >= u' ' ? unit.unicode() < 0x7F || unit.unicode() > 0x9F
                                          : unit == u'\n' || unit == u'\t') {
            cleaned += unit;
        }
    }
    return cleaned;
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/StringExtensionsEncodings.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/CharacterSets.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/DeclaredEncoding.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/LiteralSearch.h"

#include "Platform/MacRoman.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

using namespace Qt::StringLiterals;

namespace StringExtensions {

namespace {

// Opens an existing file for reading. Only a regular one: reading others may never end.
bool openForReading(QFile &file) {
    return QFileInfo(file.fileName()).isFile() && file.open(QIODevice::ReadOnly);
}

std::optional<QByteArray> contentOfFile(const QString &path) {
    QFile file(path);
    if (!openForReading(file))
        return std::nullopt;
    QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return std::nullopt;
    return content;
}

// The encoding that the mark at the start of the bytes tells.
std::optional<StringEncoding> markedEncoding(QByteArrayView bytes) {
    constexpr auto mark = [](auto... byte) { return std::array{static_cast<char>(byte)...}; };
    // UTF-32 in little-endian order comes before UTF-16, whose mark it begins with.
    if (bytes.startsWith(mark(0xEF, 0xBB, 0xBF)))
        return StringEncoding::UTF8;
    if (bytes.startsWith(mark(0xFE, 0xFF)))
        return StringEncoding::UTF16BigEndian;
    if (bytes.startsWith(mark(0x00, 0x00, 0xFE, 0xFF)))
        return StringEncoding::UTF32BigEndian;
    if (bytes.startsWith(mark(0xFF, 0xFE, 0x00, 0x00)))
        return StringEncoding::UTF32LittleEndian;
    if (bytes.startsWith(mark(0xFF, 0xFE)))
        return StringEncoding::UTF16LittleEndian;
    return std::nullopt;
}

// The text in the encoding that the platform knows for the file, or sees at once. An empty file
// tells none.
std::optional<QString> textInDetectedEncoding(const QString &path, QByteArrayView content) {
    if (const std::optional<StringEncoding> declared = declaredEncodingOfFile(path)) {
        if (std::optional<QString> text = stringWithData(content, *declared))
            return text;
    }
    return content.isEmpty() ? std::nullopt : stringWithData(content, StringEncoding::UTF8);
}

std::optional<QString> mostReasonableText(QByteArrayView content) {
    std::optional<QString> best;
    float bestFactor = -1000000;
    for (const StringEncoding candidate : {StringEncoding::Unicode, StringEncoding::MacOSRoman,
                                           StringEncoding::ISOLatin1, StringEncoding::UTF8}) {
        std::optional<QString> text = stringWithData(content, candidate);
        const float factor = text ? reasonableTextFactor(*text) : bestFactor;
        if (factor > bestFactor) {
            bestFactor = factor;
            best = std::move(text);
        }
    }
    return best;
}

} // namespace

QString stringWithMacRomanCString(const char *bytes, std::int32_t length) {
    if (!bytes || length < 0)
        return {};
    return zt::stringFromMacRoman(QByteArrayView(bytes, length));
}

QString stringWithMacRomanCString(const char *bytes) {
    return zt::stringFromMacRoman(
        QByteArrayView(bytes, bytes ? static_cast<qsizetype>(std::strlen(bytes)) : 0));
}

QString stringWithOSType(FourCharCode code) {
    return UTCreateStringForOSType(code);
}

StringEncoding explicitEncodingOfFile(const QString &path, StringEncoding defaultEncoding) {
    QFile file(path);
    constexpr qint64 longestMark = 4;
    if (!openForReading(file))
        return defaultEncoding;
    return markedEncoding(file.read(longestMark)).value_or(defaultEncoding);
}

std::optional<QString> stringWithBestEncodingFromFile(const QString &path) {
    const std::optional<QByteArray> content = contentOfFile(path);
    if (!content)
        return std::nullopt;
    if (const std::optional<StringEncoding> marked = markedEncoding(*content)) {
        if (std::optional<QString> text = stringWithData(*content, *marked))
            return text;
    }
    if (std::optional<QString> text = textInDetectedEncoding(path, *content))
        return text;
    return mostReasonableText(*content);
}

float reasonableTextFactor(const QString &receiver) {
    constexpr qsizetype mostUnits = 1000;
    const qsizetype count = std::min(receiver.size(), mostUnits);
    int good = 0;
    int bad = 0;
    for (const QChar unit : QStringView(receiver).first(count)) {
        const char16_t c = unit.unicode();
        if (c == u'\t' || c == u'\n' || c == u'\r' || c == u' ')
            ++good;
        else if (c < 33)
            ++bad;
        else if (isAlphanumericCharacter(c))
            ++good;
        else if (isIllegalCharacter(c))
            bad += 10;
    }
    return static_cast<float>(good - bad) / static_cast<float>(count);
}

std::optional<QString> xmlElementForKey(const QString &receiver, const QString &name) {
    const QString tag = u'<' + name + u'>';
    const qsizetype opening = literalIndexOf(receiver, tag);
    if (opening < 0)
        return std::nullopt;
    const qsizetype start = opening + tag.size();
    const qsizetype end = literalIndexOf(receiver, u"</"_s + name + u'>', start);
    if (end < 0)
        return std::nullopt;
    return receiver.mid(start, end - start);
}

bool appendToFile(const QString &receiver, const QString &path, StringEncoding encoding) {
    // Each write goes to what is the end at that moment; without a buffer there is one write.
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
        return false;
    const std::optional<QByteArray> data = dataUsingEncoding(receiver, encoding);
    return data && file.write(*data) == data->size();
}

} // namespace StringExtensions

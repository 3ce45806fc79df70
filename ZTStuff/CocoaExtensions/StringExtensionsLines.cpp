// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/StringExtensionsLines.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/CharacterSets.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Scalars.h"

#include <algorithm>
#include <new>

namespace StringExtensions {

namespace {

// What trimming leaves, from start up to end; the text itself when it is the whole.
QString part(const QString &text, qsizetype start, qsizetype end) {
    if (start == 0 && end == text.size())
        return text;
    return start < end ? text.mid(start, end - start) : QString();
}

template <typename IsBlank>
QString trimmedOf(const QString &text, IsBlank isBlank) {
    const char16_t *const units = QStringView(text).utf16();
    qsizetype start = 0;
    qsizetype end = text.size();
    while (start < end && isBlank(units[start]))
        ++start;
    while (end > start && isBlank(units[end - 1]))
        --end;
    return part(text, start, end);
}

// The pieces between the separators, with the last one. `isKept` tells of the last piece whether
// it counts.
template <typename IsKept>
QStringList pieces(const QString &text, QStringView separator, IsKept isKept) {
    const QStringView view(text);
    QStringList result;
    qsizetype start = 0;
    qsizetype end = view.indexOf(separator);
    if (end < 0) { // one piece, which can share the text's storage
        if (isKept(text.size()))
            result.append(text);
        return result;
    }
    result.reserve(view.count(separator) + 1);
    for (; end >= 0; end = view.indexOf(separator, start)) {
        result.append(view.mid(start, end - start).toString());
        start = end + separator.size();
    }
    if (isKept(text.size() - start))
        result.append(view.mid(start).toString());
    return result;
}

bool isTrimmedFromSingleLine(char32_t scalar) {
    return (scalar < 0x10000 && isWhitespaceOrNewline(static_cast<char16_t>(scalar))) ||
           isControlCharacter(scalar);
}

// What becomes of each line end of a text.
struct LineEnds {
    QString ofPair;           // "\r\n"
    QString ofCarriageReturn; // "\r" that no "\n" follows
    QString ofLineFeed;       // "\n" that no "\r" precedes
};

// Each line end sent through the three replacements on its own: as they work on single units after
// the first, they treat it the same in the middle of a text.
LineEnds lineEndsFor(const QString &separator) {
    const auto withoutCarriageReturns = [&](QString text) {
        return separator == u'\r' ? text : text.replace(u'\r', separator);
    };
    const auto withoutLineFeeds = [&](QString text) {
        return separator == u'\n' ? text : text.replace(u'\n', separator);
    };
    const QString pair = QStringLiteral("\r\n");
    return {.ofPair =
                withoutLineFeeds(withoutCarriageReturns(separator == pair ? pair : separator)),
            .ofCarriageReturn = withoutLineFeeds(withoutCarriageReturns(QStringLiteral("\r"))),
            .ofLineFeed = withoutLineFeeds(QStringLiteral("\n"))};
}

qsizetype lineEndLength(const QChar *lineEnd, const QChar *last) {
    return *lineEnd == u'\r' && lineEnd + 1 < last && lineEnd[1] == u'\n' ? 2 : 1;
}

// The next line end that a replacement by the separator touches; `last` when there is none.
const QChar *nextForeignLineEnd(const QChar *position, const QChar *last,
                                const QString &separator) {
    for (;; ++position) {
        position =
            std::find_if(position, last, [](QChar unit) { return unit == u'\r' || unit == u'\n'; });
        if (position == last || separator != *position || lineEndLength(position, last) == 2)
            return position;
    }
}

} // namespace

std::int32_t numberOfUnicodeCharacters(const QString &receiver) {
    const char16_t *const units = QStringView(receiver).utf16();
    qsizetype pairs = 0;
    for (qsizetype index = 1; index < receiver.size(); ++index)
        pairs += int(QChar::isLowSurrogate(units[index])) &
                 int(QChar::isHighSurrogate(units[index - 1]));
    return static_cast<std::int32_t>(receiver.size() - pairs);
}

QString trimWhitespace(const QString &receiver) {
    return trimmedOf(receiver, isWhitespaceOrNewline);
}

QString stringByTrimmingWhitespace(const QString &receiver) {
    return trimmedOf(receiver, [](char16_t unit) { return unit < 33 || unit == 0xA0; });
}

QString asSingleLine(const QString &receiver) {
    const QStringView text(receiver);
    // Controls become spaces, so that they fall away at the ends like those.
    qsizetype start = 0;
    while (start < text.size()) {
        const Scalar scalar = scalarAt(text, start);
        if (!isTrimmedFromSingleLine(scalar.value))
            break;
        start += scalar.length;
    }
    qsizetype end = text.size();
    while (end > start) {
        const Scalar scalar = scalarBefore(text, end);
        if (!isTrimmedFromSingleLine(scalar.value))
            break;
        end -= scalar.length;
    }
    const QStringView middle = text.mid(start, end - start);
    qsizetype index = 0;
    while (index < middle.size() && !isControlCharacter(scalarAt(middle, index).value))
        index += scalarAt(middle, index).length;
    if (index == middle.size())
        return part(receiver, start, end);

    QString line(middle.size(), Qt::Uninitialized);
    QChar *output = std::copy_n(middle.begin(), index, line.data());
    while (index < middle.size()) {
        const Scalar scalar = scalarAt(middle, index);
        if (isControlCharacter(scalar.value))
            *output++ = u' ';
        else
            output = std::copy_n(middle.begin() + index, scalar.length, output);
        index += scalar.length;
    }
    line.truncate(output - line.constData());
    return line;
}

QStringList arrayOfLines(const QString &receiver) {
    const auto always = [](qsizetype /*length*/) { return true; };
    for (const QStringView separator : {QStringView(u"\r\n"), QStringView(u"\n")}) {
        if (receiver.contains(separator))
            return pieces(receiver, separator, always);
    }
    return pieces(receiver, u"\r", always);
}

QString withLineSeparator(const QString &receiver, const QString &separator) {
    const QChar *const last = receiver.constEnd();
    const QChar *position = nextForeignLineEnd(receiver.constBegin(), last, separator);
    if (position == last)
        return receiver;
    const LineEnds ends = lineEndsFor(separator);
    QString result;
    result.reserve(receiver.size());
    const QChar *written = receiver.constBegin(); // up to here the result is complete
    while (position != last) {
        const bool isPair = lineEndLength(position, last) == 2;
        const QString &single = *position == u'\r' ? ends.ofCarriageReturn : ends.ofLineFeed;
        result.append(written, position - written).append(isPair ? ends.ofPair : single);
        written = position + (isPair ? 2 : 1);
        position = nextForeignLineEnd(written, last, separator);
    }
    return result.append(written, last - written);
}

QStringList componentsSeparatedByCharacter(const QString &receiver, QChar separator) {
    return pieces(receiver, QStringView(&separator, 1),
                  [](qsizetype length) { return length > 0; });
}

QString repeated(const QString &receiver, std::int32_t count) {
    if (count < 1)
        return {};
    if (count == 1)
        return receiver;
    try {
        return receiver.repeated(count);
    } catch (const std::bad_alloc &) {
        return {};
    }
}

} // namespace StringExtensions

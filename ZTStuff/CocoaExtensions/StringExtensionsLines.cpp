// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/StringExtensionsLines.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/CharacterSets.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Scalars.h"

#include <algorithm>
#include <new>
#include <optional>
#include <utility>

namespace StringExtensions {

namespace {

// What trimming leaves, from start up to end; the text itself when it is the whole.
QString part(const QString &text, qsizetype start, qsizetype end) {
    if (start == 0 && end == text.size())
        return text;
    return start < end ? QString(text.constData() + start, end - start) : QString();
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

// Room is made for the pieces of a short text when they have the usual length. A long text's list
// grows as well by itself.
constexpr qsizetype usualPieceLength = 10;
constexpr qsizetype mostExpectedPieces = 1024;

// The pieces between the places that `next(from)` finds, each of which is so long; with the last
// one if `isKept` tells so by its length. No value when `isRefused` tells so of a place.
template <typename Next, typename IsRefused, typename IsKept>
std::optional<QStringList> piecesUnless(IsRefused isRefused, const QString &text,
                                        qsizetype separatorLength, Next next, IsKept isKept) {
    QStringList result;
    qsizetype start = 0;
    for (qsizetype end = next(0); end >= 0; end = next(start)) {
        if (isRefused(end))
            return std::nullopt;
        if (start == 0)
            result.reserve(std::min(text.size() / usualPieceLength, mostExpectedPieces));
        result.emplace_back(text.constData() + start, end - start);
        start = end + separatorLength;
    }
    if (start == 0 && isKept(text.size())) // one piece, which can share the text's storage
        result.append(text);
    else if (isKept(text.size() - start))
        result.emplace_back(text.constData() + start, text.size() - start);
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
    const QStringView text(receiver);
    const auto always = [](qsizetype /*length*/) { return true; };
    const auto never = [](qsizetype /*index*/) { return false; };
    const auto isEndOfPair = [text](qsizetype index) {
        return index > 0 && text[index - 1] == u'\r';
    };
    const auto nextLineFeed = [text](qsizetype from) { return text.indexOf(u'\n', from); };
    const auto nextCarriageReturn = [text](qsizetype from) { return text.indexOf(u'\r', from); };
    const auto nextPair = [=](qsizetype from) {
        qsizetype index = nextLineFeed(from);
        while (index >= 0 && (index == from || !isEndOfPair(index)))
            index = nextLineFeed(index + 1);
        return index < 0 ? index : index - 1;
    };
    if (nextLineFeed(0) < 0)
        return *piecesUnless(never, receiver, 1, nextCarriageReturn, always);
    // Whether there is a pair is seen on the way.
    if (std::optional<QStringList> lines =
            piecesUnless(isEndOfPair, receiver, 1, nextLineFeed, always))
        return *std::move(lines);
    return *piecesUnless(never, receiver, 2, nextPair, always);
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
    const QStringView text(receiver);
    return *piecesUnless(
        [](qsizetype /*index*/) { return false; }, receiver, 1,
        [text, separator](qsizetype from) { return text.indexOf(separator, from); },
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

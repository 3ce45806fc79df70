// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/text/TextModels.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <cstdlib>
#include <set>

using namespace Qt::StringLiterals;

namespace models {

namespace {

bool isHigh(QChar unit) {
    return unit >= QChar(0xD800) && unit <= QChar(0xDBFF);
}

bool isLow(QChar unit) {
    return unit >= QChar(0xDC00) && unit <= QChar(0xDFFF);
}

// The length of the character at the index.
int lengthAt(const QString &text, qsizetype index) {
    return isHigh(text[index]) && index + 1 < text.size() && isLow(text[index + 1]) ? 2 : 1;
}

char32_t scalarOf(const QString &text, qsizetype index) {
    return lengthAt(text, index) == 2 ? QChar::surrogateToUcs4(text[index], text[index + 1])
                                      : text[index].unicode();
}

std::set<char32_t> charactersOf(const QString &text) {
    std::set<char32_t> characters;
    for (qsizetype index = 0; index < text.size(); index += lengthAt(text, index))
        characters.insert(scalarOf(text, index));
    return characters;
}

} // namespace

int numberOfUnicodeCharacters(const QString &text) {
    int count = 0;
    for (qsizetype index = 0; index < text.size(); index += lengthAt(text, index))
        ++count;
    return count;
}

QString trimmed(QString text, const std::function<bool(char16_t)> &isBlank) {
    while (!text.isEmpty() && isBlank(text.front().unicode()))
        text.remove(0, 1);
    while (!text.isEmpty() && isBlank(text.back().unicode()))
        text.chop(1);
    return text;
}

bool isWhitespaceOrNewline(char16_t unit) {
    return (U_GET_GC_MASK(unit) & U_GC_Z_MASK) != 0 || (unit >= 0x09 && unit <= 0x0D) ||
           unit == 0x85 || unit == 0x200B;
}

QString asSingleLine(QString text) {
    for (bool isFound = true; isFound;) {
        isFound = false;
        for (qsizetype index = 0; index < text.size(); index += lengthAt(text, index)) {
            const auto scalar = static_cast<UChar32>(scalarOf(text, index));
            if ((U_GET_GC_MASK(scalar) & (U_GC_CC_MASK | U_GC_CF_MASK)) != 0) {
                text.replace(index, lengthAt(text, index), u" "_s);
                isFound = true;
                break;
            }
        }
    }
    return trimmed(text, isWhitespaceOrNewline);
}

QStringList arrayOfLines(const QString &text) {
    const QString separator = text.contains(u"\r\n"_s) ? u"\r\n"_s
                              : text.contains(u'\n')   ? u"\n"_s
                                                       : u"\r"_s;
    return text.split(separator);
}

QString withLineSeparator(QString text, const QString &separator) {
    for (const QString &lineEnd : {u"\r\n"_s, u"\r"_s, u"\n"_s}) {
        if (separator != lineEnd)
            text.replace(lineEnd, separator);
    }
    return text;
}

QStringList componentsSeparatedByCharacter(const QString &text, QChar separator) {
    QStringList pieces;
    QString piece;
    for (const QChar unit : text) {
        if (unit == separator) {
            pieces.append(piece);
            piece.clear();
        } else {
            piece.append(unit);
        }
    }
    if (!piece.isEmpty())
        pieces.append(piece);
    return pieces;
}

QString repeated(const QString &text, int count) {
    QString result;
    for (; count > 0; --count)
        result += text;
    return result;
}

QString stringByEscapingCharacters(const QString &text, const QString &characters) {
    const std::set<char32_t> set = charactersOf(characters);
    const auto find = [&](qsizetype from) {
        qsizetype index = from;
        while (index < text.size() && !set.contains(scalarOf(text, index)))
            index += lengthAt(text, index);
        return index;
    };
    QString copy = text;
    for (qsizetype index = find(0); index < text.size(); index = find(index + 2)) {
        const int length = lengthAt(text, index);
        if (copy[index] == u'\t')
            copy.replace(index, length, u"\\t"_s);
        else if (copy[index] == u'\r')
            copy.replace(index, length, u"\\r"_s);
        else if (copy[index] == u'\n')
            copy.replace(index, length, u"\\n"_s);
        else
            copy.insert(index, u'\\');
    }
    return copy;
}

QString stringByExpandingEscapedCharacters(QString text, const QString &recognised) {
    QString letters = recognised;
    letters.replace(u'\r', u'r').replace(u'\n', u'n').replace(u'\t', u't');
    const std::set<char32_t> set = charactersOf(letters);
    for (qsizetype index = 0; index < text.size() - 1; ++index) {
        if (text[index] != u'\\' || !set.contains(text[index + 1].unicode()))
            continue;
        if (text[index + 1] == u't')
            text.replace(index, 2, u"\t"_s);
        else if (text[index + 1] == u'r')
            text.replace(index, 2, u"\r"_s);
        else if (text[index + 1] == u'n')
            text.replace(index, 2, u"\n"_s);
        else
            text.remove(index, 1);
    }
    return text;
}

QString expandedControlCharacters(QString text, bool includingBackslash) {
    qsizetype index = 0;
    while (index < text.size() - 1) {
        if (text[index] == u'\\') {
            const QChar next = text[index + 1];
            if (next == u'r')
                text.replace(index, 2, u"\r"_s);
            else if (next == u't')
                text.replace(index, 2, u"\t"_s);
            else if (next == u'n')
                text.replace(index, 2, u"\n"_s);
            else if (next == u'\\' && includingBackslash)
                text.replace(index, 2, u"\\"_s);
            else if (next == u'\\')
                ++index;
        }
        ++index;
    }
    return text;
}

QString stringWithObjCString(QString literal) {
    if (literal.size() <= 2)
        return {};
    literal.remove(0, 2);
    literal.chop(1);
    return literal.replace(u"\\\\"_s, u"\\"_s)
        .replace(u"\\\""_s, u"\""_s)
        .replace(u"\\r"_s, u"\r"_s)
        .replace(u"\\n"_s, u"\n"_s)
        .replace(u"\\t"_s, u"\t"_s);
}

std::optional<QString> expandedPercentEscapes(const QString &text) {
    QString result;
    QByteArray bytes;
    const auto flush = [&] {
        // Qt leaves out the mark that it takes U+FEFF at the start for.
        const QString decoded = QString::fromUtf8("x" + bytes).mid(1);
        const bool isValid = decoded.toUtf8() == bytes;
        result += decoded;
        bytes.clear();
        return isValid;
    };
    for (qsizetype index = 0; index < text.size(); ++index) {
        if (text[index] == u'%') {
            bool isNumber = false;
            const QString digits = text.mid(index + 1, 2);
            const uint byte = digits.toUInt(&isNumber, 16);
            const bool areDigits =
                std::ranges::all_of(digits, [](QChar digit) { return digit.isLetterOrNumber(); });
            if (!isNumber || !areDigits || digits.size() != 2)
                return std::nullopt;
            bytes.append(static_cast<char>(byte));
            index += 2;
        } else {
            if (!flush())
                return std::nullopt;
            result.append(text[index]);
        }
    }
    return flush() ? std::optional(result) : std::nullopt;
}

std::optional<QString> addedPercentEscapes(const QString &text) {
    QString result;
    for (qsizetype index = 0; index < text.size(); index += lengthAt(text, index)) {
        const QString character = text.mid(index, lengthAt(text, index));
        if (character.size() == 1 && (isHigh(character[0]) || isLow(character[0])))
            return std::nullopt;
        if (character[0].unicode() > 0x20 && character[0].unicode() < 0x7F &&
            !u"\"#%<>[\\]^`{|}"_s.contains(character))
            result += character;
        else
            result += QString::fromLatin1("%" + character.toUtf8().toHex('%').toUpper());
    }
    return result;
}

qint64 numericValue(const QString &text) {
    return std::strtol(text.toUtf8().constData(), nullptr, 0);
}

float smartFloatValue(QString text) {
    if (text.contains(u',') && text.contains(u'.')) {
        if (text.indexOf(u',') > text.indexOf(u'.'))
            text.remove(u'.').replace(u',', u'.');
        else
            text.remove(u',');
    }
    text.replace(u',', u'.');
    // Only decimal numbers count; the C library knows more kinds.
    static const QString parts = u"0123456789+-.eE"_s;
    qsizetype start = 0;
    while (start < text.size() && text[start].isSpace())
        ++start;
    qsizetype end = start;
    while (end < text.size() && parts.contains(text[end]))
        ++end;
    return std::strtof(text.mid(start, end - start).toLatin1().constData(), nullptr);
}

QString withoutLoneSurrogates(const QString &text) {
    QString result;
    for (qsizetype index = 0; index < text.size(); index += lengthAt(text, index)) {
        const bool isLone =
            lengthAt(text, index) == 1 && (isHigh(text[index]) || isLow(text[index]));
        result +=
            isLone ? QString(QChar::ReplacementCharacter) : text.mid(index, lengthAt(text, index));
    }
    return result;
}

QString caseFolded(const QString &text) {
    QString result;
    for (qsizetype index = 0; index < text.size(); index += lengthAt(text, index)) {
        const auto folded =
            u_foldCase(static_cast<UChar32>(scalarOf(text, index)), U_FOLD_CASE_DEFAULT);
        result += QChar::fromUcs4(static_cast<char32_t>(folded));
    }
    return result;
}

int numericCompare(const QString &a, const QString &b) {
    const auto isDigit = [](QChar unit) { return unit >= u'0' && unit <= u'9'; };
    const auto numberEnd = [&](const QString &text, qsizetype index) {
        while (index < text.size() && isDigit(text[index]))
            ++index;
        return index;
    };
    qsizetype i = 0;
    qsizetype j = 0;
    while (i < a.size() && j < b.size()) {
        if (isDigit(a[i]) && isDigit(b[j])) {
            QString numberA = a.mid(i, numberEnd(a, i) - i);
            QString numberB = b.mid(j, numberEnd(b, j) - j);
            i += numberA.size();
            j += numberB.size();
            const qsizetype width = std::max(numberA.size(), numberB.size());
            numberA = numberA.rightJustified(width, u'0');
            numberB = numberB.rightJustified(width, u'0');
            if (numberA != numberB)
                return numberA < numberB ? -1 : 1;
        } else {
            if (a[i] != b[j])
                return a[i] < b[j] ? -1 : 1;
            ++i;
            ++j;
        }
    }
    const qsizetype rest = (a.size() - i) - (b.size() - j);
    return rest == 0 ? 0 : rest < 0 ? -1 : 1;
}

bool matchesWildcardPattern(const QString &text, const QString &pattern) {
    if (pattern.isEmpty())
        return text.isEmpty();
    if (pattern.front() == u'*') {
        for (qsizetype length = 0; length <= text.size(); ++length) {
            if (matchesWildcardPattern(text.mid(length), pattern.mid(1)))
                return true;
        }
        return false;
    }
    return !text.isEmpty() && text.front() == pattern.front() &&
           matchesWildcardPattern(text.mid(1), pattern.mid(1));
}

QList<char32_t> utf32Characters(const QString &text) {
    QList<char32_t> scalars;
    for (qsizetype index = 0; index < text.size(); ++index) {
        if (!isHigh(text[index])) {
            scalars.append(text[index].unicode());
            continue;
        }
        if (lengthAt(text, index) == 2)
            scalars.append(scalarOf(text, index));
        ++index; // what follows a high surrogate is gone in any case
    }
    return scalars;
}

QString emojiStringWithSkinColor(const QString &text, int skinColor) {
    if (text.isEmpty())
        return text;
    const QStringList tones = {QString(),       u"\U0001F3FB"_s, u"\U0001F3FB"_s, u"\U0001F3FC"_s,
                               u"\U0001F3FD"_s, u"\U0001F3FE"_s, u"\U0001F3FF"_s};
    const QString tone = skinColor >= 1 && skinColor <= 6 ? tones[skinColor] : QString();
    for (qsizetype index = 1; index + 1 < text.size(); ++index) {
        const QString present = text.mid(index, 2);
        if (!tones.mid(1).contains(present))
            continue;
        if (present == tone)
            return text;
        return text.left(index) + (tone.isEmpty() ? QString(QChar(u'\0')) : tone) +
               text.mid(index + 2);
    }
    if (tone.isEmpty())
        return text;
    const int first = lengthAt(text, 0);
    QString rest = text.mid(first);
    if (rest.startsWith(u"\uFE0F\u200D"_s))
        rest.remove(0, 1);
    return text.left(first) + tone + rest;
}

} // namespace models

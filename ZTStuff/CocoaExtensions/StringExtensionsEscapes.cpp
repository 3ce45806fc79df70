// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/StringExtensionsEscapes.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/CharacterSets.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/Scalars.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace StringExtensions {

namespace {

// Storage of its own: a literal of the same content elsewhere may share that of a literal here.
const char16_t escapeCharacters[] = {u'\n', u'\r', u'\t', u'\\', u'\0'};

// The letter that stands for the control character behind a backslash.
std::optional<char16_t> escapeLetter(char16_t unit) {
    switch (unit) {
    case u'\t':
        return u't';
    case u'\r':
        return u'r';
    case u'\n':
        return u'n';
    default:
        return std::nullopt;
    }
}

// The control character that the letter stands for behind a backslash.
std::optional<char16_t> controlCharacter(char16_t letter) {
    switch (letter) {
    case u't':
        return u'\t';
    case u'r':
        return u'\r';
    case u'n':
        return u'\n';
    default:
        return std::nullopt;
    }
}

// The index and length of the first character of the set at or behind the index.
struct Match {
    qsizetype index;
    int length;
};

std::optional<Match> nextMatch(QStringView text, qsizetype from, const CharacterSet &set) {
    for (qsizetype index = from; index < text.size();) {
        const Scalar scalar = scalarAt(text, index);
        if (set.contains(scalar.value))
            return Match{index, scalar.length};
        index += scalar.length;
    }
    return std::nullopt;
}

// What the two units at a backslash become.
struct Expansion {
    enum class Kind { None, NotEvenLater, Unit } kind;
    char16_t unit = 0;
};

// Copies the text with its escapes expanded. `expansion` tells for the unit behind a backslash what
// the two become: one unit; themselves; or themselves, the second of which begins no escape.
template <typename ExpansionOf>
QString expanded(const QString &receiver, ExpansionOf expansionOf) {
    const QStringView text(receiver);
    QString result;
    QChar *output = nullptr;
    qsizetype written = 0; // up to here the text is in the result
    qsizetype index = text.indexOf(u'\\');
    while (index >= 0 && index + 1 < text.size()) {
        const Expansion expansion = expansionOf(text.utf16()[index + 1]);
        if (expansion.kind == Expansion::Kind::Unit) {
            if (!output) {
                result = QString(text.size() - 1, Qt::Uninitialized);
                output = result.data();
            }
            output = std::copy(text.begin() + written, text.begin() + index, output);
            *output++ = QChar(expansion.unit);
            written = index + 2;
        }
        index += expansion.kind == Expansion::Kind::None ? 1 : 2;
        // Escapes often stand close together.
        if (index < text.size() && text[index] != u'\\')
            index = text.indexOf(u'\\', index);
    }
    if (!output)
        return receiver;
    output = std::copy(text.begin() + written, text.end(), output);
    result.truncate(output - result.constData());
    return result;
}

// Replaces, within the units, each backslash with the letter behind it by the replacement. Answers
// the new end.
QChar *replaceEscape(QChar *first, QChar *last, QChar letter, QChar replacement) {
    QChar *output = first;
    while (first != last) {
        if (*first == u'\\' && first + 1 != last && first[1] == letter) {
            *output++ = replacement;
            first += 2;
        } else {
            *output++ = *first++;
        }
    }
    return output;
}

} // namespace

const QString ZTEscapeCharacters = QString::fromRawData(
    reinterpret_cast<const QChar *>(escapeCharacters), std::size(escapeCharacters) - 1);

QString stringByEscapingCharacters(const QString &receiver, const QString &characters) {
    const QStringView text(receiver);
    const CharacterSet set(characters);
    std::optional<Match> match = nextMatch(text, 0, set);
    if (!match)
        return receiver;
    // The result so far is `escaped` followed by the text from `read` on; edits only move forward.
    QString escaped;
    escaped.reserve(text.size() + text.size() / 8 + 8);
    qsizetype read = 0;
    while (match) {
        const qsizetype copied = match->index - escaped.size();
        escaped.append(text.mid(read, copied));
        read += copied;
        escaped.append(u'\\');
        const char16_t unit = text.utf16()[read];
        if (const std::optional<char16_t> letter = escapeLetter(unit)) {
            escaped.append(QChar(*letter));
            read += match->length;
        } else {
            escaped.append(QChar(unit));
            ++read;
        }
        match = nextMatch(text, match->index + 2, set);
    }
    return escaped.append(text.mid(read));
}

QString stringByExpandingEscapedCharacters(const QString &receiver, const QString &characters) {
    if (characters.constData() == ZTEscapeCharacters.constData()) {
        return expanded(receiver, [](char16_t unit) -> Expansion {
            if (const std::optional<char16_t> control = controlCharacter(unit))
                return {Expansion::Kind::Unit, *control};
            return unit == u'\\' ? Expansion{Expansion::Kind::Unit, unit}
                                 : Expansion{Expansion::Kind::None};
        });
    }
    const CharacterSet set(characters);
    return expanded(receiver, [&set](char16_t unit) -> Expansion {
        const std::optional<char16_t> control = controlCharacter(unit);
        const bool isControlItself = escapeLetter(unit).has_value();
        if ((set.contains(unit) && !isControlItself) || (control && set.contains(*control)))
            return {Expansion::Kind::Unit, control.value_or(unit)};
        return {Expansion::Kind::None};
    });
}

QString stringByExpandingEscapedControlCharactersIncludingBackslash(const QString &receiver,
                                                                    EscapedBackslash backslash) {
    return expanded(receiver, [backslash](char16_t unit) -> Expansion {
        if (const std::optional<char16_t> control = controlCharacter(unit))
            return {Expansion::Kind::Unit, *control};
        if (unit != u'\\')
            return {Expansion::Kind::None};
        return backslash == EscapedBackslash::Expanded ? Expansion{Expansion::Kind::Unit, unit}
                                                       : Expansion{Expansion::Kind::NotEvenLater};
    });
}

QString stringByExpandingEscapedControlCharacters(const QString &receiver) {
    return stringByExpandingEscapedControlCharactersIncludingBackslash(receiver,
                                                                       EscapedBackslash::Expanded);
}

QString stringWithObjCString(const QString &literal) {
    if (literal.size() <= 2)
        return {};
    QString text = literal.mid(2, literal.size() - 3);
    if (!text.contains(u'\\'))
        return text;
    QChar *const first = text.data();
    QChar *last = first + text.size();
    last = replaceEscape(first, last, u'\\', u'\\');
    last = replaceEscape(first, last, u'"', u'"');
    last = replaceEscape(first, last, u'r', u'\r');
    last = replaceEscape(first, last, u'n', u'\n');
    last = replaceEscape(first, last, u't', u'\t');
    text.truncate(last - first);
    return text;
}

QString objCStringWithString(const QString &text) {
    return text;
}

} // namespace StringExtensions

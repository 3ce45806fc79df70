// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/OldPropertyListReader.h"

#include "Platform/linux/PropertyListLimits.h"
#include "Platform/linux/PropertyListNextStep.h"

#include <QDateTime>
#include <QLocale>
#include <QVariantMap>

#include <algorithm>
#include <optional>

namespace zt {

using namespace Qt::StringLiterals;

namespace {

bool isAsciiDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

int hexadecimalDigit(QChar character) {
    if (isAsciiDigit(character))
        return character.unicode() - u'0';
    const char16_t lower = character.toLower().unicode();
    return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : -1;
}

// The characters of texts that stand without quotes. Paths, versions and addresses are common.
bool isUnquotedCharacter(QChar character) {
    const char16_t unit = character.unicode();
    if (unit >= 0x80)
        return !character.isSpace();
    return unit > u' ' && unit != 0x7F && !QStringView(u"\"'(),;<=>\\{}").contains(character);
}

// "2001-01-01 00:00:00 +0000"
std::optional<QVariant> dateFromText(const QString &text) {
    constexpr qsizetype zoneStart = 20;
    QDateTime date = QDateTime::fromString(text.left(zoneStart - 1), u"yyyy-MM-dd HH:mm:ss"_s);
    date.setTimeSpec(Qt::UTC);
    bool ok = false;
    const int zone = text.mid(zoneStart).toInt(&ok); // hours and minutes
    if (!date.isValid() || !ok || text.size() != zoneStart + 5)
        return std::nullopt;
    return QVariant(date.addSecs(-(zone / 100 * 3600 + zone % 100 * 60)));
}

// Recursive descent over the whole text. Each read...() function begins at the value's first
// character and ends after its last; the first failure is kept and ends everything.
class OldPropertyListReader {
public:
    explicit OldPropertyListReader(const QString &text) : m_text(text) {}

    Result<QVariant> read();

private:
    using Value = std::optional<QVariant>;

    Value readTopLevel();
    Value readValue(int depth);
    Value readDictionary(int depth, QChar end);
    Value readArray(int depth);
    Value readData();
    Value readTypedValue();
    std::optional<QString> readText();
    std::optional<QString> readQuotedText();
    QString readUnquotedText();
    QChar readEscape();
    int readNumber(int maximumDigits, int base);

    bool atEnd() const { return m_position >= m_text.size(); }

    // A null character at the end.
    QChar current() const { return atEnd() ? QChar() : m_text[m_position]; }

    bool skip(QChar character);
    bool skipBlanks();
    std::nullopt_t fail(const char *cause);

    const QString &m_text;
    qsizetype m_position = 0;
    std::optional<Error> m_error;
};

Result<QVariant> OldPropertyListReader::read() {
    Value value = readTopLevel();
    if (value && !m_error && skipBlanks() && !atEnd())
        fail("something follows the value");
    if (m_error)
        return *m_error;
    return *std::move(value);
}

OldPropertyListReader::Value OldPropertyListReader::readTopLevel() {
    if (!skipBlanks())
        return std::nullopt;
    if (atEnd())
        return fail("it holds no value");
    const qsizetype start = m_position;
    Value value = readValue(0);
    if (!value || value->metaType() != QMetaType::fromType<QString>() || !skipBlanks())
        return value;
    if (current() != u'=' && current() != u';')
        return value;
    // The text was the first key of a dictionary without braces.
    m_position = start;
    return readDictionary(1, QChar());
}

OldPropertyListReader::Value OldPropertyListReader::readValue(int depth) {
    const QChar first = current();
    if ((first == u'{' || first == u'(') && depth >= maximumPropertyListDepth)
        return fail("values are nested too deeply");
    if (skip(u'{'))
        return readDictionary(depth + 1, u'}');
    if (skip(u'('))
        return readArray(depth + 1);
    if (skip(u'<'))
        return skip(u'*') ? readTypedValue() : readData();
    std::optional<QString> text = readText();
    return text ? Value(*std::move(text)) : std::nullopt;
}

// Reads pairs up to `end`; a null character stands for the end of the text.
OldPropertyListReader::Value OldPropertyListReader::readDictionary(int depth, QChar end) {
    QVariantMap dictionary;
    while (skipBlanks()) {
        if (end.isNull() ? atEnd() : skip(end))
            return QVariant(dictionary);
        std::optional<QString> key = readText();
        if (!key || !skipBlanks())
            return std::nullopt;
        // A key alone stands for itself.
        Value value = *key;
        if (skip(u'=')) {
            if (!skipBlanks())
                return std::nullopt;
            value = readValue(depth);
            if (!value || !skipBlanks())
                return std::nullopt;
        }
        const bool isLast = end.isNull() ? atEnd() : current() == end;
        if (!skip(u';') && !isLast)
            return fail("a semicolon is missing");
        dictionary.insert(*key, *std::move(value));
    }
    return std::nullopt;
}

OldPropertyListReader::Value OldPropertyListReader::readArray(int depth) {
    QVariantList array;
    while (skipBlanks()) {
        if (skip(u')'))
            return QVariant(array);
        Value value = readValue(depth);
        if (!value || !skipBlanks())
            return std::nullopt;
        array.append(*std::move(value));
        if (!skip(u',') && current() != u')')
            return fail("a comma or a closing parenthesis is missing");
    }
    return std::nullopt;
}

OldPropertyListReader::Value OldPropertyListReader::readData() {
    QByteArray digits;
    while (!atEnd() && current() != u'>') {
        const QChar character = m_text[m_position];
        if (!character.isSpace()) {
            if (hexadecimalDigit(character) < 0)
                return fail("a character in the data is no hexadecimal digit");
            digits.append(character.toLatin1());
        }
        ++m_position;
    }
    if (!skip(u'>'))
        return fail("data is not closed");
    if (digits.size() % 2 != 0)
        return fail("data has an odd number of digits");
    return QVariant(QByteArray::fromHex(digits));
}

// The rest of <*I42>, <*R1.5>, <*BY> or <*D2001-01-01 00:00:00 +0000>.
OldPropertyListReader::Value OldPropertyListReader::readTypedValue() {
    const qsizetype end = m_text.indexOf(u'>', m_position);
    if (end <= m_position)
        return fail("a typed value is not closed");
    const char16_t type = current().unicode();
    const QString text = m_text.mid(m_position + 1, end - m_position - 1);
    Value value;
    bool ok = true;
    if (type == u'I') {
        value = text.toLongLong(&ok);
    } else if (type == u'R') {
        value = QLocale::c().toDouble(text, &ok);
    } else if (type == u'B' && (text == "Y"_L1 || text == "N"_L1)) {
        value = text == "Y"_L1;
    } else if (type == u'D') {
        value = dateFromText(text);
    }
    if (!value || !ok)
        return fail("a typed value is malformed");
    m_position = end + 1;
    return value;
}

std::optional<QString> OldPropertyListReader::readText() {
    if (current() == u'"' || current() == u'\'')
        return readQuotedText();
    QString text = readUnquotedText();
    if (text.isEmpty())
        return fail(atEnd() ? "it ends in the middle of a value" : "an unexpected character");
    return text;
}

std::optional<QString> OldPropertyListReader::readQuotedText() {
    const QChar quote = current();
    ++m_position;
    QString text;
    for (;;) {
        const qsizetype start = m_position;
        while (!atEnd() && current() != quote && current() != u'\\')
            ++m_position;
        text += QStringView(m_text).sliced(start, m_position - start);
        if (skip(quote))
            return text;
        if (!skip(u'\\') || atEnd())
            return fail("a quoted text is not closed");
        text += readEscape();
    }
}

QString OldPropertyListReader::readUnquotedText() {
    const qsizetype start = m_position;
    while (!atEnd() && isUnquotedCharacter(current()))
        ++m_position;
    return m_text.mid(start, m_position - start);
}

// What follows a backslash.
QChar OldPropertyListReader::readEscape() {
    if (current() >= u'0' && current() <= u'7')
        return nextStepCharacter(static_cast<unsigned char>(readNumber(3, 8)));
    const QChar character = current();
    ++m_position;
    switch (character.unicode()) {
    case u'a':
        return u'\a';
    case u'b':
        return u'\b';
    case u'f':
        return u'\f';
    case u'n':
        return u'\n';
    case u'r':
        return u'\r';
    case u't':
        return u'\t';
    case u'v':
        return u'\v';
    case u'U':
    case u'u':
        return hexadecimalDigit(current()) < 0 ? character : QChar(readNumber(4, 16));
    default:
        return character; // a quote, a backslash, a line's end, or a needless escape
    }
}

// A number of at most so many digits.
int OldPropertyListReader::readNumber(int maximumDigits, int base) {
    int number = 0;
    for (int i = 0; i < maximumDigits; ++i) {
        const int digit = hexadecimalDigit(current());
        if (digit < 0 || digit >= base)
            break;
        number = number * base + digit;
        ++m_position;
    }
    return number;
}

bool OldPropertyListReader::skip(QChar character) {
    if (atEnd() || current() != character)
        return false;
    ++m_position;
    return true;
}

// Skips blanks and comments; fails when a comment is not closed.
bool OldPropertyListReader::skipBlanks() {
    const QStringView text = m_text;
    while (!atEnd()) {
        const QStringView rest = text.sliced(m_position);
        if (current().isSpace()) {
            ++m_position;
        } else if (rest.startsWith(u"//")) {
            while (!atEnd() && current() != u'\n' && current() != u'\r')
                ++m_position;
        } else if (rest.startsWith(u"/*")) {
            const qsizetype end = text.indexOf(u"*/", m_position + 2);
            if (end < 0) {
                fail("a comment is not closed");
                return false;
            }
            m_position = end + 2;
        } else {
            break;
        }
    }
    return true;
}

std::nullopt_t OldPropertyListReader::fail(const char *cause) {
    if (m_error)
        return std::nullopt;
    // Lines end with any of the three conventions.
    qint64 line = 1;
    for (qsizetype i = 0; i < std::min(m_position, m_text.size()); ++i) {
        const bool isPair = m_text[i] == u'\r' && m_text.mid(i + 1, 1) == "\n"_L1;
        if (!isPair && (m_text[i] == u'\n' || m_text[i] == u'\r'))
            ++line;
    }
    m_error = propertyListError(cause, line);
    return std::nullopt;
}

} // namespace

Result<QVariant> parseOldPropertyList(const QString &text) {
    return OldPropertyListReader(text).read();
}

} // namespace zt

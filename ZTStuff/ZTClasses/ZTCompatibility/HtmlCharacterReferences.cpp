// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/HtmlCharacterReferences.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/HtmlReferenceNames.h"

#include <QStringEncoder>
#include <QVarLengthArray>

#include <algorithm>
#include <array>
#include <optional>

namespace {

// A reference: what it stands for, and the number of units behind the "&".
struct Reference {
    QString text;
    qsizetype length;
};

bool isAsciiLetterOrDigit(QChar unit) {
    const char16_t letter = unit.unicode() | 0x20;
    return (unit >= u'0' && unit <= u'9') || (letter >= u'a' && letter <= u'z');
}

bool isAsciiLetter(QChar unit) {
    return isAsciiLetterOrDigit(unit) && (unit < u'0' || unit > u'9');
}

// Whether a "<" before it begins a tag, a comment or a declaration.
bool mayFollowTagStart(QChar unit) {
    return isAsciiLetter(unit) || unit == u'/' || unit == u'!' || unit == u'?';
}

int digitValue(QChar unit, int base) {
    if (unit >= u'0' && unit <= u'9')
        return unit.unicode() - u'0';
    const int value = (unit.unicode() | 0x20) - u'a' + 10;
    return base == 16 && value >= 10 && value < 16 ? value : -1;
}

// The numbers 0x80 to 0x9F mean what they do in windows-1252, where that has something.
char32_t characterOfNumber(char32_t number) {
    static constexpr std::array<char16_t, 32> windows1252 = {
        0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};
    if (number >= 0x80 && number <= 0x9F)
        return windows1252.at(number - 0x80);
    const bool isCharacter =
        number != 0 && number <= QChar::LastValidCodePoint && !QChar::isSurrogate(number);
    return isCharacter ? number : char32_t{QChar::ReplacementCharacter};
}

// Reads "#38;" and the like.
std::optional<Reference> numericReference(QStringView text) {
    const int base = text.size() > 1 && (text[1] == u'x' || text[1] == u'X') ? 16 : 10;
    const qsizetype start = base == 16 ? 2 : 1;
    qsizetype end = start;
    char32_t number = 0;
    for (; end < text.size() && digitValue(text[end], base) >= 0; ++end)
        number = std::min<char32_t>(number * char32_t(base) + char32_t(digitValue(text[end], base)),
                                    QChar::LastValidCodePoint + 1);
    if (end == start)
        return std::nullopt;
    if (end < text.size() && text[end] == u';')
        ++end;
    return Reference{QStringView(QChar::fromUcs4(characterOfNumber(number))).toString(), end};
}

// Reads "amp;", or as much of "ampere" as is a name that may go without a semicolon.
std::optional<Reference> namedReference(QStringView text) {
    QVarLengthArray<char, longestHtmlReferenceName> name;
    const qsizetype longest = std::min(text.size(), longestHtmlReferenceName);
    while (name.size() < longest && isAsciiLetterOrDigit(text[name.size()]))
        name.append(static_cast<char>(text[name.size()].unicode()));
    const QByteArrayView letters(name.constData(), name.size());
    if (name.size() < longest && text[name.size()] == u';') {
        name.append(';');
        const QByteArrayView whole(name.constData(), name.size());
        if (const std::optional<QStringView> found = htmlReferenceText(whole))
            return Reference{found->toString(), whole.size()};
    }
    qsizetype length = std::min(letters.size(), longestHtmlReferenceNameWithoutSemicolon);
    for (; length > 0; --length) {
        if (const std::optional<QStringView> found =
                htmlReferenceText(QByteArrayView(name.constData(), length)))
            return Reference{found->toString(), length};
    }
    return std::nullopt;
}

std::optional<Reference> referenceAt(QStringView text) {
    return text.startsWith(u'#') ? numericReference(text) : namedReference(text);
}

// What not every reader of HTML takes.
bool isLeftOut(char16_t unit) {
    return (unit < 0x20 && unit != u'\t' && unit != u'\n' && unit != u'\f' && unit != u'\r') ||
           unit >= 0xFFFE;
}

class Writer {
public:
    explicit Writer(qsizetype expectedSize) { m_utf8.reserve(expectedSize); }

    void append(QStringView text) {
        const qsizetype size = m_utf8.size();
        m_utf8.resize(size + m_encoder.requiredSpace(text.size()));
        m_utf8.truncate(m_encoder.appendToBuffer(m_utf8.data() + size, text) - m_utf8.constData());
    }

    void appendReference(QStringView text) {
        const char16_t first = text.front().unicode();
        if (isLeftOut(first))
            return;
        if (text.size() > 1 || first >= 0x80)
            append(text);
        else
            m_utf8.append("&#")
                .append(QByteArray::number(first == u'\f' ? u' ' : first))
                .append(';');
    }

    QByteArray take() { return std::move(m_utf8); }

private:
    QByteArray m_utf8;
    QStringEncoder m_encoder{QStringEncoder::Utf8, QStringEncoder::Flag::Stateless};
};

} // namespace

QByteArray withPlainHtmlReferences(QStringView html) {
    Writer writer(html.size() + html.size() / 8);
    const auto isSpecial = [](QChar unit) {
        return unit == u'&' || unit == u'<' || unit == u'\r' || unit == u'\f' ||
               isLeftOut(unit.unicode());
    };
    for (qsizetype index = 0; index < html.size();) {
        const auto special = std::find_if(html.begin() + index, html.end(), isSpecial);
        writer.append(QStringView(html.begin() + index, special));
        index = special - html.begin();
        if (special == html.end())
            break;
        ++index;
        if (*special == u'\r') {
            if (index == html.size() || html[index] != u'\n')
                writer.append(u"\n");
        } else if (*special == u'<') {
            if (index < html.size() && mayFollowTagStart(html[index]))
                writer.append(u"<");
            else
                writer.appendReference(u"<");
        } else if (*special == u'\f') {
            writer.append(u" ");
        } else if (*special == u'&') {
            const std::optional<Reference> reference = referenceAt(html.mid(index));
            writer.appendReference(reference ? QStringView(reference->text) : QStringView(u"&"));
            index += reference ? reference->length : 0;
        }
    }
    return writer.take();
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/StringExtensionsLines.h"

#include "tests/unit/text/RandomText.h"
#include "tests/unit/text/TextModels.h"

#include <limits>

using namespace Qt::StringLiterals;
using namespace StringExtensions;

namespace {

const QString emoji = u"\U0001F600"_s;
constexpr char16_t high = 0xD83D;
constexpr char16_t low = 0xDE00;

QString units(std::initializer_list<char16_t> list) {
    QString text;
    for (const char16_t unit : list)
        text.append(QChar(unit));
    return text;
}

struct TextRow {
    const char *reason;
    QString text;
    QString result;
};

} // namespace

TEST(StringLinesTest, surrogatePairsCountAsOneCharacter) {
    struct {
        const char *reason;
        QString text;
        int count;
    } const rows[] = {
        {"empty", u""_s, 0},
        {"one unit", u"a"_s, 1},
        {"a pair", emoji, 1},
        {"a lone high surrogate and a letter", units({high, u'a'}), 2},
        {"a lone low surrogate", units({low}), 1},
        {"the wrong way round", units({low, high}), 2},
        {"two highs and a low", units({high, high, low}), 2},
        {"a null character", units({u'a', 0, u'b'}), 3},
    };
    for (const auto &row : rows)
        EXPECT_EQ(numberOfUnicodeCharacters(row.text), row.count) << row.reason;
    forRandomCases([](RandomText &random) {
        const QString text = random.text(u"a\xD83D\xDE00");
        EXPECT_EQ(numberOfUnicodeCharacters(text), models::numberOfUnicodeCharacters(text))
            << unitsOf(text);
    });
}

TEST(StringLinesTest, blanksAreTrimmedAtBothEnds) {
    const TextRow rows[] = {
        {"both ends", u" \t a b\r\n"_s, u"a b"_s},
        {"every control below the space", units({0, 1, 31, u'x', 31, 0}), u"x"_s},
        {"no-break spaces", u"\u00A0x\u00A0"_s, u"x"_s},
        {"nothing but blanks", u" \t\u00A0 "_s, u""_s},
        {"delete is not a blank", u"\u007Fx "_s, u"\u007Fx"_s},
    };
    for (const TextRow &row : rows)
        EXPECT_EQ(stringByTrimmingWhitespace(row.text), row.result) << row.reason;
    forRandomCases([](RandomText &random) {
        const QString text = random.text(u" \t\n\u00A0\u2003\u0085a");
        EXPECT_EQ(stringByTrimmingWhitespace(text),
                  models::trimmed(text, [](char16_t unit) { return unit < 33 || unit == 0xA0; }))
            << unitsOf(text);
    });
}

TEST(StringLinesTest, aTextWithoutBlanksAtItsEndsIsTheReceiverItself) {
    for (const QString &text : {u""_s, u"a"_s, u"a b"_s, u"\u2003a"_s, u"a\u2028"_s, u"\u0085a"_s})
        EXPECT_TRUE(isSameObject(stringByTrimmingWhitespace(text), text)) << unitsOf(text);
}

TEST(StringLinesTest, whiteSpaceOfUnicodeIsTrimmed) {
    const TextRow rows[] = {
        {"spaces of every width", u"\u2003\u3000x\u1680\u205F"_s, u"x"_s},
        {"line ends", u"\u0085\u2028x\u2029\v\f\r\n"_s, u"x"_s},
        {"the zero-width space", u"\u200Bx\u200B"_s, u"x"_s},
        {"controls and joiners stay", u"\u0001x\u200D"_s, u"\u0001x\u200D"_s},
        {"nothing else", u"\u3000 "_s, u""_s},
    };
    for (const TextRow &row : rows)
        EXPECT_EQ(trimWhitespace(row.text), row.result) << row.reason;
    forRandomCases([](RandomText &random) {
        const QString text = random.text(u" \t\n\u00A0\u2003\u2028\u0085\u200B\u200Ca");
        const QString trimmed = trimWhitespace(text);
        EXPECT_EQ(trimmed, models::trimmed(text, models::isWhitespaceOrNewline)) << unitsOf(text);
        if (trimmed.size() == text.size()) {
            EXPECT_TRUE(isSameObject(trimmed, text)) << unitsOf(text);
        }
    });
}

TEST(StringLinesTest, whatIsWhiteSpaceAgreesWithUnicodeForEveryUnit) {
    for (int unit = 0; unit <= 0xFFFF; ++unit) {
        const QString text(QChar(static_cast<char16_t>(unit)));
        EXPECT_EQ(trimWhitespace(text).isEmpty(),
                  models::isWhitespaceOrNewline(static_cast<char16_t>(unit)))
            << unit;
    }
}

TEST(StringLinesTest, controlsOfASingleLineBecomeSpaces) {
    const TextRow rows[] = {
        {"one space for each", u"a\r\n\tb"_s, u"a   b"_s},
        {"ends are trimmed", u"\n a\u0001"_s, u"a"_s},
        {"format characters", u"a\u00ADb\u200Dc"_s, u"a b c"_s},
        {"one space for a pair", u"a\U000E0001b"_s, u"a b"_s},
        {"a pair at the ends", u"\U000E0001b\U000E0001"_s, u"b"_s},
        {"the line separator is none", u"a\u2028b"_s, u"a\u2028b"_s},
        {"nothing left", u"\n\u00AD\u3000"_s, u""_s},
        {"lone surrogates stay", units({high, u'\n', low}), units({high, u' ', low})},
    };
    for (const TextRow &row : rows)
        EXPECT_EQ(asSingleLine(row.text), row.result) << row.reason;
    const QString line = u"one line"_s;
    EXPECT_TRUE(isSameObject(asSingleLine(line), line));
    forRandomCases([](RandomText &random) {
        const QString text = random.text(u" \r\n\u0001\u00AD\u200D\u2028\U000E0001a");
        EXPECT_EQ(asSingleLine(text), models::asSingleLine(text)) << unitsOf(text);
    });
}

TEST(StringLinesTest, oneSeparatorCutsTheWholeTextIntoLines) {
    struct {
        const char *reason;
        QString text;
        QStringList lines;
    } const rows[] = {
        {"no separator", u"a"_s, {u"a"_s}},
        {"empty", u""_s, {u""_s}},
        {"line feeds", u"a\n\nb\n"_s, {u"a"_s, u""_s, u"b"_s, u""_s}},
        {"carriage returns", u"a\rb"_s, {u"a"_s, u"b"_s}},
        {"line feeds before carriage returns", u"a\rb\nc"_s, {u"a\rb"_s, u"c"_s}},
        {"one pair, and a line feed after it", u"a\r\nb\nc"_s, {u"a"_s, u"b\nc"_s}},
        {"one pair, and a line feed before it", u"a\nb\r\nc"_s, {u"a\nb"_s, u"c"_s}},
        {"the wrong way round", u"a\n\rb"_s, {u"a"_s, u"\rb"_s}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(arrayOfLines(row.text), row.lines) << row.reason;
    forRandomCases([](RandomText &random) {
        const QString text = random.text(random.number(0, 1) ? u"\r\nab" : u"\rab");
        EXPECT_EQ(arrayOfLines(text), models::arrayOfLines(text)) << unitsOf(text);
    });
}

TEST(StringLinesTest, lineEndsAreReplacedKindByKind) {
    struct {
        const char *reason;
        QString text;
        QString separator;
        QString result;
    } const rows[] = {
        {"all to line feeds", u"a\r\nb\rc\nd"_s, u"\n"_s, u"a\nb\nc\nd"_s},
        {"all to carriage returns", u"a\r\nb\rc\nd"_s, u"\r"_s, u"a\rb\rc\rd"_s},
        {"all away", u"a\r\nb\rc\nd"_s, u""_s, u"abcd"_s},
        {"no separator", u"a\nb"_s, QString(), u"ab"_s},
        {"another text", u"a\r\nb\n"_s, u"--"_s, u"a--b--"_s},
        {"a pair, by itself", u"\r\n"_s, u"\r\n"_s, u"\r\r\n\r\n"_s},
        {"a line feed, by a pair", u"\n"_s, u"\r\n"_s, u"\r\n"_s},
        {"a carriage return, by a pair", u"\r"_s, u"\r\n"_s, u"\r\r\n"_s},
        {"later steps see what earlier ones wrote", u"\r\n"_s, u"\n\r"_s, u"\n\r\n\r\r"_s},
    };
    for (const auto &row : rows)
        EXPECT_EQ(withLineSeparator(row.text, row.separator), row.result) << row.reason;
    forRandomCases([](RandomText &random) {
        const QString text = random.text(u"\r\na");
        const QString separator = random.number(0, 2) ? random.text(u"\r\nx", 3) : u"\r\n"_s;
        const QString result = withLineSeparator(text, separator);
        EXPECT_EQ(result, models::withLineSeparator(text, separator))
            << unitsOf(text) << " by " << unitsOf(separator);
    });
}

TEST(StringLinesTest, aTextWhoseLineEndsAreRightIsTheReceiverItself) {
    const QString lineFeeds = u"a\nb\n"_s;
    EXPECT_TRUE(isSameObject(withLineSeparator(lineFeeds, u"\n"_s), lineFeeds));
    const QString carriageReturns = u"a\rb\r"_s;
    EXPECT_TRUE(isSameObject(withLineSeparator(carriageReturns, u"\r"_s), carriageReturns));
    const QString none = u"ab"_s;
    EXPECT_TRUE(isSameObject(withLineSeparator(none, u"\r\n"_s), none));
}

TEST(StringLinesTest, onlyTheLastEmptyPieceIsLeftOut) {
    struct {
        const char *reason;
        QString text;
        QStringList pieces;
    } const rows[] = {
        {"at every place", u",a,,b,"_s, {u""_s, u"a"_s, u""_s, u"b"_s}},
        {"empty", u""_s, {}},
        {"a separator alone", u","_s, {u""_s}},
        {"no separator", u"ab"_s, {u"ab"_s}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(componentsSeparatedByCharacter(row.text, u','), row.pieces) << row.reason;
    EXPECT_EQ(componentsSeparatedByCharacter(emoji, QChar(low)), QStringList(QString(QChar(high))));
    forRandomCases([](RandomText &random) {
        const QString text = random.text(u",ab");
        EXPECT_EQ(componentsSeparatedByCharacter(text, u','),
                  models::componentsSeparatedByCharacter(text, u','))
            << unitsOf(text);
    });
}

TEST(StringLinesTest, aTextIsRepeated) {
    const QString text = u"ab"_s;
    EXPECT_EQ(repeated(text, 0), QString());
    EXPECT_EQ(repeated(text, -1), QString());
    EXPECT_EQ(repeated(text, std::numeric_limits<std::int32_t>::min()), QString());
    EXPECT_TRUE(isSameObject(repeated(text, 1), text));
    EXPECT_EQ(repeated(text, 3), u"ababab"_s);
    EXPECT_EQ(repeated(QString(), std::numeric_limits<std::int32_t>::max()), QString());
    forRandomCases([](RandomText &random) {
        const QString any = random.text(u"ab", 5);
        const int count = random.number(-2, 70);
        EXPECT_EQ(repeated(any, count), models::repeated(any, count)) << count;
    });
}

TEST(StringLinesTest, aRepetitionBeyondAllMemoryIsEmpty) {
#ifdef VELMORA_SANITIZED
    GTEST_SKIP() << "the sanitizer ends a program that asks for so much";
#endif
    EXPECT_EQ(repeated(QString(1 << 20, u'x'), std::numeric_limits<std::int32_t>::max()),
              QString());
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/StringExtensionsEscapes.h"

#include "tests/unit/text/RandomText.h"
#include "tests/unit/text/TextModels.h"

#include <utility>

using namespace Qt::StringLiterals;
using namespace StringExtensions;

namespace {

struct Row {
    const char *reason;
    QString text;
    QString result;
};

} // namespace

TEST(StringEscapesTest, theFirstMatchIsEscaped) {
    const Row rows[] = {
        {"line feed", u"a\nb"_s, u"a\\nb"_s},
        {"carriage return", u"\r"_s, u"\\r"_s},
        {"tab", u"a\t"_s, u"a\\t"_s},
        {"backslash", u"a\\b"_s, u"a\\\\b"_s},
    };
    for (const Row &row : rows)
        EXPECT_EQ(stringByEscapingCharacters(row.text, ZTEscapeCharacters), row.result)
            << row.reason;
    EXPECT_EQ(stringByEscapingCharacters(u"say \"x"_s, u"\""_s), u"say \\\"x"_s);
}

TEST(StringEscapesTest, laterMatchesFallOnWhatStandsAtTheirIndexByThen) {
    const Row rows[] = {
        {"the unit behind a match is passed over", u"\n\n"_s, u"\\n\n"_s},
        {"one further on in the result", u"a\nb\nc"_s, u"a\\n\\b\nc"_s},
        {"the third is two further on", u"\na\nb\n"_s, u"\\n\\a\\n\\b\n"_s},
        {"the search ends with the receiver", u"a\nb\n"_s, u"a\\n\\b\n"_s},
    };
    for (const Row &row : rows)
        EXPECT_EQ(stringByEscapingCharacters(row.text, u"\n"_s),
                  models::stringByEscapingCharacters(row.text, u"\n"_s))
            << row.reason;
    EXPECT_EQ(stringByEscapingCharacters(rows[0].text, u"\n"_s), rows[0].result);
    EXPECT_EQ(stringByEscapingCharacters(rows[1].text, u"\n"_s), rows[1].result);
    EXPECT_EQ(stringByEscapingCharacters(rows[3].text, u"\n"_s), rows[3].result);
}

TEST(StringEscapesTest, aMatchOfTwoUnitsReplacesTwo) {
    // The second match is the emoji at index 3, where a tab stands by then.
    EXPECT_EQ(stringByEscapingCharacters(u"\\x\t\U0001F600"_s, u"\\\U0001F600"_s),
              u"\\\\x\\t\xDE00"_s);
}

TEST(StringEscapesTest, aTextWithoutSuchCharactersIsTheReceiverItself) {
    const QString text = u"plain"_s;
    EXPECT_TRUE(isSameObject(stringByEscapingCharacters(text, ZTEscapeCharacters), text));
    EXPECT_TRUE(isSameObject(stringByEscapingCharacters(text, u""_s), text));
    const QString emoji = u"\U0001F600"_s;
    EXPECT_TRUE(isSameObject(stringByEscapingCharacters(emoji, u"\xDE00"_s), emoji))
        << "half of a pair is not in the set";
}

TEST(StringEscapesTest, escapingFollowsTheEditsOfAWorkingCopy) {
    forRandomCases([](RandomText &random) {
        const QString text = random.text(u"\n\r\t\\ab\U0001F600");
        const QString set = random.number(0, 1) ? QString(ZTEscapeCharacters)
                                                : random.text(u"\n\ta\\\U0001F600", 6);
        EXPECT_EQ(stringByEscapingCharacters(text, set),
                  models::stringByEscapingCharacters(text, set))
            << unitsOf(text) << " with " << unitsOf(set);
    });
}

TEST(StringEscapesTest, expandingUndoesTheEscapingOfOneCharacter) {
    forRandomCases([](RandomText &random) {
        QString text = random.text(u"abc");
        for (const QChar special : QString(ZTEscapeCharacters))
            text.remove(special);
        text.insert(random.number(0, static_cast<int>(text.size())),
                    ZTEscapeCharacters[random.number(0, 3)]);
        const QString escaped = stringByEscapingCharacters(text, ZTEscapeCharacters);
        EXPECT_EQ(stringByExpandingEscapedCharacters(escaped, ZTEscapeCharacters), text)
            << unitsOf(text);
    });
}

TEST(StringEscapesTest, escapesOfTheSetAreExpanded) {
    struct {
        const char *reason;
        QString text;
        QString set;
        QString result;
    } const rows[] = {
        {"the default set", u"a\\nb\\rc\\td\\\\e"_s, ZTEscapeCharacters, u"a\nb\rc\td\\e"_s},
        {"a control stands for its letter", u"\\n\\t"_s, u"\n"_s, u"\n\\t"_s},
        {"and not for itself", u"\\\n"_s, u"\n"_s, u"\\\n"_s},
        {"a letter by itself", u"\\n"_s, u"n"_s, u"\n"_s},
        {"another character loses its backslash", u"\\\"x\\\""_s, u"\""_s, u"\"x\""_s},
        {"a backslash that was kept begins nothing", u"\\\\n"_s, ZTEscapeCharacters, u"\\n"_s},
        {"the unit behind an escape may begin one", u"\\n\\n"_s, ZTEscapeCharacters, u"\n\n"_s},
        {"a backslash that is no escape may be followed by one", u"\\\\n"_s, u"\n"_s, u"\\\n"_s},
        {"a backslash at the end", u"a\\"_s, ZTEscapeCharacters, u"a\\"_s},
        {"a backslash alone", u"\\"_s, ZTEscapeCharacters, u"\\"_s},
    };
    for (const auto &row : rows)
        EXPECT_EQ(stringByExpandingEscapedCharacters(row.text, row.set), row.result) << row.reason;
}

TEST(StringEscapesTest, theDefaultSetIsKnownByItsIdentity) {
    EXPECT_EQ(ZTEscapeCharacters, u"\n\r\t\\"_s);
    const QString copy = ZTEscapeCharacters;
    const QString sameContent = u"\n\r\t\\"_s;
    // With either, the letters are recognised, and the backslash.
    const QString text = u"\\n\\\\"_s;
    EXPECT_EQ(stringByExpandingEscapedCharacters(text, copy), u"\n\\"_s);
    EXPECT_EQ(stringByExpandingEscapedCharacters(text, sameContent), u"\n\\"_s);
    EXPECT_TRUE(isSameObject(copy, ZTEscapeCharacters));
    EXPECT_FALSE(isSameObject(sameContent, ZTEscapeCharacters));
}

TEST(StringEscapesTest, expandingFollowsTheEditsOfAWorkingCopy) {
    forRandomCases([](RandomText &random) {
        const QString text = random.text(u"\\\\\\nrtx\n\U0001F600");
        const QString set = random.text(u"\n\r\tnrtx\\\U0001F600", 5);
        const QString result = stringByExpandingEscapedCharacters(text, set);
        EXPECT_EQ(result, models::stringByExpandingEscapedCharacters(text, set))
            << unitsOf(text) << " with " << unitsOf(set);
        if (result.size() == text.size()) {
            EXPECT_TRUE(isSameObject(result, text)) << unitsOf(text);
        }
        EXPECT_EQ(stringByExpandingEscapedCharacters(text, ZTEscapeCharacters),
                  models::stringByExpandingEscapedCharacters(text, u"nrt\\"_s))
            << unitsOf(text);
    });
}

TEST(StringEscapesTest, controlCharactersAreExpandedWithOrWithoutPairsOfBackslashes) {
    struct {
        const char *reason;
        QString text;
        QString expanded;
        QString withPairsKept;
    } const rows[] = {
        {"all of them", u"\\r\\t\\n"_s, u"\r\t\n"_s, u"\r\t\n"_s},
        {"a pair", u"\\\\"_s, u"\\"_s, u"\\\\"_s},
        {"a pair and a letter", u"\\\\n"_s, u"\\n"_s, u"\\\\n"_s},
        {"a pair and an escape", u"\\\\\\n"_s, u"\\\n"_s, u"\\\\\n"_s},
        {"another character", u"\\x\\n"_s, u"\\x\n"_s, u"\\x\n"_s},
        {"at the end", u"n\\"_s, u"n\\"_s, u"n\\"_s},
        {"too short", u"\\"_s, u"\\"_s, u"\\"_s},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(stringByExpandingEscapedControlCharacters(row.text), row.expanded) << row.reason;
        EXPECT_EQ(stringByExpandingEscapedControlCharactersIncludingBackslash(
                      row.text, EscapedBackslash::Kept),
                  row.withPairsKept)
            << row.reason;
    }
    forRandomCases([](RandomText &random) {
        const QString text = random.text(u"\\\\\\nrtx");
        for (const auto &[backslash, flag] : {std::pair(EscapedBackslash::Expanded, true),
                                              std::pair(EscapedBackslash::Kept, false)}) {
            const QString result =
                stringByExpandingEscapedControlCharactersIncludingBackslash(text, backslash);
            EXPECT_EQ(result, models::expandedControlCharacters(text, flag)) << unitsOf(text);
            if (result.size() == text.size()) {
                EXPECT_TRUE(isSameObject(result, text)) << unitsOf(text);
            }
        }
    });
}

TEST(StringEscapesTest, aLiteralOfSourceCodeGivesItsText) {
    const Row rows[] = {
        {"one letter", u"@\"a\""_s, u"a"_s},
        {"two units", u"@\""_s, u""_s},
        {"three units", u"@\"\""_s, u""_s},
        {"empty", u""_s, u""_s},
        {"escapes", u"@\"\\\"a\\r\\n\\tb\""_s, u"\"a\r\n\tb"_s},
        {"a pair of backslashes", u"@\"a\\\\b\""_s, u"a\\b"_s},
        {"pairs first", u"@\"\\\\n\""_s, u"\n"_s},
        {"an unknown escape", u"@\"\\x\""_s, u"\\x"_s},
        {"what is cut off is not looked at", u"xyaz"_s, u"a"_s},
    };
    for (const Row &row : rows)
        EXPECT_EQ(stringWithObjCString(row.text), row.result) << row.reason;
    forRandomCases([](RandomText &random) {
        const QString literal = u"@\""_s + random.text(u"\\\\\\\"nrtx") + u'"';
        EXPECT_EQ(stringWithObjCString(literal), models::stringWithObjCString(literal))
            << unitsOf(literal);
    });
    const QString text = u"a\"b"_s;
    EXPECT_TRUE(isSameObject(objCStringWithString(text), text));
}

TEST(StringEscapesTest, percentEscapesAreExpanded) {
    const Row rows[] = {
        {"plain", u"a%20b"_s, u"a b"_s},
        {"either case", u"%c3%A9"_s, u"\u00E9"_s},
        {"four bytes", u"%F0%9F%98%80"_s, u"\U0001F600"_s},
        {"a null character", u"a%00b"_s, u"a\0b"_s},
        {"a mark", u"%EF%BB%BFa"_s, u"\uFEFFa"_s},
        {"other characters stay", u"\u00E9%20\xD83D"_s, u"\u00E9 \xD83D"_s},
        {"once only", u"%2520"_s, u"%20"_s},
    };
    for (const Row &row : rows)
        EXPECT_EQ(stringWithExpandedPercentEscapes(row.text), row.result) << row.reason;
    for (const QString &text :
         {u"100%"_s, u"%2"_s, u"%zz"_s, u"%+1"_s, u"% 1"_s, u"%20%C3"_s, u"%C3a%A9"_s, u"%C0%80"_s,
          u"%ED%A0%80"_s, u"%F4%90%80%80"_s, u"%E0%80%80"_s, u"%80"_s, u"none"_s})
        EXPECT_TRUE(isSameObject(stringWithExpandedPercentEscapes(text), text)) << unitsOf(text);
    forRandomCases([](RandomText &random) {
        QString text = random.text(u"ab%", random.number(0, 1) ? 3 : 8);
        for (int count = random.number(0, 3); count > 0; --count)
            text.insert(
                random.number(0, static_cast<int>(text.size())),
                models::addedPercentEscapes(QString(QChar(random.number(0x80, 0xD7FF)))).value());
        EXPECT_EQ(stringWithExpandedPercentEscapes(text),
                  models::expandedPercentEscapes(text).value_or(text))
            << unitsOf(text);
    });
}

TEST(StringEscapesTest, whatAnAddressCannotHoldIsPercentEscaped) {
    const Row rows[] = {
        {"a space", u"a b"_s, u"a%20b"_s},
        {"UTF-8", u"\u00E9\u20AC\U0001F600"_s, u"%C3%A9%E2%82%AC%F0%9F%98%80"_s},
        {"not twice", u"a%20b"_s, u"a%20b"_s},
        {"a percent sign that is no escape", u"100%"_s, u"100%25"_s},
        {"an escaped percent sign", u"%25"_s, u"%25"_s},
        {"an escape that needs none", u"%41"_s, u"A"_s},
        {"brackets and the like", u"\"#<>[\\]^`{|}"_s, u"%22%23%3C%3E%5B%5C%5D%5E%60%7B%7C%7D"_s},
        {"controls", u"\n\u007F"_s, u"%0A%7F"_s},
    };
    for (const Row &row : rows)
        EXPECT_EQ(stringWithPercentEscapes(row.text), row.result) << row.reason;
    for (const QString &text : {u"http://example.org/a?b=c&d=(e)~f*'!$,;@+"_s, u""_s,
                                u"lone \xD83D surrogate"_s, u"%20\xDE00"_s})
        EXPECT_TRUE(isSameObject(stringWithPercentEscapes(text), text)) << unitsOf(text);
    forRandomCases([](RandomText &random) {
        QString text = random.text(u" a%\u00E9#/", 8);
        if (random.number(0, 1))
            text = QString::fromUtf8(text.toUtf8()); // without lone surrogates
        const QString plain = models::expandedPercentEscapes(text).value_or(text);
        EXPECT_EQ(stringWithPercentEscapes(text), models::addedPercentEscapes(plain).value_or(text))
            << unitsOf(text);
    });
}

TEST(StringEscapesTest, percentEscapesComeBack) {
    forRandomCases([](RandomText &random) {
        // A text without escapes and lone surrogates.
        QString text = QString::fromUtf8(random.text(u" a\u00E9#/\U0001F600").toUtf8());
        text.remove(u'%');
        EXPECT_EQ(stringWithExpandedPercentEscapes(stringWithPercentEscapes(text)), text)
            << unitsOf(text);
    });
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Where nothing changes, nothing is allocated.

#include "ZTStuff/CocoaExtensions/StringExtensions.h"

#include "tests/unit/text/AllocationCount.h"
#include "tests/unit/text/RandomText.h"

#include <cmath>
#include <functional>
#include <memory>

using namespace Qt::StringLiterals;
using namespace StringExtensions;

namespace {

struct Row {
    const char *name;
    QString receiver;
    std::function<QString(const QString &)> operation;
};

} // namespace

TEST(StringAllocationTest, allocationsAreCounted) {
    const long before = allocationCount();
    QString text(100, u'x');
    EXPECT_EQ(allocationCount(), before + 1);
    text[0] = u'y';
    EXPECT_EQ(allocationCount(), before + 1);
    const auto number = std::make_unique<int>(1);
    EXPECT_EQ(allocationCount(), before + 2 * *number);
}

TEST(StringAllocationTest, theReceiverItselfCostsNothing) {
    const QString plain = u"plain text, \u00E9\u4E00\U0001F600 and [more]"_s;
    const QString address = u"http://example.org/a?b=c"_s;
    const QString tone = u"\U0001F44B\U0001F3FC"_s;
    const QString separator = u"\n"_s;
    const QString set = u"\n\u4E01\""_s;
    const Row rows[] = {
        {"trimWhitespace", plain, [](const QString &text) { return trimWhitespace(text); }},
        {"stringByTrimmingWhitespace", plain,
         [](const QString &text) { return stringByTrimmingWhitespace(text); }},
        {"asSingleLine", plain, [](const QString &text) { return asSingleLine(text); }},
        {"withLineSeparator", u"a\nb\n"_s,
         [&](const QString &text) { return withLineSeparator(text, separator); }},
        {"repeated", plain, [](const QString &text) { return repeated(text, 1); }},
        {"stringByEscapingCharacters", plain,
         [&](const QString &text) { return stringByEscapingCharacters(text, set); }},
        {"stringByExpandingEscapedCharacters, default set", u"a\\b"_s,
         [](const QString &text) {
             return stringByExpandingEscapedCharacters(text, ZTEscapeCharacters);
         }},
        {"stringByExpandingEscapedCharacters", u"a\\b"_s,
         [&](const QString &text) { return stringByExpandingEscapedCharacters(text, set); }},
        {"stringByExpandingEscapedControlCharacters", u"a\\b"_s,
         [](const QString &text) { return stringByExpandingEscapedControlCharacters(text); }},
        {"stringByExpandingEscapedControlCharactersIncludingBackslash", u"a\\\\b"_s,
         [](const QString &text) {
             return stringByExpandingEscapedControlCharactersIncludingBackslash(
                 text, EscapedBackslash::Kept);
         }},
        {"stringWithPercentEscapes", address,
         [](const QString &text) { return stringWithPercentEscapes(text); }},
        {"stringWithExpandedPercentEscapes", plain,
         [](const QString &text) { return stringWithExpandedPercentEscapes(text); }},
        {"objCStringWithString", plain,
         [](const QString &text) { return objCStringWithString(text); }},
        {"emojiStringWithSkinColor, the same", tone,
         [](const QString &text) { return emojiStringWithSkinColor(text, 3); }},
        {"emojiStringWithSkinColor, none", plain,
         [](const QString &text) { return emojiStringWithSkinColor(text, 0); }},
        {"stringByExpandingHTMLEntities", plain,
         [](const QString &text) { return stringByExpandingHTMLEntities(text); }},
    };
    for (const Row &row : rows) {
        const long before = allocationCount();
        const QString result = row.operation(row.receiver);
        EXPECT_EQ(allocationCount(), before) << row.name;
        EXPECT_TRUE(isSameObject(result, row.receiver)) << row.name;
    }
}

TEST(StringAllocationTest, questionsCostNothing) {
    const QString text = u"file 10, Datei \u00C9 and more"_s;
    const QString other = u"FILE 010, datei \u00E9 and mores"_s;
    const QString pattern = u"f*10*and*"_s;
    const QString empty;
    const long before = allocationCount();
    EXPECT_EQ(numberOfUnicodeCharacters(text), text.size());
    EXPECT_EQ(numericValue(text), 0);
    EXPECT_FALSE(booleanValue(text));
    EXPECT_FALSE(isIntegerNumber(text));
    EXPECT_EQ(numericCompare(text, other), Ordering::Descending);
    EXPECT_EQ(caseInsensitiveNumericCompare(text, other), Ordering::Ascending);
    EXPECT_TRUE(matchesWildcardPattern(text, pattern));
    EXPECT_EQ(longCharacterAtIndex(text, 0), U'f');
    char32_t sum = 0;
    forUTF32Characters(text, [&sum](char32_t scalar) { sum += scalar; });
    EXPECT_NE(sum, 0U);
    EXPECT_TRUE(isVirtualCharacter(0xA0000));
    EXPECT_NE(utf32CharactersForVirtualCharacter(0xA0000), nullptr);
    EXPECT_TRUE(std::isnan(reasonableTextFactor(empty)));
    EXPECT_EQ(repeated(text, 0), empty);
    EXPECT_EQ(arrayOfLines(empty).size(), 1);
    const long afterwards = allocationCount();
    // The list of one line is the only one.
    EXPECT_EQ(afterwards, before + 1);
}

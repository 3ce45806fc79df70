// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/StringExtensionsValues.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/LiteralSearch.h"
#include "ZTStuff/ZTClasses/ZTRegularExpression.h"

#include "tests/fakes/FakePlatform.h"
#include "tests/unit/text/RandomText.h"
#include "tests/unit/text/TextModels.h"

using namespace Qt::StringLiterals;
using namespace StringExtensions;

TEST(StringMatchingTest, aStarMatchesAnyText) {
    struct {
        const char *reason;
        QString text;
        QString pattern;
        bool matches;
    } const rows[] = {
        {"a lone star, anything", u"anything"_s, u"*"_s, true},
        {"a lone star, nothing", u""_s, u"*"_s, true},
        {"prefix and suffix may not overlap", u"a"_s, u"a*a"_s, false},
        {"prefix and suffix side by side", u"aa"_s, u"a*a"_s, true},
        {"nothing before the suffix", u".txt"_s, u"*.txt"_s, true},
        {"without a star, equality", u"abc"_s, u"abc"_s, true},
        {"without a star, no prefix", u"abcd"_s, u"abc"_s, false},
        {"case counts", u"A.TXT"_s, u"*.txt"_s, false},
        {"nothing else is special", u"a?[b]"_s, u"a?*]"_s, true},
        {"a question mark is itself", u"ab"_s, u"a?*"_s, false},
        {"parts in their order", u"abcabc"_s, u"*b*a*c"_s, true},
        {"parts out of order", u"abc"_s, u"*b*a*"_s, false},
        {"parts may not overlap", u"aba"_s, u"*ab*ba*"_s, false},
        {"the suffix lies behind the parts", u"ab"_s, u"*ab*b"_s, false},
        {"several stars are one", u"ab"_s, u"a***b"_s, true},
        {"empty pattern, empty text", u""_s, u""_s, true},
        {"empty pattern", u"a"_s, u""_s, false},
        {"line ends", u"a\nb"_s, u"a*b"_s, true},
        {"the star is no prefix", u"*a"_s, u"*a"_s, true},
    };
    for (const auto &row : rows)
        EXPECT_EQ(matchesWildcardPattern(row.text, row.pattern), row.matches) << row.reason;
    forRandomCases([](RandomText &random) {
        const QString text = random.text(u"aab", 10);
        QString pattern = random.number(0, 1) ? text : random.text(u"aab**", 8);
        // Often a pattern that fits, or nearly so.
        for (int count = random.number(0, 3); count > 0 && !pattern.isEmpty(); --count)
            pattern.replace(random.number(0, static_cast<int>(pattern.size()) - 1),
                            random.number(0, 3), u'*');
        EXPECT_EQ(matchesWildcardPattern(text, pattern),
                  models::matchesWildcardPattern(text, pattern))
            << unitsOf(text) << " by " << unitsOf(pattern);
    });
}

TEST(LiteralSearchTest, theFirstPlaceIsFoundHoweverManyNearlyMatch) {
    forRandomCases([](RandomText &random) {
        const QString text = QString(random.number(0, 800), u'a') + random.text(u"aab", 3000);
        const QString part = QString(random.number(0, 300), u'a') + random.text(u"aab", 4);
        const int from = random.number(0, static_cast<int>(text.size()));
        EXPECT_EQ(literalIndexOf(text, part, from),
                  QStringView(text).mid(from).toString().indexOf(part) < 0
                      ? -1
                      : from + QStringView(text).mid(from).toString().indexOf(part));
    });
}

TEST(RegexReplacementTest, matchesAreReplacedByTheTemplate) {
    const FakePlatform platform;
    struct {
        const char *reason;
        QString text;
        QString pattern;
        QString replacement;
        QString result;
    } const rows[] = {
        {"every match", u"a1b22c"_s, u"[0-9]+"_s, u"#"_s, u"a#b#c"_s},
        {"groups", u"key=value"_s, u"(\\w+)=(\\w+)"_s, u"$2=$1"_s, u"value=key"_s},
        {"the whole match", u"ab"_s, u"b"_s, u"<$0>"_s, u"a<b>"_s},
        {"an escaped dollar", u"a"_s, u"a"_s, u"\\$0"_s, u"$0"_s},
        {"an escaped backslash", u"a"_s, u"a"_s, u"\\\\"_s, u"\\"_s},
        {"a needless backslash", u"a"_s, u"a"_s, u"\\n"_s, u"n"_s},
        {"a backslash at the end", u"a"_s, u"a"_s, u"x\\"_s, u"x"_s},
        {"a dollar without a number", u"a"_s, u"a"_s, u"$x$"_s, u"$x$"_s},
        {"no such group", u"a"_s, u"a"_s, u"<$1>"_s, u"<>"_s},
        {"digits as far as there are groups", u"a"_s, u"(a)"_s, u"$10"_s, u"a0"_s},
        {"two digits", u"abcdefghijk"_s, u"(a)(b)(c)(d)(e)(f)(g)(h)(i)(j)(k)"_s, u"$11$1"_s,
         u"ka"_s},
        {"a group that took no part", u"b"_s, u"(a)?b"_s, u"<$1>"_s, u"<>"_s},
        {"empty matches", u"ab"_s, u"x*"_s, u"-"_s, u"-a-b-"_s},
        {"words of Unicode", u"can't stop"_s, u"\\b.+?\\b"_s, u"<$0>"_s, u"<can't>< ><stop>"_s},
        {"a line end is not any character", u"a\nb"_s, u"a.b"_s, u"x"_s, u"a\nb"_s},
        {"look-behind", u"ab cb"_s, u"(?<=a)b"_s, u"x"_s, u"ax cb"_s},
        {"a pair is one character", u"\U0001F600"_s, u"."_s, u"x"_s, u"x"_s},
        {"an empty template", u"a1b"_s, u"[0-9]"_s, u""_s, u"ab"_s},
    };
    for (const auto &row : rows)
        EXPECT_EQ(
            stringByReplacingOccurrencesOfRegexPattern(row.text, row.pattern, row.replacement),
            row.result)
            << row.reason;
    const QString text = u"plain"_s;
    EXPECT_TRUE(
        isSameObject(stringByReplacingOccurrencesOfRegexPattern(text, u"x"_s, u"y"_s), text));
    EXPECT_TRUE(platform.log.lines().isEmpty());
}

TEST(RegexReplacementTest, aMalformedPatternIsLoggedEachTime) {
    const FakePlatform platform;
    const QString text = u"a(b"_s;
    for (int call = 1; call <= 2; ++call) {
        EXPECT_TRUE(
            isSameObject(stringByReplacingOccurrencesOfRegexPattern(text, u"("_s, u"x"_s), text));
        EXPECT_EQ(platform.log.lines().size(), call);
        EXPECT_TRUE(platform.log.lines().back().startsWith(u"Regular expression error: "_s));
    }
    EXPECT_TRUE(platform.log.lines().back().contains(u"U_REGEX_MISMATCHED_PAREN"_s));
}

TEST(RegexReplacementTest, aSearchThatWouldNotEndIsGivenUp) {
    const FakePlatform platform;
    const QString text = QString(40, u'a') + u'b';
    EXPECT_TRUE(
        isSameObject(stringByReplacingOccurrencesOfRegexPattern(text, u"(a+)+$"_s, u"x"_s), text));
    ASSERT_EQ(platform.log.lines().size(), 1);
    EXPECT_TRUE(platform.log.lines()[0].contains(u"U_REGEX_TIME_OUT"_s));
}

TEST(RegexReplacementTest, replacingIsFindingAndPuttingTogether) {
    const FakePlatform platform;
    forRandomCases([](RandomText &random) {
        const QString text = random.text(u"ab,,");
        // Every run of commas by its length in dots.
        QString expected = text;
        expected.replace(u',', u'.');
        EXPECT_EQ(stringByReplacingOccurrencesOfRegexPattern(text, u","_s, u"."_s), expected)
            << unitsOf(text);
        EXPECT_EQ(stringByReplacingOccurrencesOfRegexPattern(text, u"(,+)"_s, u"$1"_s), text)
            << unitsOf(text);
    });
}

TEST(RegexReplacementTest, withoutRegularExpressionsTheReceiverIsTheAnswer) {
    const FakePlatform platform;
    const ZTRegularExpression::ScopedClassLookUp none(
        [](const char * /*name*/) -> const RegularExpressionClass * { return nullptr; });
    EXPECT_FALSE(ZTRegularExpression::regexAvailable());
    EXPECT_EQ(ZTRegularExpression::regularExpressionWithPattern(u"a"_s, {}, nullptr), nullptr);
    const QString text = u"a"_s;
    for (int call = 0; call < 2; ++call)
        EXPECT_TRUE(
            isSameObject(stringByReplacingOccurrencesOfRegexPattern(text, u"a"_s, u"b"_s), text));
    EXPECT_EQ(
        platform.log.lines(),
        QStringList(u"Regular expressions are not available (require OS X 10.7 or newer)."_s));
}

TEST(ZTRegularExpressionTest, theClassIsLookedUpOnceByItsName) {
    static int lookUps = 0;
    static QByteArray name;
    lookUps = 0;
    const RegularExpressionClass *const native = ZTRegularExpression::regexClass();
    ASSERT_NE(native, nullptr);
    static const RegularExpressionClass *answer = native;
    {
        const ZTRegularExpression::ScopedClassLookUp counted([](const char *asked) {
            ++lookUps;
            name = asked;
            return answer;
        });
        EXPECT_EQ(ZTRegularExpression::regexClass(), native);
        EXPECT_TRUE(ZTRegularExpression::regexAvailable());
        EXPECT_EQ(lookUps, 1);
        EXPECT_EQ(name, "NSRegularExpression");
    }
    EXPECT_EQ(ZTRegularExpression::regexClass(), native);
}

TEST(ZTRegularExpressionTest, optionsCount) {
    using Option = RegularExpressionOption;
    struct {
        const char *reason;
        RegularExpressionOptions options;
        QString text;
        QString pattern;
        QString result;
    } const rows[] = {
        {"none", {}, u"A a"_s, u"a"_s, u"A x"_s},
        {"case", Option::CaseInsensitive, u"A a"_s, u"a"_s, u"x x"_s},
        {"comments", Option::AllowCommentsAndWhitespace, u"ab"_s, u"a b # both"_s, u"x"_s},
        {"literal", Option::IgnoreMetacharacters, u"a.b a+b"_s, u"."_s, u"axb a+b"_s},
        {"dots", Option::DotMatchesLineSeparators, u"a\nb"_s, u"a.b"_s, u"x"_s},
        {"anchors", Option::AnchorsMatchLines, u"a\na"_s, u"^a$"_s, u"x\nx"_s},
        {"line ends", Option::UseUnixLineSeparators, u"a\rb"_s, u"a.b"_s, u"x"_s},
        {"two of them", Option::CaseInsensitive | Option::AnchorsMatchLines, u"A\na"_s, u"^a"_s,
         u"x\nx"_s},
    };
    for (const auto &row : rows) {
        QString error;
        const auto expression =
            ZTRegularExpression::regularExpressionWithPattern(row.pattern, row.options, &error);
        ASSERT_NE(expression, nullptr) << row.reason;
        EXPECT_EQ(expression->stringByReplacingMatches(row.text, u"x"_s, &error), row.result)
            << row.reason;
    }
}

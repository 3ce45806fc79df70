// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "PropertyListTestSupport.h"

#include "Platform/linux/OldPropertyListReader.h"
#include "Platform/linux/PropertyListLimits.h"

#include <gtest/gtest.h>

#include <ostream>

namespace {

struct Row {
    const char *reason;
    const char *text; // UTF-8
    const char *expected;
};

std::string rowName(const testing::TestParamInfo<Row> &row) {
    return row.param.reason;
}

void PrintTo(const Row &row, std::ostream *stream) {
    *stream << row.reason;
}

class OldPropertyList : public testing::TestWithParam<Row> {};

TEST_P(OldPropertyList, isRead) {
    EXPECT_EQ(describe(zt::parsePropertyList(GetParam().text)), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Values, OldPropertyList,
    testing::Values(
        Row{"aDictionary", "{ a = b; c = \"d e\"; }", R"({a="b";c="d e"})"},
        Row{"anEmptyDictionary", "{}", "{}"},
        Row{"theLastSemicolonMayBeMissing", "{ a = b }", R"({a="b"})"},
        Row{"aKeyAloneStandsForItself", "{ a; b = c; }", R"({a="a";b="c"})"},
        Row{"quotedKeys", "{ \"a b\" = c; 'd' = e; }", R"({a b="c";d="e"})"},
        Row{"theLastOfTwoEqualKeysCounts", "{ a = 1; a = 2; }", R"({a="2"})"},
        Row{"anArray", "( a, \"b\", (c) )", R"(("a","b",("c")))"}, Row{"anEmptyArray", "()", "()"},
        Row{"aCommaAtTheEndOfAnArray", "( a, b, )", R"(("a","b"))"},
        Row{"data", "<0fbd77 1c 2735AE>", "<0fbd771c2735ae>"}, Row{"emptyData", "<>", "<>"},
        Row{"aTextAlone", "text", R"("text")"}, Row{"anEmptyText", "\"\"", R"("")"},
        Row{"numbersStayTexts", "{ v = 1.5; }", R"({v="1.5"})"},
        Row{"unquotedPathsAndAddresses", "( /usr/lib, http://a.b/c?d, com.x-y_z, $a, 100% )",
            R"(("/usr/lib","http://a.b/c?d","com.x-y_z","$a","100%"))"},
        Row{"unquotedLettersOfAnyScript", "{ n\xC3\xA4me = \xE6\x97\xA5; }",
            "{n\xC3\xA4me=\"\xE6\x97\xA5\"}"},
        Row{"pairsWithoutBraces", "/* strings */\n\"a\" = \"b\";\nc = d;\ne;\n",
            R"({a="b";c="d";e="e"})"},
        Row{"onePairWithoutSemicolon", "a = b", R"({a="b"})"}, Row{"anInteger", "<*I-42>", "-42"},
        Row{"aReal", "<*R1.5>", "1.5r"}, Row{"truths", "(<*BY>, <*BN>)", "(true,false)"},
        Row{"aDate", "<*D2023-11-14 23:13:20 +0100>", "2023-11-14T22:13:20Z"}),
    rowName);

INSTANTIATE_TEST_SUITE_P(
    Comments, OldPropertyList,
    testing::Values(Row{"toTheEndOfTheLine", "{ // a = 1;\n b = 2; // x\r c = 3; }",
                        R"({b="2";c="3"})"},
                    Row{"acrossLines", "/*\n*/{ a /**/ = /* ; */ b; }/* end */", R"({a="b"})"},
                    Row{"notInsideOfQuotes", "\"/* a */ // b\"", R"("/* a */ // b")"},
                    Row{"atTheVeryEnd", "a //", R"("a")"}),
    rowName);

INSTANTIATE_TEST_SUITE_P(
    Escapes, OldPropertyList,
    testing::Values(
        Row{"controlCharacters", R"("\a\b\f\n\r\t\v")", "\"\a\b\f\n\r\t\v\""},
        Row{"quotesAndBackslashes", R"("\"\\\'")", R"(""\'")"},
        Row{"theOtherKindOfQuote", R"('a"b')", R"("a"b")"},
        Row{"octalAscii", R"("\101\60\7")", "\"A0\a\""},
        Row{"octalBeyondAsciiIsNextStep", R"("\341\200\256")", "\"\xC3\x86\xC2\xA0\xEF\xAC\x81\""},
        Row{"octalThatStandsForNothing", R"("\376\377")", "\"\xEF\xBF\xBD\xEF\xBF\xBD\""},
        Row{"octalEndsAfterThreeDigits", R"("\1011")", R"("A1")"},
        Row{"unicode", R"("\U00e9\u65E5\Ud83d\ude00")", "\"\xC3\xA9\xE6\x97\xA5\xF0\x9F\x98\x80\""},
        Row{"unicodeWithFewerDigits", R"("\Ue9z")", "\"\xC3\xA9z\""},
        Row{"unicodeWithoutDigits", R"("\Ux")", R"("Ux")"},
        Row{"aNeedlessBackslash", R"("\q")", R"("q")"},
        Row{"aLineEndIsKept", "\"a\\\nb\"", "\"a\nb\""}),
    rowName);

INSTANTIATE_TEST_SUITE_P(
    Broken, OldPropertyList,
    testing::Values(
        Row{"nothing", "", "failed: line 1: it holds no value"},
        Row{"onlyAComment", "// a\n\n", "failed: line 3: it holds no value"},
        Row{"anUnclosedDictionary", "{\na = b;\n",
            "failed: line 3: it ends in the middle of a value"},
        Row{"anUnclosedArray", "(a,\n b",
            "failed: line 2: a comma or a closing parenthesis is missing"},
        Row{"anUnclosedText", "\"a\nb", "failed: line 2: a quoted text is not closed"},
        Row{"aBackslashAtTheEnd", "\"a\\", "failed: line 1: a quoted text is not closed"},
        Row{"unclosedData", "<00", "failed: line 1: data is not closed"},
        Row{"anOddNumberOfDigits", "<000>", "failed: line 1: data has an odd number of digits"},
        Row{"dataThatIsNone", "<0g>",
            "failed: line 1: a character in the data is no hexadecimal digit"},
        Row{"anUnclosedComment", "{ /* a = b; }", "failed: line 1: a comment is not closed"},
        Row{"aMissingSemicolon", "{ a = b\r\n c = d; }", "failed: line 2: a semicolon is missing"},
        Row{"aMissingValue", "{ a = ; }", "failed: line 1: an unexpected character"},
        Row{"aMissingComma", "( a b )",
            "failed: line 1: a comma or a closing parenthesis is missing"},
        Row{"aDictionaryAsKey", "{ {} = b; }", "failed: line 1: an unexpected character"},
        Row{"somethingAfterTheValue", "{} {}", "failed: line 1: something follows the value"},
        Row{"twoTexts", "a b", "failed: line 1: something follows the value"},
        Row{"anUnknownType", "<*X1>", "failed: line 1: a typed value is malformed"},
        Row{"anIntegerThatIsNone", "<*I1a>", "failed: line 1: a typed value is malformed"},
        Row{"aDateThatIsNone", "<*D2023-13-14 23:13:20 +0100>",
            "failed: line 1: a typed value is malformed"},
        Row{"anUnclosedTypedValue", "<*I1", "failed: line 1: a typed value is not closed"}),
    rowName);

TEST(OldPropertyListTest, nestingIsReadUpToTheLimitAndRefusedBeyond) {
    constexpr int deepest = zt::maximumPropertyListDepth;
    const QByteArray opening("(");
    EXPECT_TRUE(
        zt::parsePropertyList(opening.repeated(deepest) + QByteArray(")").repeated(deepest)));
    EXPECT_EQ(describe(zt::parsePropertyList(opening.repeated(1'000'000))),
              "failed: line 1: values are nested too deeply");
    EXPECT_EQ(describe(zt::parsePropertyList(QByteArray("{a=").repeated(1'000'000))),
              "failed: line 1: values are nested too deeply");
    EXPECT_EQ(describe(zt::parsePropertyList("a=" + opening.repeated(1'000'000))),
              "failed: line 1: values are nested too deeply");
}

TEST(OldPropertyListTest, bytesThatAreNotUtf8AreLatin1) {
    EXPECT_EQ(describe(zt::parsePropertyList("{ a = \"Jos\xE9\"; }")), "{a=\"Jos\xC3\xA9\"}");
}

} // namespace

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/ZTFormat.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(ZTFormatTest, textsFillTheirPlaceholdersInOrder) {
    EXPECT_EQ(ZTFormat("Quitting '%@': %@", u"ABCD"_s, u"Notes"_s), u"Quitting 'ABCD': Notes"_s);
}

TEST(ZTFormatTest, positionsChooseTheirArgumentAndMayRepeat) {
    EXPECT_EQ(ZTFormat("%2$@ before %1$@ before %2$@", u"a"_s, u"b"_s), u"b before a before b"_s);
}

TEST(ZTFormatTest, whatIsMissingPrintsAsNull) {
    EXPECT_EQ(ZTFormat("%@ %@", std::optional<QString>(), std::nullopt), u"(null) (null)"_s);
    EXPECT_EQ(ZTFormat("%@ %@", u"only"_s), u"only (null)"_s);
    EXPECT_EQ(ZTFormat("%3$@", u"a"_s), u"(null)"_s);
    const char *nothing = nullptr;
    EXPECT_EQ(ZTFormat("%s", nothing), u"(null)"_s);
}

TEST(ZTFormatTest, anOptionalTextThatIsThereIsThatText) {
    EXPECT_EQ(ZTFormat("%@", std::optional(u"here"_s)), u"here"_s);
}

struct NumberRow {
    const char *reason;
    QString actual;
    QString expected;
};

TEST(ZTFormatTest, numbersFollowTheirConversion) {
    const NumberRow rows[] = {
        {"plain", ZTFormat("%d", -12), u"-12"_s},
        {"long", ZTFormat("%ld", 1234567890123L), u"1234567890123"_s},
        {"smallest", ZTFormat("%lld", std::numeric_limits<long long>::min()),
         u"-9223372036854775808"_s},
        {"unsigned", ZTFormat("%u", 4000000000U), u"4000000000"_s},
        {"upper hexadecimal", ZTFormat("temp-%X", 0xBEEFU), u"temp-BEEF"_s},
        {"padded hexadecimal", ZTFormat("%02x", 7), u"07"_s},
        {"four bytes", ZTFormat("%02X%02X%02X%02X", 0x41, 0x0, 0xff, 0x10), u"4100FF10"_s},
        {"negative in hexadecimal", ZTFormat("%x", -1), u"ffffffff"_s},
        {"one decimal", ZTFormat("%1.1f", 2.5F), u"2.5"_s},
        {"three decimals", ZTFormat("%1.3f", 0.12345), u"0.123"_s},
        {"default precision", ZTFormat("%f", 1.5), u"1.500000"_s},
        {"width", ZTFormat("%5d|%-5d|%05d", 42, 42, -42), u"   42|42   |-0042"_s},
        {"sign", ZTFormat("%+d % d", 3, 3), u"+3  3"_s},
        {"integer as real", ZTFormat("%1.1f", 3), u"3.0"_s},
        {"a text where a number was announced", ZTFormat("%d", u"text"_s), u"text"_s},
        {"a number where a text was announced", ZTFormat("%@", 7), u"7"_s},
        {"truth", ZTFormat("%d %d", true, false), u"1 0"_s},
        {"character", ZTFormat("%c", 0x263A), u"\u263a"_s},
        {"alternate form", ZTFormat("%#x", 255), u"0xff"_s},
    };
    for (const NumberRow &row : rows)
        EXPECT_EQ(row.actual, row.expected) << row.reason;
}

TEST(ZTFormatTest, aPercentSignThatBeginsNoPlaceholderStays) {
    EXPECT_EQ(ZTFormat("100%", u"x"_s), u"100%"_s);
    EXPECT_EQ(ZTFormat("100%% of %@", u"x"_s), u"100% of x"_s);
    EXPECT_EQ(ZTFormat("%y %@", u"x"_s), u"%y x"_s);
    EXPECT_EQ(ZTFormat("%1$", u"x"_s), u"%1$"_s);
}

TEST(ZTFormatTest, anArgumentIsNeverReadAsAFormat) {
    EXPECT_EQ(ZTFormat("%@!", u"%@ %d %1$@"_s), u"%@ %d %1$@!"_s);
}

TEST(ZTFormatTest, listsAndDictionariesPrintOnOneLine) {
    EXPECT_EQ(ZTFormat("%@", QStringList{u"a"_s, u"b \"c\""_s}), u"(\"a\", \"b \\\"c\\\"\")"_s);
    EXPECT_EQ(ZTFormat("%@", QVariantMap{{u"k"_s, u"v"_s}, {u"Code"_s, QStringList{u"x"_s}}}),
              u"{\"Code\" = (\"x\"); \"k\" = \"v\"; }"_s);
    EXPECT_EQ(ZTFormat("%@", QStringList()), u"()"_s);
}

TEST(ZTFormatTest, anAbsurdWidthIsHeldWithinBounds) {
    EXPECT_EQ(ZTFormat("%999999999d", 1).size(), 1000);
    EXPECT_EQ(ZTFormat("%99999999999999999999$@", u"x"_s), u"(null)"_s);
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/StringExtensionsValues.h"

#include "tests/unit/text/RandomText.h"
#include "tests/unit/text/TextModels.h"

#include <QCryptographicHash>

#include <limits>

using namespace Qt::StringLiterals;
using namespace StringExtensions;

TEST(StringValuesTest, numbersAreReadInTheBaseThatTheirPrefixTells) {
    struct {
        const char *reason;
        QString text;
        std::int64_t value;
    } const rows[] = {
        {"decimal", u"42"_s, 42},
        {"octal", u"010"_s, 8},
        {"hexadecimal", u"0x1F"_s, 31},
        {"hexadecimal in capitals", u"0X1f"_s, 31},
        {"a prefix without digits", u"0x"_s, 0},
        {"not an octal digit", u"018"_s, 1},
        {"leading white space and sign", u" \t\n\v\f\r-7x"_s, -7},
        {"no-break space is none", u"\u00A07"_s, 0},
        {"plus", u"+7"_s, 7},
        {"digits of another script", u"\u0663"_s, 0},
        {"letters of another script behind", u"7\u0661"_s, 7},
        {"a null character ends it", u"1\0002"_s, 1},
        {"largest", u"9223372036854775807"_s, std::numeric_limits<std::int64_t>::max()},
        {"too large", u"9223372036854775808"_s, std::numeric_limits<std::int64_t>::max()},
        {"smallest", u"-0x8000000000000000"_s, std::numeric_limits<std::int64_t>::min()},
        {"too small", u"-99999999999999999999"_s, std::numeric_limits<std::int64_t>::min()},
        {"nothing", u""_s, 0},
        {"a word", u"ten"_s, 0},
        {"longer than any number", u"  "_s + QString(100, u'0') + u"7"_s, 7},
    };
    for (const auto &row : rows)
        EXPECT_EQ(numericValue(row.text), row.value) << row.reason;
    forRandomCases([](RandomText &random) {
        const QString text = random.text(u"0017xXaf -+\t");
        EXPECT_EQ(numericValue(text), models::numericValue(text)) << unitsOf(text);
    });
}

TEST(StringValuesTest, truthIsToldByTheFirstLetterOrTheNumber) {
    for (const QString &text : {u"yes"_s, u"Yes"_s, u"true"_s, u"T"_s, u"1"_s, u"1x"_s, u"2"_s,
                                u" 2"_s, u"-1"_s, u"+10"_s, u"0002"_s, u"tomorrow"_s})
        EXPECT_TRUE(booleanValue(text)) << unitsOf(text);
    for (const QString &text :
         {u"no"_s, u"false"_s, u"0"_s, u""_s, u" yes"_s, u"x"_s, u"-"_s, u"0x1"_s, u"0.9"_s})
        EXPECT_FALSE(booleanValue(text)) << unitsOf(text);
}

TEST(StringValuesTest, aTextOfDigitsIsAnIntegerNumber) {
    EXPECT_TRUE(isIntegerNumber(u"0"_s));
    EXPECT_TRUE(isIntegerNumber(u"0123456789"_s));
    for (const QString &text :
         {u""_s, u"-1"_s, u"1 "_s, u"1.0"_s, u"1,000"_s, u"\u0663"_s, u"/"_s, u":"_s, u"1\0"_s})
        EXPECT_FALSE(isIntegerNumber(text)) << unitsOf(text);
    forRandomCases([](RandomText &random) {
        const QString text = random.text(u"0123456789", 3);
        const bool areDigits = QString(text)
                                   .remove(u'0')
                                   .remove(u'1')
                                   .remove(u'2')
                                   .remove(u'3')
                                   .remove(u'4')
                                   .remove(u'5')
                                   .remove(u'6')
                                   .remove(u'7')
                                   .remove(u'8')
                                   .remove(u'9')
                                   .isEmpty();
        EXPECT_EQ(isIntegerNumber(text), areDigits && !text.isEmpty()) << unitsOf(text);
    });
}

TEST(StringValuesTest, eitherDecimalMarkIsUnderstood) {
    struct {
        const char *reason;
        QString text;
        float value;
    } const rows[] = {
        {"periods group", u"1.234,5"_s, 1234.5F},
        {"commas group", u"1,234.5"_s, 1234.5F},
        {"a decimal comma", u"3,25"_s, 3.25F},
        {"a decimal point", u"3.25"_s, 3.25F},
        {"two periods before the comma", u"1.234.567,5"_s, 1234567.5F},
        {"two commas before the period", u"1,234,567.5"_s, 1234567.5F},
        {"commas alone are all decimal", u"1,234,567"_s, 1.234F},
        {"no number", u"x"_s, 0.0F},
        {"empty", u""_s, 0.0F},
        {"only marks", u",."_s, 0.0F},
        {"negative", u"-1.000,5"_s, -1000.5F},
    };
    for (const auto &row : rows)
        EXPECT_FLOAT_EQ(smartFloatValue(row.text), row.value) << row.reason;
    forRandomCases([](RandomText &random) {
        const QString text = random.text(u"0123456789,.,.-e", 12);
        const float value = smartFloatValue(text);
        EXPECT_EQ(value, models::smartFloatValue(text)) << unitsOf(text);
    });
}

TEST(StringValuesTest, theDigestIsThatOfTheUtf8) {
    EXPECT_EQ(MD5String(u""_s), u"d41d8cd98f00b204e9800998ecf8427e"_s);
    EXPECT_EQ(MD5String(u"abc"_s), u"900150983cd24fb0d6963f7d28e17f72"_s);
    EXPECT_EQ(
        MD5String(u"\u00E9\U0001F600"_s),
        QString::fromLatin1(
            QCryptographicHash::hash("\xC3\xA9\xF0\x9F\x98\x80", QCryptographicHash::Md5).toHex()));
    EXPECT_EQ(MD5String(u"abc\0def"_s), MD5String(u"abc"_s)) << "up to the first null";
    forRandomCases([](RandomText &random) {
        QString text = random.text(u"ab\u00E9\xD83D\xDE00");
        // Pairs and lone surrogates also where long texts are cut into pieces.
        if (random.number(0, 99) == 0)
            text.prepend(QString(16383 - random.number(0, 3), u'x'));
        QByteArray utf8 = text.toUtf8(); // has "?" for a lone surrogate
        if (const auto null = utf8.indexOf('\0'); null >= 0)
            utf8.truncate(null);
        EXPECT_EQ(MD5String(text).toLatin1(),
                  QCryptographicHash::hash(utf8, QCryptographicHash::Md5).toHex())
            << unitsOf(text);
    });
}

TEST(StringValuesTest, numbersInsideTextsCompareByTheirValue) {
    struct {
        const char *reason;
        QString a;
        QString b;
        Ordering ordering;
        Ordering withoutCase;
    } const rows[] = {
        {"9 before 10", u"file9"_s, u"file10"_s, Ordering::Ascending, Ordering::Ascending},
        {"leading zeros", u"a007"_s, u"a7"_s, Ordering::Same, Ordering::Same},
        {"zeros, then more", u"a007b"_s, u"a7a"_s, Ordering::Descending, Ordering::Descending},
        {"a difference behind a common digit", u"10"_s, u"1a"_s, Ordering::Descending,
         Ordering::Descending},
        {"a number goes on in one of them", u"a12"_s, u"a1"_s, Ordering::Descending,
         Ordering::Descending},
        {"case", u"a"_s, u"B"_s, Ordering::Descending, Ordering::Ascending},
        {"only case", u"FILE10"_s, u"file010"_s, Ordering::Ascending, Ordering::Same},
        {"case beyond ASCII", u"\u00C9"_s, u"\u00E9"_s, Ordering::Ascending, Ordering::Same},
        {"case of pairs", u"\U00010400"_s, u"\U00010428"_s, Ordering::Ascending, Ordering::Same},
        {"one character by one", u"\u00DF"_s, u"ss"_s, Ordering::Descending, Ordering::Descending},
        {"composed and decomposed", u"\u00E9"_s, u"e\u0301"_s, Ordering::Descending,
         Ordering::Descending},
        {"digits of other scripts are letters", u"\u0669"_s, u"\u0661\u0660"_s,
         Ordering::Descending, Ordering::Descending},
        {"the whole prefix is long", QString(1000, u'1') + u"2"_s, QString(1000, u'1') + u"3"_s,
         Ordering::Ascending, Ordering::Ascending},
        {"a long number against a longer one", QString(300, u'9'), u"1"_s + QString(300, u'0'),
         Ordering::Ascending, Ordering::Ascending},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(numericCompare(row.a, row.b), row.ordering) << row.reason;
        EXPECT_EQ(caseInsensitiveNumericCompare(row.a, row.b), row.withoutCase) << row.reason;
    }
    forRandomCases([](RandomText &random) {
        // Much in common, or else the first unit decides.
        const QString common = random.text(u"00129aAb", 200);
        const QString a = common + random.text(u"00129aAbB\u00E9\u00C9", 8);
        const QString b = common + random.text(u"00129aAbB\u00E9\u00C9", 8);
        EXPECT_EQ(static_cast<int>(numericCompare(a, b)), models::numericCompare(a, b))
            << unitsOf(a) << " and " << unitsOf(b);
        EXPECT_EQ(static_cast<int>(caseInsensitiveNumericCompare(a, b)),
                  models::numericCompare(models::caseFolded(a), models::caseFolded(b)))
            << unitsOf(a) << " and " << unitsOf(b);
    });
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/NumberReading.h"

#include <QString>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

struct IntegerRow {
    const char *reason;
    QStringView text;
    int value;
};

TEST(NumberReadingTest, integersAreReadLeniently) {
    const IntegerRow rows[] = {
        {"plain", u"42", 42},
        {"leading blanks", u" \t\n42", 42},
        {"minus", u"-7", -7},
        {"plus", u"+7", 7},
        {"stops at the first other character", u"12abc", 12},
        {"stops at the point", u"10.2", 10},
        {"nothing", u"", 0},
        {"no number", u"abc", 0},
        {"sign alone", u"-", 0},
        {"two signs", u"--5", 0},
        {"sign apart", u"- 5", 0},
        {"largest", u"2147483647", std::numeric_limits<int>::max()},
        {"too large", u"99999999999999999999", std::numeric_limits<int>::max()},
        {"smallest", u"-2147483648", std::numeric_limits<int>::min()},
        {"too small", u"-99999999999999999999", std::numeric_limits<int>::min()},
        {"digits of another script", u"\u0663", 0},
    };
    for (const IntegerRow &row : rows)
        EXPECT_EQ(integerValue(row.text), row.value) << row.reason;
}

struct RealRow {
    const char *reason;
    QStringView text;
    float value;
};

TEST(NumberReadingTest, realsAreReadLeniently) {
    const float infinity = std::numeric_limits<float>::infinity();
    const RealRow rows[] = {
        {"plain", u"2.5", 2.5F},
        {"integer", u"3", 3.0F},
        {"blanks and sign", u"  -1.5", -1.5F},
        {"no whole part", u".25", 0.25F},
        {"no fraction", u"5.", 5.0F},
        {"exponent", u"2.5e1s", 25.0F},
        {"negative exponent", u"25E-1", 2.5F},
        {"an e without digits is not an exponent", u"2e", 2.0F},
        {"unit behind", u"4 seconds", 4.0F},
        {"comma is not the point", u"2,5", 2.0F},
        {"empty", u"", 0.0F},
        {"word", u"soon", 0.0F},
        {"point alone", u".", 0.0F},
        {"infinity is not a number", u"inf", 0.0F},
        {"too large", u"1e99", infinity},
        {"too large, negative", u"-1e99", -infinity},
        {"too large without exponent", u"999999999999999999999999999999999999999999", infinity},
        {"too small", u"1e-99", 0.0F},
    };
    for (const RealRow &row : rows)
        EXPECT_EQ(floatValue(row.text), row.value) << row.reason;
    EXPECT_DOUBLE_EQ(doubleValue(u"0.1"), 0.1);
}

TEST(NumberReadingTest, theSizeIsToldByTheFirstDigitThatIsNotZero) {
    const std::string zeros(60, '0');
    const float infinity = std::numeric_limits<float>::infinity();
    const auto valueOf = [](const std::string &text) {
        return floatValue(QString::fromStdString(text));
    };
    EXPECT_EQ(valueOf("0." + zeros + "1"), 0.0F);
    EXPECT_EQ(valueOf("1" + zeros), infinity);
    EXPECT_EQ(valueOf("1" + zeros + "e-1"), infinity);
    EXPECT_EQ(valueOf("0." + zeros + "1e1"), 0.0F);
    EXPECT_EQ(valueOf("0." + zeros + "1e61"), 1.0F);
    EXPECT_EQ(valueOf("0e999"), 0.0F);
}

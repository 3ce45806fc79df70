// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/FourCharCode.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct TextCase {
    const char *reason;
    QString text;
    FourCharCode code;
};

} // namespace

class FourCharCodeTextTest : public testing::TestWithParam<TextCase> {};

TEST_P(FourCharCodeTextTest, aTextHasItsCode) {
    EXPECT_EQ(UTGetOSTypeFromString(GetParam().text), GetParam().code);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, FourCharCodeTextTest,
    testing::Values(TextCase{"letters", u"aevt"_s, 0x61657674},
                    TextCase{"blanksCount", u"CUT "_s, 0x43555420},
                    TextCase{"noneAtAll", u"????"_s, FourCharCodeNone},
                    TextCase{"aCharacterOfTheUpperHalf", u"\u00C4BCD"_s, 0x80424344},
                    TextCase{"anAccentBehindItsLetter", u"A\u0308BCD"_s, 0x80424344},
                    TextCase{"theEuroSign", u"\u20AC\u20AC\u20AC\u20AC"_s, 0xDBDBDBDB},
                    TextCase{"empty", QString(), 0}, TextCase{"tooShort", u"abc"_s, 0},
                    TextCase{"tooLong", u"abcde"_s, 0},
                    TextCase{"aCharacterThatTheEncodingLacks", u"abc\u0416"_s, 0}),
    [](const auto &information) { return std::string(information.param.reason); });

TEST(FourCharCodeTest, everyByteComesBackFromItsCharacter) {
    for (FourCharCode byte = 0; byte < 0x100; ++byte) {
        const FourCharCode code = byte << 24 | 0x00414200 | byte;
        const QString text = UTCreateStringForOSType(code);
        EXPECT_EQ(text.size(), 4);
        EXPECT_EQ(UTGetOSTypeFromString(text), code) << byte;
    }
}

TEST(FourCharCodeTest, aCodeInTheSourceIsThatOfItsText) {
    static_assert(fourCharCode("vers") == 0x76657273);
    EXPECT_EQ(UTCreateStringForOSType(fourCharCode("quit")), u"quit"_s);
}

TEST(FourCharCodeTest, theApplesCharacterIsInThePrivateUseArea) {
    EXPECT_EQ(UTCreateStringForOSType(0xF0202020), u"\uF8FF   "_s);
}

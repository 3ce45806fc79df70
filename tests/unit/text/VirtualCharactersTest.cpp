// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/StringExtensionsScalars.h"
#include "ZTStuff/CocoaExtensions/VirtualCharacterTables.h"

#include "tests/unit/text/RandomText.h"

#include <string>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;
using namespace StringExtensions;

namespace {

using Sequence = std::u32string;

// The rows of the table from how its glyphs are made up, group by group.
std::vector<Sequence> joinedGlyphs() {
    const Sequence joiner = U"\u200D";
    const Sequence selector = U"\uFE0F";
    const Sequence male = U"\u2642\uFE0F";
    const Sequence female = U"\u2640\uFE0F";
    const Sequence man = U"\U0001F468";
    const Sequence woman = U"\U0001F469";
    std::vector<Sequence> rows;
    const auto bothSexes = [&](const Sequence &base) {
        rows.push_back(base + joiner + male);
        rows.push_back(base + joiner + female);
    };

    rows.push_back(U"\U0001F441" + selector + joiner + U"\U0001F5E8" + selector);
    // Fair hair, then red, curly, white hair and none.
    const Sequence hair = U"\U0001F9B0\U0001F9B1\U0001F9B3\U0001F9B2";
    for (const bool isMale : {true, false}) {
        rows.push_back(U"\U0001F471" + joiner + (isMale ? male : female));
        for (const char32_t style : hair)
            rows.push_back((isMale ? man : woman) + joiner + style);
    }
    for (const char32_t base : Sequence(U"\U0001F64D\U0001F64E\U0001F645\U0001F646\U0001F481"
                                        U"\U0001F64B\U0001F647\U0001F926\U0001F937"))
        bothSexes(Sequence(1, base));
    for (const char32_t object : Sequence(
             U"\u2695\U0001F393\U0001F3EB\u2696\U0001F33E\U0001F373\U0001F527\U0001F3ED"
             U"\U0001F4BC\U0001F52C\U0001F4BB\U0001F3A4\U0001F3A8\u2708\U0001F680\U0001F692")) {
        for (const Sequence &person : {man, woman})
            rows.push_back(person + joiner + object + (object < 0x10000 ? selector : U""));
    }
    const Sequence emblems = U"\U0001F575\U0001F3CC\u26F9\U0001F3CB";
    for (const char32_t base : Sequence(
             U"\U0001F46E\U0001F575\U0001F482\U0001F477\U0001F473\U0001F9B8\U0001F9B9\U0001F9D9"
             U"\U0001F9DA\U0001F9DB\U0001F9DC\U0001F9DD\U0001F9DE\U0001F9DF\U0001F486\U0001F487"
             U"\U0001F6B6\U0001F3C3\U0001F46F\U0001F9D6\U0001F9D7\U0001F3CC\U0001F3C4\U0001F6A3"
             U"\U0001F3CA\u26F9\U0001F3CB\U0001F6B4\U0001F6B5\U0001F938\U0001F93C\U0001F93D"
             U"\U0001F93E\U0001F939\U0001F9D8"))
        bothSexes(base + (emblems.find(base) == Sequence::npos ? U"" : selector));

    const std::pair<Sequence, Sequence> couples[] = {{woman, man}, {man, man}, {woman, woman}};
    const Sequence heart = joiner + U"\u2764" + selector + joiner;
    rows.emplace_back(U"\U0001F48F");
    for (const auto &[first, second] : couples)
        rows.push_back(first + heart + U"\U0001F48B" + joiner + second);
    rows.emplace_back(U"\U0001F491");
    for (const auto &[first, second] : couples)
        rows.push_back(first + heart + second);

    rows.emplace_back(U"\U0001F46A");
    // Parents: a man and a woman, two men, two women, one man, one woman; then the children.
    for (const std::string parents : {"MW", "MM", "WW", "M", "W"}) {
        const std::vector<std::string> children =
            parents.size() == 2 ? std::vector<std::string>{"B", "D", "DB", "BB", "DD"}
                                : std::vector<std::string>{"B", "BB", "D", "DB", "DD"};
        for (const std::string &those : children) {
            Sequence family;
            for (const char member : parents + those) {
                if (!family.empty())
                    family += joiner;
                family += member == 'M'   ? U'\U0001F468'
                          : member == 'W' ? U'\U0001F469'
                          : member == 'B' ? U'\U0001F466'
                                          : U'\U0001F467';
            }
            rows.push_back(family);
        }
    }
    rows.push_back(U"\U0001F3F3" + selector + joiner + U"\U0001F308");
    rows.push_back(U"\U0001F3F4" + joiner + U"\u2620" + selector);
    return rows;
}

QString textOf(const Sequence &sequence) {
    return QString::fromUcs4(sequence.data(), static_cast<qsizetype>(sequence.size()));
}

Sequence scalarsOf(char32_t virtualCharacter) {
    const char32_t *const scalars =
        utf32CharactersForVirtualCharacter(static_cast<std::int32_t>(virtualCharacter));
    return scalars ? Sequence(scalars) : Sequence();
}

bool isVirtual(char32_t character) {
    return isVirtualCharacter(static_cast<std::int32_t>(character));
}

} // namespace

TEST(VirtualCharactersTest, everyRowOfTheJoinedGlyphsIsMadeUpAsItsGroupIs) {
    const std::vector<Sequence> glyphs = joinedGlyphs();
    ASSERT_EQ(glyphs.size(), 167U);
    static_assert(N_ZWJ_SEQUENCES == 167);
    for (std::size_t index = 0; index < glyphs.size(); ++index) {
        const Sequence row(std::begin(ZWJ_SEQUENCES[index]), std::end(ZWJ_SEQUENCES[index]));
        Sequence padded = glyphs[index];
        padded.resize(9, 0);
        EXPECT_EQ(row, padded) << index;
        const auto character = static_cast<char32_t>(0xA0300 + index);
        EXPECT_EQ(stringWithUTF32Character(character), textOf(glyphs[index])) << index;
        EXPECT_EQ(scalarsOf(character), glyphs[index]) << index;
        EXPECT_TRUE(isVirtual(character)) << index;
    }
}

TEST(VirtualCharactersTest, keycapsHaveNoSelector) {
    const Sequence bases = U"#*0123456789";
    static_assert(N_KEYCAP_SEQUENCES == 12);
    for (std::size_t index = 0; index < bases.size(); ++index) {
        const Sequence keycap = Sequence(1, bases[index]) + U"\u20E3";
        EXPECT_EQ(KEYCAP_SEQUENCES[index][2], 0U);
        const auto character = static_cast<char32_t>(0xA1000 + index);
        EXPECT_EQ(stringWithUTF32Character(character), textOf(keycap)) << index;
        EXPECT_EQ(scalarsOf(character), keycap) << index;
        EXPECT_TRUE(isVirtual(character)) << index;
    }
}

TEST(VirtualCharactersTest, flagsAreTwoRegionalIndicators) {
    for (char32_t first = 0; first < 26; ++first) {
        for (char32_t second = 0; second < 26; ++second) {
            const char32_t character = 0xA0000 + 26 * first + second;
            const Sequence flag = {0x1F1E6 + first, 0x1F1E6 + second};
            EXPECT_EQ(stringWithUTF32Character(character), textOf(flag));
            EXPECT_EQ(scalarsOf(character), flag);
            EXPECT_TRUE(isVirtual(character));
        }
    }
    EXPECT_EQ(stringWithUTF32Character(0xA0000 + 26 * 3 + 4), u"\U0001F1E9\U0001F1EA"_s);
}

TEST(VirtualCharactersTest, theScalarsOfAFlagLieInOneBuffer) {
    const char32_t *const first = utf32CharactersForVirtualCharacter(0xA0000);
    const char32_t *const second = utf32CharactersForVirtualCharacter(0xA0001);
    EXPECT_EQ(first, second);
    EXPECT_EQ(Sequence(first), (Sequence{0x1F1E6, 0x1F1E7}));
    // Another thread has one of its own.
    std::thread([] { utf32CharactersForVirtualCharacter(0xA0002); }).join();
    EXPECT_EQ(Sequence(first), (Sequence{0x1F1E6, 0x1F1E7}));
}

TEST(VirtualCharactersTest, theSkullFlagIsFiveUnits) {
    EXPECT_EQ(stringWithUTF32Character(0xA0300 + 166), u"\U0001F3F4\u200D\u2620\uFE0F"_s);
    EXPECT_EQ(stringWithUTF32Character(0xA0300 + 166).size(), 5);
}

TEST(VirtualCharactersTest, rangesEndWhereTheyEnd) {
    const std::pair<char32_t, bool> rows[] = {
        {0, false},         {U'a', false},    {0x9FFFF, false}, {0xA0000, true},
        {0xA02A3, true},    {0xA02A4, false}, {0xA02FF, false}, {0xA0300, true},
        {0xA03A6, true},    {0xA03A7, false}, {0xA0FFF, false}, {0xA1000, true},
        {0xA100B, true},    {0xA100C, false}, {0xAFFFF, false}, {0xB0000, true},
        {0xBFFFE, true},    {0xBFFFF, false}, {0xC0000, false}, {0xFFFFFFFF, false},
        {0x80000000, false}};
    for (const auto &[character, isIt] : rows)
        EXPECT_EQ(isVirtual(character), isIt) << static_cast<std::uint32_t>(character);
    for (const char32_t character : {0xA02A4U, 0xA03A7U, 0xA100CU, 0xB0000U, 0xBFFFFU, 0x61U})
        EXPECT_EQ(utf32CharactersForVirtualCharacter(static_cast<std::int32_t>(character)), nullptr)
            << static_cast<std::uint32_t>(character);
}

TEST(VirtualCharactersTest, otherValuesAreUnitsAndPairs) {
    defineLigatures({});
    EXPECT_EQ(stringWithUTF32Character(U'a'), u"a"_s);
    EXPECT_EQ(stringWithUTF32Character(0), QString(QChar(u'\0')));
    EXPECT_EQ(stringWithUTF32Character(0xD83D), QString(QChar(0xD83D)));
    EXPECT_EQ(stringWithUTF32Character(0xFFFF), QString(QChar(0xFFFF)));
    forRandomCases([](RandomText &random) {
        const auto character = static_cast<char32_t>(random.number(0x10000, 0x10FFFF));
        if (isVirtual(character) && character < 0xB0000)
            return;
        EXPECT_EQ(stringWithUTF32Character(character), QStringView(QChar::fromUcs4(character)))
            << static_cast<std::uint32_t>(character);
    });
    // Beyond Unicode the bits go on as they would.
    EXPECT_EQ(stringWithUTF32Character(0x110000),
              QStringView(QList<QChar>{QChar(0xDC00), QChar(0xDC00)}));
}

TEST(VirtualCharactersTest, ligaturesAreTheTextsThatWereDefined) {
    const QStringList ligatures = {u"ffi"_s, u""_s, u"Qu"_s};
    defineLigatures(ligatures);
    for (qsizetype index = 0; index < ligatures.size(); ++index)
        EXPECT_TRUE(
            isSameObject(stringWithUTF32Character(0xB0000 + char32_t(index)), ligatures[index]))
            << index;
    EXPECT_EQ(stringWithUTF32Character(0xB0003), u"\U000B0003"_s) << "not defined";
    defineLigatures({u"ct"_s});
    EXPECT_EQ(stringWithUTF32Character(0xB0000), u"ct"_s);
    EXPECT_EQ(stringWithUTF32Character(0xB0001), u"\U000B0001"_s);
    defineLigatures({});
    EXPECT_EQ(stringWithUTF32Character(0xB0000), u"\U000B0000"_s);
}

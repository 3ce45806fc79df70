// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/StringExtensionsScalars.h"

#include "tests/fakes/FakePlatform.h"
#include "tests/unit/text/RandomText.h"
#include "tests/unit/text/TextModels.h"

using namespace Qt::StringLiterals;
using namespace StringExtensions;

namespace {

QString units(std::initializer_list<char16_t> list) {
    QString text;
    for (const char16_t unit : list)
        text.append(QChar(unit));
    return text;
}

QList<char32_t> scalarsOf(const QString &text) {
    QList<char32_t> scalars;
    forUTF32Characters(text, [&scalars](char32_t scalar) { scalars.append(scalar); });
    return scalars;
}

QString listOf(const QList<char32_t> &numbers) {
    QStringList list;
    for (const char32_t number : numbers)
        list.append(QString::number(number, 16).toUpper().rightJustified(4, u'0'));
    return list.join(u',');
}

} // namespace

TEST(StringScalarsTest, scalarsAreDeliveredInOrder) {
    struct {
        const char *reason;
        QString text;
        QList<char32_t> scalars;
    } const rows[] = {
        {"empty", u""_s, {}},
        {"units and pairs", u"a\u4E00\U0001F600"_s, {U'a', 0x4E00, 0x1F600}},
        {"the last scalar", u"\U0010FFFF"_s, {0x10FFFF}},
        {"a lone low surrogate", units({0xDE00, u'a'}), {0xDE00, U'a'}},
        {"a lone high surrogate swallows a letter", units({0xD83D, u'a', u'b'}), {U'b'}},
        {"and another high surrogate", units({0xD83D, 0xD83D, 0xDE00}), {0xDE00}},
        {"a high surrogate at the end", units({u'a', 0xD83D}), {U'a'}},
        {"null characters", units({0, u'a', 0}), {0, U'a', 0}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(scalarsOf(row.text), row.scalars) << row.reason;
    forRandomCases([](RandomText &random) {
        const QString text = random.text(u"a\xD83D\xDE00");
        EXPECT_EQ(scalarsOf(text), models::utf32Characters(text)) << unitsOf(text);
    });
}

TEST(StringScalarsTest, scalarsMakeTheTextAgain) {
    forRandomCases([](RandomText &random) {
        QString text = models::withoutLoneSurrogates(random.text(u"a\U0001F600\u4E00"));
        QString again;
        for (const char32_t scalar : scalarsOf(text)) {
            if (isVirtualCharacter(static_cast<std::int32_t>(scalar)))
                return; // stands for something else
            again += stringWithUTF32Character(scalar);
        }
        EXPECT_EQ(again, text) << unitsOf(text);
    });
}

TEST(StringScalarsTest, theScalarAtAnIndexDoesNotLookBack) {
    const QString text = units({u'a', 0xD83D, 0xDE00, 0xD83D, u'b', 0xD83D});
    const QList<char32_t> scalars = {U'a', 0x1F600, 0xDE00, 0xD83D, U'b', 0xD83D};
    for (int index = 0; index < scalars.size(); ++index)
        EXPECT_EQ(longCharacterAtIndex(text, index), scalars[index]) << index;
    EXPECT_EQ(longCharacterAtIndex(text, 6), 0U);
    EXPECT_EQ(longCharacterAtIndex(text, -1), 0U);
    forRandomCases([](RandomText &random) {
        const QString any = random.text(u"a\xD83D\xDE00") + u'x';
        const int index = random.number(0, static_cast<int>(any.size()) - 1);
        const QList<char32_t> first = models::utf32Characters(any.mid(index, 2));
        const bool isLoneHigh = QChar(any[index]).isHighSurrogate() && first.isEmpty();
        EXPECT_EQ(longCharacterAtIndex(any, index), isLoneHigh ? any[index].unicode() : first[0])
            << unitsOf(any);
    });
}

TEST(StringScalarsTest, sequencesAreListedInHexadecimal) {
    EXPECT_EQ(UTF16SequenceString(u"a\U0001F600\u4E00"_s), u"0061,D83D,DE00,4E00"_s);
    EXPECT_EQ(UTF32SequenceString(u"a\U0001F600\U0010FFFF"_s), u"0061,1F600,10FFFF"_s);
    EXPECT_EQ(UTF16SequenceString(u""_s), u""_s);
    EXPECT_EQ(UTF32SequenceString(units({0xD83D, u'a'})), u""_s) << "the letter is swallowed";
    EXPECT_EQ(UTF32SequenceString(units({0xD83D, u'a', u'b'})), u"0062"_s);
    EXPECT_EQ(UTF16SequenceString(units({0, 0xFFFF})), u"0000,FFFF"_s);
    forRandomCases([](RandomText &random) {
        const QString text = random.text(u"a\xD83D\xDE00\u4E00");
        QList<char32_t> codeUnits;
        for (const QChar unit : text)
            codeUnits.append(unit.unicode());
        EXPECT_EQ(UTF16SequenceString(text), listOf(codeUnits)) << unitsOf(text);
        EXPECT_EQ(UTF32SequenceString(text), listOf(models::utf32Characters(text)))
            << unitsOf(text);
    });
}

TEST(StringScalarsTest, emojiTakeASkinColour) {
    const QString wave = u"\U0001F44B"_s;
    const QString toned = u"\U0001F44B\U0001F3FC"_s;
    struct {
        const char *reason;
        QString text;
        int colour;
        QString result;
    } const rows[] = {
        {"behind the emoji", wave, 3, toned},
        {"colour 1", wave, 1, u"\U0001F44B\U0001F3FB"_s},
        {"colour 2 is the same", wave, 2, u"\U0001F44B\U0001F3FB"_s},
        {"colour 6", wave, 6, u"\U0001F44B\U0001F3FF"_s},
        {"another colour", toned, 5, u"\U0001F44B\U0001F3FE"_s},
        {"taken away, by a null character", toned, 0, wave + QChar(u'\0')},
        {"no such colour", toned, 7, wave + QChar(u'\0')},
        {"before a joiner, in place of the selector", u"\U0001F575\uFE0F\u200D\u2642\uFE0F"_s, 4,
         u"\U0001F575\U0001F3FD\u200D\u2642\uFE0F"_s},
        {"the selector alone stays", u"\u261D\uFE0F"_s, 3, u"\u261D\U0001F3FC\uFE0F"_s},
        {"replaced in the middle of a sequence", u"\U0001F468\U0001F3FB\u200D\U0001F33E"_s, 6,
         u"\U0001F468\U0001F3FF\u200D\U0001F33E"_s},
        {"a tone at the very start does not count", u"\U0001F3FB"_s, 3, u"\U0001F3FB\U0001F3FC"_s},
        {"a letter", u"a"_s, 3, u"a\U0001F3FC"_s},
        {"a lone high surrogate", units({0xD83D}), 3, units({0xD83D, 0xD83C, 0xDFFC})},
        {"the first of two tones", u"a\U0001F3FB\U0001F3FC"_s, 3, u"a\U0001F3FC\U0001F3FC"_s},
    };
    for (const auto &row : rows)
        EXPECT_EQ(emojiStringWithSkinColor(row.text, row.colour), row.result) << row.reason;
    const std::pair<QString, int> unchanged[] = {
        {toned, 3}, {wave, 0}, {wave, 7}, {wave, -1}, {QString(), 3}};
    for (const auto &[text, colour] : unchanged)
        EXPECT_TRUE(isSameObject(emojiStringWithSkinColor(text, colour), text)) << unitsOf(text);
    forRandomCases([](RandomText &random) {
        const QString text = random.text(u"\xD83C\xDFFB\xDFFC\xDFFF\uFE0F\u200Da\xD83D\xDE00", 8);
        const int colour = random.number(-1, 7);
        EXPECT_EQ(emojiStringWithSkinColor(text, colour),
                  models::emojiStringWithSkinColor(text, colour))
            << unitsOf(text) << " with " << colour;
    });
}

TEST(StringScalarsTest, aKeyIsLookedUpInTheRunningLayout) {
    FakePlatform platform;
    platform.keyboardLayout.texts = {
        {0, u"a"_s}, {1, u""_s}, {2, u"1234"_s}, {3, u"12345"_s}, {0xFFFF, u"z"_s}};
    EXPECT_EQ(stringWithVirtualKeyCode(0, 0), u"a"_s);
    EXPECT_EQ(stringWithVirtualKeyCode(1, 0), u""_s);
    EXPECT_EQ(stringWithVirtualKeyCode(2, 0), u"1234"_s);
    EXPECT_EQ(stringWithVirtualKeyCode(3, 0), u"<ERR>"_s) << "more than four units";
    EXPECT_EQ(stringWithVirtualKeyCode(4, 0), u"<ERR>"_s) << "no such key";
    EXPECT_EQ(stringWithVirtualKeyCode(0xAFFFF, 0), u"z"_s) << "the low 16 bits count";
}

TEST(StringScalarsTest, modifierBitsBecomeModifiers) {
    FakePlatform platform;
    const auto ask = [&](std::uint32_t modifiers) {
        stringWithVirtualKeyCode(0, modifiers);
        return platform.keyboardLayout.questions.back().modifiers;
    };
    EXPECT_TRUE(ask(0x02).shift);
    EXPECT_TRUE(ask(0x04).capsLock);
    EXPECT_TRUE(ask(0x08).option);
    EXPECT_TRUE(ask(0x10).control);
    const zt::KeyboardLayout::Modifiers none = ask(0x01);
    EXPECT_FALSE(none.shift || none.capsLock || none.option || none.control);
}

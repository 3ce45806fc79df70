// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Every text of the installer stands in every translation, with everything that belongs to it.

#include "tests/unit/translations/TranslatedTexts.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class TranslationFilesTest : public testing::TestWithParam<QString> {};

TEST_P(TranslationFilesTest, everyKeyIsThereAndNoOther) {
    QSet<QString> keys = keysOfInstaller();
    ASSERT_GT(keys.size(), 50);
    for (const TranslatedText &text : textsOfLanguage(GetParam()))
        EXPECT_TRUE(keys.remove(text.key)) << "twice, or not used: " << text.key.toStdString();
    for (const QString &key : keys)
        ADD_FAILURE() << "missing: " << key.toStdString();
}

TEST_P(TranslationFilesTest, everyTextIsFinished) {
    for (const TranslatedText &text : textsOfLanguage(GetParam())) {
        EXPECT_TRUE(text.isFinished) << text.key.toStdString();
        EXPECT_FALSE(text.text.isEmpty()) << text.key.toStdString();
        EXPECT_EQ(text.text, text.text.trimmed()) << "blanks around: " << text.key.toStdString();
    }
}

TEST_P(TranslationFilesTest, everyPlaceholderIsKept) {
    for (const TranslatedText &text : textsOfLanguage(GetParam())) {
        EXPECT_EQ(placeholdersIn(text.text), placeholdersIn(text.key))
            << text.key.toStdString() << '\n'
            << text.text.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(In, TranslationFilesTest, testing::ValuesIn([] {
                             const QStringList languages = translatedLanguages();
                             return std::vector<QString>(languages.begin(), languages.end());
                         }()),
                         [](const auto &row) { return row.param.toStdString(); });

// That the above would find what is wrong.

TEST(TranslatedTextsTest, keysAreFoundHoweverTheyAreWritten) {
    EXPECT_EQ(
        keysInCode(u"a(localizedString(\"One\"), localizationKey(\n  \"Two \"\n  \"parts\"))"_s),
        (QSet<QString>{u"One"_s, u"Two parts"_s}));
    EXPECT_EQ(keysInCode(uR"(showFinalMessage("Say \"?\".\rThen\n%@"))"_s),
              QSet<QString>{u"Say \"?\".\rThen\n%@"_s});
    EXPECT_TRUE(keysInCode(u"localizedString(key); ZTLog(\"no key\")"_s).isEmpty());
}

TEST(TranslatedTextsTest, aDescriptionsTextsAreKeysUnlessTheySayOtherwise) {
    EXPECT_EQ(
        keysInWindowDescription("<ui><string>One</string><string notr=\"true\">?</string></ui>"),
        QSet<QString>{u"One"_s});
}

TEST(TranslatedTextsTest, aFileIsReadWithItsControlCharactersAndStates) {
    const QList<TranslatedText> texts = textsInFile(
        "<TS><context><name>X</name><message><source>A<byte value=\"xd\"/>&lt;</source>"
        "<translation>B<byte value=\"xd\"/>&amp;</translation></message><message><source>C</source>"
        "<translation type=\"unfinished\"></translation></message></context></TS>");
    ASSERT_EQ(texts.size(), 2);
    EXPECT_EQ(texts[0].key, u"A\r<"_s);
    EXPECT_EQ(texts[0].text, u"B\r&"_s);
    EXPECT_TRUE(texts[0].isFinished);
    EXPECT_FALSE(texts[1].isFinished);
    EXPECT_TRUE(textsInFile("<TS><context>").isEmpty());
}

TEST(TranslatedTextsTest, onlyNumberedPlaceholdersMayChangeTheirOrder) {
    EXPECT_EQ(placeholdersIn(u"%2$@ of %1$@"_s), placeholdersIn(u"%1$@: %2$@"_s));
    EXPECT_NE(placeholdersIn(u"%2$@ of %2$@"_s), placeholdersIn(u"%1$@: %2$@"_s));
    EXPECT_NE(placeholdersIn(u"%@ and %d"_s), placeholdersIn(u"%d and %@"_s));
    EXPECT_NE(placeholdersIn(u"one\r%@"_s), placeholdersIn(u"one %@"_s));
    EXPECT_NE(placeholdersIn(u"50 %%"_s), placeholdersIn(u"50"_s));
}

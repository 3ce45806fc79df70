// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The compiled translations at work.

#include "Installer/Sources/Translations.h"

#include "Installer/Sources/LocalizedString.h"

#include "tests/fakes/FakePlatform.h"
#include "tests/unit/translations/TranslatedTexts.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString folder = QString::fromUtf8(TRANSLATIONS_FOLDER);

struct LanguageRow {
    const char *reason;
    QStringList preferred;
    QString loaded;
};

} // namespace

TEST(TranslationsTest, everyTextOfEveryLanguageArrives) {
    for (const QString &language : translatedLanguages()) {
        const Translations translations({language}, folder);
        EXPECT_EQ(translations.language(), language);
        for (const TranslatedText &text : textsOfLanguage(language))
            EXPECT_EQ(localizedString(text.key.toUtf8().constData()), text.text);
    }
}

TEST(TranslationsTest, theFirstLanguageThatThereIsCounts) {
    const LanguageRow rows[] = {
        {"the language itself", {u"de"_s}, u"de"_s},
        {"with a country", {u"de-AT"_s, u"en"_s}, u"de"_s},
        {"with a script and a country", {u"de-Latn-DE"_s}, u"de"_s},
        {"another country's", {u"pt-PT"_s}, u"pt_BR"_s},
        {"without a country", {u"pt"_s}, u"pt_BR"_s},
        {"a script alone", {u"zh-Hant"_s}, u"zh_TW"_s},
        {"the other script alone", {u"zh-Hans"_s}, u"zh_CN"_s},
        {"a country of that script", {u"zh-HK"_s}, u"zh_TW"_s},
        {"in a script that there is none in", {u"uz-Arab"_s, u"ja"_s}, u"ja"_s},
        {"English first", {u"en-GB"_s, u"de"_s}, {}},
        {"one that there is none for, first", {u"tlh"_s, u"de"_s}, u"de"_s},
        {"one that there is none for, then English", {u"tlh"_s, u"en"_s, u"de"_s}, {}},
        {"no language", {u"C"_s, u"de"_s}, {}},
        {"nothing", {}, {}},
    };
    for (const LanguageRow &row : rows)
        EXPECT_EQ(Translations(row.preferred, folder).language(), row.loaded) << row.reason;
}

TEST(TranslationsTest, theSettingComesBeforeTheSystem) {
    FakePlatform platform;
    EXPECT_EQ(Translations::preferredLanguages(platform.userDefaults),
              QLocale::system().uiLanguages());
    platform.userDefaults.values.insert(u"AppleLanguages"_s, QVariantList{u"he"_s, u"de"_s});
    EXPECT_EQ(Translations::preferredLanguages(platform.userDefaults),
              (QStringList{u"he"_s, u"de"_s}));
}

TEST(TranslationsTest, theDirectionAndTheNumbersAreThoseOfTheLanguage) {
    for (const QString &language : translatedLanguages()) {
        const Translations translations({language}, folder);
        EXPECT_EQ(QGuiApplication::layoutDirection(), QLocale(language).textDirection())
            << language.toStdString();
        EXPECT_EQ(QLocale().language(), QLocale(language).language()) << language.toStdString();
    }
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight);
    EXPECT_EQ(QLocale(), QLocale::system());
}

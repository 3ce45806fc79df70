#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The texts in the user's language, and what goes with it: the direction of reading, and how
// numbers are written.

#include <QLocale>
#include <QStringList>
#include <QTranslator>

namespace zt {
struct Platform;
class UserDefaults;
} // namespace zt

// As long as it lives, localizedString() and the framework's own texts answer in the first of the
// languages that there is a translation for. English needs none: where it comes first nothing is
// read. Thread: main, before there are windows.
class Translations {
public:
    // The languages that the user wants to read, the best first, named as "pt-BR": those of the
    // setting "AppleLanguages", else the system's.
    static QStringList preferredLanguages(const zt::UserDefaults &userDefaults);

    // The user's languages, and the folder "Translations" of this application's bundle.
    explicit Translations(const zt::Platform &platform);
    // The folder has the compiled translations, "VelmoraInstaller_pt_BR.qm" and so on.
    Translations(const QStringList &languages, const QString &folder);
    ~Translations();
    Translations(const Translations &) = delete;
    Translations &operator=(const Translations &) = delete;

    // As the translation itself names it ("pt_BR"); empty for English.
    QString language() const { return m_translator.language(); }

private:
    bool load(const QStringList &languages, const QString &folder);

    QTranslator m_translator;
    QTranslator m_frameworkTranslator;
    const QLocale m_localeBefore;
    const Qt::LayoutDirection m_directionBefore;
};

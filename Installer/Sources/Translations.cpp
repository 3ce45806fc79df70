// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/Translations.h"

#include "Platform/Bundles.h"
#include "Platform/Platform.h"
#include "Platform/UserDefaults.h"

#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>

using namespace Qt::StringLiterals;

namespace {

// The file in the language, by preference in that of the country; empty when there is none. Nobody
// can read the language in another script, but everybody in the way of another country.
QString fileForLanguage(const QLocale &language, const QString &folder) {
    const QString prefix = u"VelmoraInstaller_"_s;
    QString found;
    for (const QString &name : QDir(folder).entryList({prefix + u"*.qm"_s}, QDir::Files)) {
        const QLocale candidate(name.sliced(prefix.size()).chopped(3));
        if (candidate.language() != language.language() || candidate.script() != language.script())
            continue;
        if (found.isEmpty() || candidate.territory() == language.territory())
            found = name;
    }
    return found;
}

} // namespace

QStringList Translations::preferredLanguages(const zt::UserDefaults &userDefaults) {
    if (const auto chosen = userDefaults.objectForKey(u"AppleLanguages"_s))
        return chosen->toStringList();
    return QLocale::system().uiLanguages();
}

Translations::Translations(const zt::Platform &platform)
    : Translations(preferredLanguages(platform.userDefaults),
                   platform.bundles.mainBundle().resourcesPath() + u"/Translations"_s) {}

Translations::Translations(const QStringList &languages, const QString &folder)
    : m_directionBefore(QGuiApplication::layoutDirection()) {
    if (!load(languages, folder))
        return;
    const QLocale locale(language());
    // Sizes and the like are written as their language has it; the country's own way stays.
    if (m_localeBefore.language() != locale.language())
        QLocale::setDefault(locale);
    QCoreApplication::installTranslator(&m_translator);
    if (m_frameworkTranslator.load(u"qtbase_"_s + language(),
                                   QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_frameworkTranslator);
    // The framework would know the direction from its own translation only.
    QGuiApplication::setLayoutDirection(locale.textDirection());
}

Translations::~Translations() {
    QGuiApplication::setLayoutDirection(m_directionBefore);
    QLocale::setDefault(m_localeBefore);
}

bool Translations::load(const QStringList &languages, const QString &folder) {
    for (const QString &name : languages) {
        if (QLocale(name).language() == QLocale::English || name == u"C")
            return false;
        const QString file = fileForLanguage(QLocale(name), folder);
        if (!file.isEmpty() && m_translator.load(file, folder))
            return true;
    }
    return false;
}

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The texts in the sources, and what their translations are.

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

// The languages that the installer is translated into: "de", "pt_BR".
QStringList translatedLanguages();

// The keys that the code asks localizedString() for, and those of the window's description.
QSet<QString> keysInCode(const QString &code);
QSet<QString> keysInWindowDescription(const QByteArray &description);

// All keys of the installer.
QSet<QString> keysOfInstaller();

struct TranslatedText {
    QString key;
    QString text;
    bool isFinished = false;
};

// The content of a translation file; empty when it is none.
QList<TranslatedText> textsInFile(const QByteArray &file);

// The same for a language.
QList<TranslatedText> textsOfLanguage(const QString &language);

// The placeholders of a format and the ends of lines in it, in order: what a translation must have
// as well. An order of its own needs numbers in the placeholders.
QStringList placeholdersIn(const QString &format);

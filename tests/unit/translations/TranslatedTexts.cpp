// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/translations/TranslatedTexts.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

const QString installerFolder = QString::fromUtf8(INSTALLER_FOLDER);

QByteArray contentOf(const QString &path) {
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

// The value of literals that stand behind each other.
QString valueOf(const QString &literals) {
    static const QRegularExpression literal(uR"re("((?:[^"\\]|\\.)*)")re"_s);
    QString value;
    for (const auto &match : literal.globalMatch(literals))
        value += match.captured(1);
    return value.replace(u"\\\""_s, u"\""_s).replace(u"\\r"_s, u"\r"_s).replace(u"\\n"_s, u"\n"_s);
}

// The text of an element, in which a byte that XML cannot have stands as an element of its own.
QString textOf(QXmlStreamReader &xml) {
    QString text;
    while (xml.readNext() != QXmlStreamReader::EndElement && !xml.atEnd()) {
        if (xml.isCharacters()) {
            text += xml.text();
        } else if (xml.isStartElement() && xml.name() == u"byte") {
            text += QChar(xml.attributes().value(u"value"_s).mid(1).toUShort(nullptr, 16));
            xml.skipCurrentElement();
        }
    }
    return text;
}

} // namespace

QStringList translatedLanguages() {
    return QString::fromUtf8(LANGUAGES).split(u',', Qt::SkipEmptyParts);
}

QSet<QString> keysInCode(const QString &code) {
    static const QRegularExpression use(
        uR"re((?:localizedString|localizationKey|showFinalMessage)\(\s*((?:"(?:[^"\\]|\\.)*"\s*)+)\))re"_s);
    QSet<QString> keys;
    for (const auto &match : use.globalMatch(code))
        keys << valueOf(match.captured(1));
    return keys;
}

QSet<QString> keysInWindowDescription(const QByteArray &description) {
    QSet<QString> keys;
    QXmlStreamReader xml(description);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == u"string" &&
            xml.attributes().value(u"notr"_s) != u"true")
            keys << xml.readElementText();
    }
    return keys;
}

QSet<QString> keysOfInstaller() {
    QSet<QString> keys =
        keysInWindowDescription(contentOf(installerFolder + u"/Resources/InstallerWindow.ui"_s));
    QDirIterator sources(installerFolder + u"/Sources"_s, {u"*.cpp"_s, u"*.h"_s}, QDir::Files);
    while (sources.hasNext())
        keys += keysInCode(QString::fromUtf8(contentOf(sources.next())));
    return keys;
}

QList<TranslatedText> textsInFile(const QByteArray &file) {
    QList<TranslatedText> texts;
    QXmlStreamReader xml(file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"source") {
            texts << TranslatedText{.key = textOf(xml), .text = {}};
        } else if (xml.name() == u"translation" && !texts.isEmpty()) {
            texts.last().isFinished = !xml.attributes().hasAttribute(u"type"_s);
            texts.last().text = textOf(xml);
        }
    }
    return xml.hasError() ? QList<TranslatedText>() : texts;
}

QList<TranslatedText> textsOfLanguage(const QString &language) {
    return textsInFile(contentOf(installerFolder + u"/Resources/Translations/VelmoraInstaller_"_s +
                                 language + u".ts"_s));
}

QStringList placeholdersIn(const QString &format) {
    static const QRegularExpression placeholder(uR"(%(?:\d+\$)?(?:@|d|%)|\r|\n)"_s);
    QStringList placeholders;
    for (const auto &match : placeholder.globalMatch(format))
        placeholders << match.captured();
    if (format.contains(u'$'))
        placeholders.sort(); // their numbers tell which is which
    return placeholders;
}

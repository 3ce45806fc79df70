#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the operations on texts do, told step by step and as slowly as it comes, for comparison.

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace models {

int numberOfUnicodeCharacters(const QString &text);
QString trimmed(QString text, const std::function<bool(char16_t)> &isBlank);
bool isWhitespaceOrNewline(char16_t unit);
QString asSingleLine(QString text);
QStringList arrayOfLines(const QString &text);
QString withLineSeparator(QString text, const QString &separator);
QStringList componentsSeparatedByCharacter(const QString &text, QChar separator);
QString repeated(const QString &text, int count);

QString stringByEscapingCharacters(const QString &text, const QString &characters);
QString stringByExpandingEscapedCharacters(QString text, const QString &recognised);
QString expandedControlCharacters(QString text, bool includingBackslash);
QString stringWithObjCString(QString literal);
std::optional<QString> expandedPercentEscapes(const QString &text);
std::optional<QString> addedPercentEscapes(const QString &text);

qint64 numericValue(const QString &text);
float smartFloatValue(QString text);
QString withoutLoneSurrogates(const QString &text);
QString caseFolded(const QString &text);
int numericCompare(const QString &a, const QString &b);
bool matchesWildcardPattern(const QString &text, const QString &pattern);

QList<char32_t> utf32Characters(const QString &text);
QString emojiStringWithSkinColor(const QString &text, int skinColor);

} // namespace models

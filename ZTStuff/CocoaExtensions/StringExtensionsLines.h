#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Counting, trimming, cutting and repeating texts.

#include <QString>
#include <QStringList>

#include <cstdint>

// Thread: any, for all operations.
namespace StringExtensions {

// The number of Unicode characters: a pair of surrogates counts once, an unpaired one too.
std::int32_t numberOfUnicodeCharacters(const QString &receiver);

// The text without the white space and line ends of Unicode at both ends.
QString trimWhitespace(const QString &receiver);

// The text without blanks at both ends, where a blank is any unit below 33 or U+00A0 and nothing
// else: an em space stays.
QString stringByTrimmingWhitespace(const QString &receiver);

// The text with a space for each control or format character, and then trimmed as by
// trimWhitespace: "a\r\nb" is "a  b".
QString asSingleLine(const QString &receiver);

// The lines. One separator counts in the whole text: "\r\n" if it occurs at all, else "\n" if it
// occurs, else "\r"; other line ends stay inside the lines. At least one line.
QStringList arrayOfLines(const QString &receiver);

// The text with the separator for each "\r\n", then for each "\r", then for each "\n", without the
// step whose line end is the separator itself. A step sees what the ones before it wrote: with
// "\r\n" as separator a "\r\n" becomes "\r\r\n\r\n".
QString withLineSeparator(const QString &receiver, const QString &separator);

// The pieces between the units that equal the separator. Empty pieces count, except for one at the
// very end: ",a,,b," gives "", "a", "", "b"; the empty text gives none.
QStringList componentsSeparatedByCharacter(const QString &receiver, QChar separator);

// The text `count` times; empty when the count is below 1, or when there is no memory for it.
QString repeated(const QString &receiver, std::int32_t count);

} // namespace StringExtensions

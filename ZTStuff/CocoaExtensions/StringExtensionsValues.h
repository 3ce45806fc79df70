#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Values read from loosely written texts, comparison and matching.

#include "ZTStuff/ZTClasses/ZTCompatibility/Ordering.h"

#include <QString>

#include <cstdint>

// Thread: any, for all operations.
namespace StringExtensions {

// The number at the start, behind white space of ASCII, as the C library reads it: "0x1F" is 31,
// "010" is 8. Held within 64 bits; 0 when there is none.
std::int64_t numericValue(const QString &receiver);

// True when the text begins with "T", "t", "Y", "y" or "1", or with an integer other than 0.
bool booleanValue(const QString &receiver);

// Whether the text is made of the digits 0 to 9 and not empty.
bool isIntegerNumber(const QString &receiver);

// The decimal number at the start, with a comma or a period as its decimal mark. When both occur,
// the one that occurs first groups digits: "1.234,5" and "1,234.5" are 1234.5.
float smartFloatValue(const QString &receiver);

// The MD5 digest of the text's UTF-8, up to the first null character, as 32 lower-case hexadecimal
// digits. An unpaired surrogate counts as "?".
QString MD5String(const QString &receiver);

// The order of two texts in which numbers count by their value: "file9" comes before "file10". All
// else counts unit by unit, or for the second one, case by case folded away.
Ordering numericCompare(const QString &receiver, const QString &other);
Ordering caseInsensitiveNumericCompare(const QString &receiver, const QString &other);

// Whether the text is the pattern, in which "*" stands for any text and nothing else is special.
bool matchesWildcardPattern(const QString &receiver, const QString &pattern);

// The text with each match of the regular expression replaced by the template, in which "$1" is
// what the first group matched, "$0" the whole match, and a backslash makes the next character an
// ordinary one. Word boundaries are those of Unicode. A pattern that is none, or whose search grows
// out of all proportion to the text, is logged, and the receiver is the answer; so it is where no
// regular expressions are available, which is logged once.
QString stringByReplacingOccurrencesOfRegexPattern(const QString &receiver, const QString &pattern,
                                                   const QString &withTemplate);

} // namespace StringExtensions

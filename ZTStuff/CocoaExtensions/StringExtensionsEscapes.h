#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Backslash escapes, percent escapes and string literals of source code.

#include <QString>

// Thread: any, for all operations.
namespace StringExtensions {

// Line feed, carriage return, tab and backslash: what is escaped by default. It is told from other
// texts of the same content by its storage, which its copies share.
extern const QString ZTEscapeCharacters;

// The text with a backslash before characters of the set; a tab becomes "\t", a carriage return
// "\r", a line feed "\n".
//
// The search for the next character goes on in the receiver, while the edit is made at the same
// index of the growing result: the first match is escaped, and each later one falls on the unit
// that stands at its index by then. From a match the search skips the unit behind it. It ends with
// the receiver, although the result is longer.
QString stringByEscapingCharacters(const QString &receiver, const QString &characters);

// The text with the escapes undone that a backslash and one unit of the set make: "t", "r" and "n"
// become tab, carriage return and line feed, and others lose their backslash. Line feed, carriage
// return and tab in the set stand for their letters; for ZTEscapeCharacters itself the letters "n",
// "r", "t" and the backslash are recognised. The unit after an escape may begin another; a
// backslash that an escape left may not.
QString stringByExpandingEscapedCharacters(const QString &receiver, const QString &characters);

// Whether two backslashes stand for one, or for themselves.
enum class EscapedBackslash { Expanded, Kept };

// The text with "\r", "\t" and "\n" expanded, and pairs of backslashes as told; no escape begins
// with the second backslash of a pair.
QString stringByExpandingEscapedControlCharactersIncludingBackslash(const QString &receiver,
                                                                    EscapedBackslash backslash);

// The same with pairs expanded.
QString stringByExpandingEscapedControlCharacters(const QString &receiver);

// The text with percent escapes of its UTF-8 for all but the characters that an address may hold:
// letters and digits of ASCII and -_.~!*'();:@&=+$,/? . Escapes that are there already are expanded
// first, so that none is escaped twice. The receiver when it has an unpaired surrogate.
QString stringWithPercentEscapes(const QString &receiver);

// The text with its percent escapes, which are read as UTF-8, expanded. The receiver when a percent
// sign begins no escape, or the bytes of adjacent escapes are not UTF-8.
QString stringWithExpandedPercentEscapes(const QString &receiver);

// The text of a literal as it stands in source code, "@" and both quotes included; empty when it
// has at most two units. The escapes are replaced one kind after the other, pairs of backslashes
// first: a backslash that such a pair left counts as the beginning of the next kind's escape.
QString stringWithObjCString(const QString &literal);

// The text itself.
QString objCStringWithString(const QString &text);

} // namespace StringExtensions

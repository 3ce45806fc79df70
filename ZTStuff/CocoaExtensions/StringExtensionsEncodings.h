#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Texts from bytes whose encoding is not declared well, and texts appended to files.

#include "ZTStuff/ZTClasses/ZTCompatibility/FourCharCode.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/StringEncoding.h"

#include <QString>

#include <cstdint>
#include <optional>

// Thread: any, for all operations.
namespace StringExtensions {

// The text of bytes in Mac OS Roman, of so many, or up to the first null byte. Empty for a null
// pointer or a negative length.
QString stringWithMacRomanCString(const char *bytes, std::int32_t length);
QString stringWithMacRomanCString(const char *bytes);

// The four characters of the code.
QString stringWithOSType(FourCharCode code);

// The encoding that a byte order mark at the start of the file tells; the default where there is
// none, or the file cannot be read. UTF-16 in little-endian order that begins with a null character
// counts as UTF-32.
StringEncoding explicitEncodingOfFile(const QString &path, StringEncoding defaultEncoding);

// The text of a file in an unknown encoding: in the one that a byte order mark tells, else in the
// one that is noted beside the file, else in UTF-8 if it is that, else in the one of Unicode, Mac
// OS Roman, Latin-1 and UTF-8 that makes the most reasonable text of it. No value when the file
// cannot be read or is empty.
std::optional<QString> stringWithBestEncodingFromFile(const QString &path);

// How much the text looks like one, from its first 1000 units: letters, digits, spaces, tabs and
// line ends count for it, controls against it, and characters that Unicode has not defined ten
// times against it; as a share of the units. Not a number for an empty text.
float reasonableTextFactor(const QString &receiver);

// The text between the first "<name>" and the next "</name>"; no value when either is missing.
// Attributes and nesting are not understood.
std::optional<QString> xmlElementForKey(const QString &receiver, const QString &name);

// Appends the text to the file, which is made when it is not there; the folder is not. Each text
// stays whole however many processes append at the same time. False when the file cannot be written
// or the encoding does not have all characters of the text; then the file may have been made.
bool appendToFile(const QString &receiver, const QString &path, StringEncoding encoding);

} // namespace StringExtensions

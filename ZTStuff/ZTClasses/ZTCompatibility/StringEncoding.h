#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Encodings of text, by the reference platform's numbers, and text in them.

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <optional>

// The ones that the code names. Other numbers are encodings too, see encodingWithIANAName.
enum class StringEncoding : std::uint32_t {
    None = 0,
    ASCII = 1,
    UTF8 = 4,
    ISOLatin1 = 5,
    Unicode = 10, // UTF-16 with a byte order mark, or else in the order of the processor
    MacOSRoman = 30,
    UTF16BigEndian = 0x90000100,
    UTF16LittleEndian = 0x94000100,
    UTF32BigEndian = 0x98000100,
    UTF32LittleEndian = 0x9C000100
};

// The text of the bytes; none when they are not valid in the encoding, or it is not known. A mark
// at the start is left out. UTF-16 takes all units as they come; half a unit at the end does not
// count. Thread: any, as for all that follow.
std::optional<QString> stringWithData(QByteArrayView bytes, StringEncoding encoding);

// The bytes of the text; none when the encoding does not have all its characters, or is not known.
// Only StringEncoding::Unicode has a mark.
std::optional<QByteArray> dataUsingEncoding(const QString &text, StringEncoding encoding);

// The encoding of a name that is registered for the Internet, or in common use there, in any case;
// none for others.
std::optional<StringEncoding> encodingWithIANAName(QByteArrayView name);

// The name that ICU knows the encoding by; null for an unknown one.
const char *nameOfEncoding(StringEncoding encoding);

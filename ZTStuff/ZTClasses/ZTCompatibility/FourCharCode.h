#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Four-character codes: 32-bit numbers written as four characters of Mac OS Roman.

#include <QString>

#include <cstdint>

using FourCharCode = std::uint32_t;

// The code that an application without a creator signature has: "????".
inline constexpr FourCharCode FourCharCodeNone = 0x3F3F3F3F;

// A code written in the source: fourCharCode("aevt").
consteval FourCharCode fourCharCode(const char (&text)[5]) {
    FourCharCode code = 0;
    for (int index = 0; index < 4; ++index)
        code = code << 8 | static_cast<unsigned char>(text[index]);
    return code;
}

// The code that the text writes. 0 when the text is not four characters that Mac OS Roman has.
// Thread: any.
FourCharCode UTGetOSTypeFromString(const QString &text);

// The four characters of the code; the way back of UTGetOSTypeFromString. Thread: any.
QString UTCreateStringForOSType(FourCharCode code);

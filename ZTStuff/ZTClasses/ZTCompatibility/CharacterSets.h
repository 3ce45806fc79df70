#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Sets of characters: those that the reference platform defines, and sets listed in a text.

#include <QChar>
#include <QStringView>
#include <QVarLengthArray>

#include <array>
#include <cstdint>

// White space and line ends: the separators of Unicode, the tabs and line ends of ASCII, U+0085,
// and the zero-width space, which was a separator when the set was drawn up. None lies beyond
// U+FFFF. Thread: any, as for all that follow.
inline bool isWhitespaceOrNewline(char16_t unit) {
    if (unit < 0x85)
        return unit == u' ' || (unit >= 0x09 && unit <= 0x0D);
    return unit == 0x85 || unit == 0xA0 || unit == 0x1680 || (unit >= 0x2000 && unit <= 0x200B) ||
           unit == 0x2028 || unit == 0x2029 || unit == 0x202F || unit == 0x205F || unit == 0x3000;
}

// Control characters and format characters (categories Cc and Cf).
inline bool isControlCharacter(char32_t scalar) {
    if (scalar < 0x7F)
        return scalar < 0x20;
    const QChar::Category category = QChar::category(scalar);
    return category == QChar::Other_Control || category == QChar::Other_Format;
}

// Letters, marks and numbers of every script.
inline bool isAlphanumericCharacter(char32_t scalar) {
    const QChar::Category category = QChar::category(scalar);
    return category <= QChar::Number_Other ||
           (category >= QChar::Letter_Uppercase && category <= QChar::Letter_Other);
}

// Characters that Unicode has not defined, those that it never will among them.
inline bool isIllegalCharacter(char32_t scalar) {
    return QChar::category(scalar) == QChar::Other_NotAssigned;
}

// The characters of a text. A surrogate counts as a character of its own where it has no partner.
// Nothing is allocated for up to 64 characters beyond U+FFFF.
class CharacterSet {
public:
    explicit CharacterSet(QStringView characters);

    bool contains(char32_t scalar) const;

private:
    std::array<std::uint64_t, 0x10000 / 64> m_units = {}; // one bit for each
    QVarLengthArray<char32_t, 64> m_beyond;               // in order
};

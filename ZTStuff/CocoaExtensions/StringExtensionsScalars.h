#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Texts by Unicode scalars; virtual characters, which are single values for glyphs of several
// scalars; skin tones of emoji; what a key types.

#include <QString>
#include <QStringList>

#include <cstdint>

namespace StringExtensions {

// Calls `callback` with each scalar. A surrogate pair is one, an unpaired low surrogate stands for
// itself. An unpaired high surrogate is left out, and so is the unit behind it. Thread: any.
template <typename Callback>
void forUTF32Characters(const QString &receiver, Callback &&callback) {
    const char16_t *unit = QStringView(receiver).utf16();
    const char16_t *const end = unit + receiver.size();
    // Most texts have few pairs: in blocks without one, several units can be worked on at a time.
    constexpr int blockLength = 32;
    while (unit != end) {
        if (end - unit >= blockLength) {
            char16_t highSurrogates = 0;
            for (int index = 0; index < blockLength; ++index)
                highSurrogates |= (unit[index] & 0xFC00) == 0xD800 ? 0xFFFF : 0;
            if (highSurrogates == 0) {
                for (int index = 0; index < blockLength; ++index)
                    callback(char32_t{unit[index]});
                unit += blockLength;
                continue;
            }
        }
        const char16_t *const blockEnd = end - unit >= blockLength ? unit + blockLength : end;
        while (unit < blockEnd) {
            const char32_t first = *unit++;
            if ((first & 0xFC00) != 0xD800) {
                callback(first);
                continue;
            }
            if (unit == end)
                return;
            const char32_t second = *unit++;
            if ((second & 0xFC00) == 0xDC00)
                callback((first << 10) + second - 0x35FDC00);
        }
    }
}

// The scalar at the index, which counts units: that of a pair at its first unit, the unit itself
// otherwise. 0 where there is none. Thread: any.
char32_t longCharacterAtIndex(const QString &receiver, std::int32_t index);

// The units, and the scalars as forUTF32Characters delivers them, in hexadecimal with at least four
// digits each and commas between: "D83D,DE00" and "1F600". Thread: any.
QString UTF16SequenceString(const QString &receiver);
QString UTF32SequenceString(const QString &receiver);

// The text of one 32-bit value: a unit, a surrogate pair, or, for a virtual character, the whole
// glyph. Values of virtual characters that stand for nothing, and those that are no Unicode
// scalars, make units like others. The text of a ligature is the list's own. Thread: any.
QString stringWithUTF32Character(char32_t character);

// Virtual characters lie in planes that Unicode leaves empty:
//   0xA0000 + 26 * a + b   the flag of the regional indicators a and b, 0 to 25
//   0xA0300 + n            row n of ZWJ_SEQUENCES
//   0xA1000 + n            row n of KEYCAP_SEQUENCES
//   0xB0000 + n            ligature n, whether it is defined or not, up to 0xBFFFE
// Thread: any.
bool isVirtualCharacter(std::int32_t character);

// The scalars of a virtual character, ended by 0; null for other values and for ligatures. Those of
// a flag lie in a buffer of the calling thread, which its next call for a flag overwrites.
const char32_t *utf32CharactersForVirtualCharacter(std::int32_t character);

// The texts that 0xB0000 and the values behind it stand for from now on. Thread: any.
void defineLigatures(const QStringList &ligatures);

// The emoji with the skin colour 1 to 6, of which 1 and 2 are the same tone; without one for other
// numbers. A tone that is there is replaced, though by U+0000 when there is none to put in its
// place; at the very start it does not count as one. A new tone goes behind the first character,
// and takes the place of a U+FE0F before a joiner. Thread: any.
QString emojiStringWithSkinColor(const QString &receiver, std::int32_t skinColor);

// The text that a key types in the keyboard layout in use. `keyCode` is the reference platform's
// number for the key's place on the keyboard, of which the low 16 bits count. Bits of `modifiers`:
// 0x01 command, 0x02 shift, 0x04 caps lock, 0x08 option, 0x10 control. A dead key answers its
// accent. "<ERR>" when the layout is not known, or has no such key. Thread: any.
QString stringWithVirtualKeyCode(std::uint32_t keyCode, std::uint32_t modifiers);

} // namespace StringExtensions

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/StringExtensionsScalars.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/Scalars.h"

#include "Platform/KeyboardLayout.h"
#include "Platform/Platform.h"

#include <QStringBuilder>

#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace StringExtensions {

namespace {

// Appends the value in upper-case hexadecimal with at least four digits, after a comma unless it is
// the first.
void appendHexadecimal(QString &list, char32_t value) {
    static constexpr char16_t digits[] = u"0123456789ABCDEF";
    std::array<char16_t, 8> text = {};
    std::size_t first = text.size();
    for (; value != 0 || first > text.size() - 4; value >>= 4)
        text.at(--first) = digits[value & 15];
    if (!list.isEmpty())
        list.append(u',');
    list.append(QStringView(text).mid(static_cast<qsizetype>(first)));
}

// The skin tones' surrogate pairs share their high surrogate.
constexpr char16_t highSurrogateOfTones = 0xD83C;

// The modifier of a skin colour; 0 for none.
char32_t toneModifier(std::int32_t skinColor) {
    static constexpr std::array<char32_t, 6> modifiers = {0x1F3FB, 0x1F3FB, 0x1F3FC,
                                                          0x1F3FD, 0x1F3FE, 0x1F3FF};
    if (skinColor < 1 || skinColor > 6)
        return 0;
    return modifiers.at(static_cast<std::size_t>(skinColor - 1));
}

// The place of the first modifier that is not at the very start; -1 when there is none.
qsizetype indexOfToneModifier(QStringView text) {
    for (qsizetype index = 1; index + 1 < text.size(); ++index) {
        const char16_t low = text.utf16()[index + 1];
        if (text.utf16()[index] == highSurrogateOfTones && low >= 0xDFFB && low <= 0xDFFF)
            return index;
    }
    return -1;
}

} // namespace

char32_t longCharacterAtIndex(const QString &receiver, std::int32_t index) {
    if (index < 0 || index >= receiver.size())
        return 0;
    return scalarAt(receiver, index).value;
}

QString UTF16SequenceString(const QString &receiver) {
    QString list;
    list.reserve(receiver.size() * 5);
    for (const QChar unit : receiver)
        appendHexadecimal(list, unit.unicode());
    return list;
}

QString UTF32SequenceString(const QString &receiver) {
    QString list;
    list.reserve(receiver.size() * 5);
    forUTF32Characters(receiver, [&list](char32_t scalar) { appendHexadecimal(list, scalar); });
    return list;
}

QString emojiStringWithSkinColor(const QString &receiver, std::int32_t skinColor) {
    if (receiver.isEmpty())
        return receiver;
    const QStringView text(receiver);
    const char32_t modifier = toneModifier(skinColor);
    const qsizetype place = indexOfToneModifier(text);
    const char32_t present = place < 0 ? 0 : QChar::surrogateToUcs4(text[place], text[place + 1]);
    if (modifier == present)
        return receiver;
    if (place >= 0)
        return text.left(place) % stringWithUTF32Character(modifier) % text.mid(place + 2);
    const qsizetype first = scalarAt(text, 0).length;
    QStringView rest = text.mid(first);
    // The variation selector would part the tone from the joiner.
    if (rest.startsWith(u"\uFE0F\u200D"))
        rest = rest.mid(1);
    return text.left(first) % stringWithUTF32Character(modifier) % rest;
}

QString stringWithVirtualKeyCode(std::uint32_t keyCode, std::uint32_t modifiers) {
    const zt::KeyboardLayout::Modifiers state = {.shift = (modifiers & 0x02) != 0,
                                                 .capsLock = (modifiers & 0x04) != 0,
                                                 .option = (modifiers & 0x08) != 0,
                                                 .control = (modifiers & 0x10) != 0};
    const std::optional<QString> text = zt::currentPlatform().keyboardLayout.textForKey(
        static_cast<std::uint16_t>(keyCode & 0xFFFF), state);
    constexpr qsizetype longestText = 4;
    return text && text->size() <= longestText ? *text : u"<ERR>"_s;
}

} // namespace StringExtensions

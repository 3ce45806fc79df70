// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/TextInputKeyboardLayout.h"

#include "Platform/macos/CFOwner.h"

#include <Carbon/Carbon.h>

#include <array>

namespace zt {

namespace {

// The modifier keys as the key translation has them.
UInt32 stateOf(const KeyboardLayout::Modifiers &modifiers) {
    return (modifiers.shift ? 0x02U : 0U) | (modifiers.capsLock ? 0x04U : 0U) |
           (modifiers.option ? 0x08U : 0U) | (modifiers.control ? 0x10U : 0U);
}

// Belongs to the source.
CFDataRef layoutOf(const CFOwner<TISInputSourceRef> &source) {
    return source ? static_cast<CFDataRef>(
                        TISGetInputSourceProperty(source.get(), kTISPropertyUnicodeKeyLayoutData))
                  : nullptr;
}

} // namespace

std::optional<QString> TextInputKeyboardLayout::textForKey(std::uint16_t keyCode,
                                                           const Modifiers &modifiers) const {
    CFOwner source(TISCopyCurrentKeyboardInputSource());
    CFDataRef layout = layoutOf(source);
    if (!layout) {
        // An input method, which has no layout of its own but works with one.
        source = CFOwner(TISCopyCurrentKeyboardLayoutInputSource());
        layout = layoutOf(source);
    }
    if (!layout)
        return std::nullopt;
    UInt32 deadKeys = 0;
    std::array<UniChar, 4> units = {};
    UniCharCount length = 0;
    const OSStatus status =
        UCKeyTranslate(reinterpret_cast<const UCKeyboardLayout *>(CFDataGetBytePtr(layout)),
                       keyCode, kUCKeyActionDisplay, stateOf(modifiers), LMGetKbdType(), 0,
                       &deadKeys, units.size(), &length, units.data());
    if (status != noErr)
        return std::nullopt;
    return QString(reinterpret_cast<const QChar *>(units.data()), qsizetype(length));
}

} // namespace zt

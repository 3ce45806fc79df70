// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/CFText.h"

namespace zt {

QString textOf(CFStringRef text) {
    if (!text)
        return {};
    const CFIndex length = CFStringGetLength(text);
    QString units(length, Qt::Uninitialized);
    CFStringGetCharacters(text, CFRangeMake(0, length), reinterpret_cast<UniChar *>(units.data()));
    return units;
}

CFOwner<CFStringRef> makeCFText(const QString &text) {
    return CFOwner(CFStringCreateWithCharacters(
        kCFAllocatorDefault, reinterpret_cast<const UniChar *>(text.utf16()), text.size()));
}

std::optional<QString> pathOf(CFURLRef url) {
    if (!url)
        return std::nullopt;
    const CFOwner path(CFURLCopyFileSystemPath(url, kCFURLPOSIXPathStyle));
    return path ? std::optional(textOf(path.get())) : std::nullopt;
}

CFOwner<CFURLRef> makeFileUrl(const QString &path) {
    if (path.isEmpty())
        return {};
    const CFOwner<CFStringRef> text = makeCFText(path);
    return CFOwner(CFURLCreateWithFileSystemPath(kCFAllocatorDefault, text.get(),
                                                 kCFURLPOSIXPathStyle, Boolean(false)));
}

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/FileReference.h"

#include "Platform/macos/CFText.h"

#include <CoreServices/CoreServices.h>

namespace zt {

std::optional<QString> pathOf(const FSRef &item) {
    const CFOwner url(CFURLCreateFromFSRef(kCFAllocatorDefault, &item));
    return pathOf(url.get());
}

std::optional<QString> targetOfAliasFile(const QString &path) {
    const CFOwner<CFURLRef> url = makeFileUrl(path);
    FSRef item = {};
    if (!url || CFURLGetFSRef(url.get(), &item) == 0)
        return std::nullopt;
    Boolean targetIsFolder = 0;
    Boolean wasAliased = 0;
    if (FSResolveAliasFile(&item, Boolean(true), &targetIsFolder, &wasAliased) != noErr ||
        wasAliased == 0)
        return std::nullopt;
    return pathOf(item);
}

} // namespace zt

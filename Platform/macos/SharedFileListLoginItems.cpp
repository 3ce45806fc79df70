// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/SharedFileListLoginItems.h"

#include "Platform/macos/CFText.h"

#include <CoreServices/CoreServices.h>

namespace zt {

namespace {

std::optional<QString> resolvedPath(LSSharedFileListItemRef item) {
    CFOwner<CFURLRef> url;
    if (LSSharedFileListItemResolve(item, 0, url.receive(), nullptr) != noErr)
        return std::nullopt;
    return pathOf(url.get());
}

} // namespace

std::optional<std::vector<std::optional<QString>>> SharedFileListLoginItems::resolvedPaths() const {
    const CFOwner list(
        LSSharedFileListCreate(kCFAllocatorDefault, kLSSharedFileListSessionLoginItems, nullptr));
    if (!list)
        return std::nullopt;
    UInt32 seed = 0;
    const CFOwner items(LSSharedFileListCopySnapshot(list.get(), &seed));
    if (!items)
        return std::nullopt;
    std::vector<std::optional<QString>> paths;
    for (CFIndex index = 0; index < CFArrayGetCount(items.get()); ++index) {
        void *const item = const_cast<void *>(CFArrayGetValueAtIndex(items.get(), index));
        paths.push_back(resolvedPath(static_cast<LSSharedFileListItemRef>(item)));
    }
    return paths;
}

} // namespace zt

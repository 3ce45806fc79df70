// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/FoundationUserDefaults.h"

#include "Platform/macos/CFValues.h"
#include "Platform/macos/FoundationText.h"

namespace zt {

namespace {

std::optional<QVariant> valueIn(NSUserDefaults *defaults, const QString &key) {
    const id object = [defaults objectForKey:nativeTextOf(key)];
    QVariant value = valueOf((__bridge CFTypeRef)object);
    return value.isValid() ? std::optional(std::move(value)) : std::nullopt;
}

} // namespace

std::optional<QVariant> FoundationUserDefaults::objectForKey(const QString &key) const {
    @autoreleasepool {
        return valueIn([NSUserDefaults standardUserDefaults], key);
    }
}

// An object of its own each time: a suite stays in the search of the one that it was added to.
std::optional<QVariant> FoundationUserDefaults::objectForKey(const QString &key,
                                                             const QString &suiteName) const {
    if (suiteName.isEmpty())
        return std::nullopt;
    @autoreleasepool {
        NSUserDefaults *const defaults = [[NSUserDefaults alloc] init];
        [defaults addSuiteNamed:nativeTextOf(suiteName)];
        return valueIn(defaults, key);
    }
}

} // namespace zt

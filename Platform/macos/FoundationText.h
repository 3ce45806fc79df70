#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Texts on their way to and from Foundation. For Objective-C++ alone.

#include "Platform/macos/CFText.h"

#import <Foundation/Foundation.h>

namespace zt {

// Empty for nil. Thread: any, for both.
inline QString textOf(NSString *text) {
    return textOf((__bridge CFStringRef)text);
}

inline NSString *nativeTextOf(const QString &text) {
    return (__bridge_transfer NSString *)makeCFText(text).release();
}

} // namespace zt

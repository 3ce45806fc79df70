#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Texts on their way to and from Core Foundation.

#include "Platform/macos/CFOwner.h"

#include <QString>

#include <optional>

namespace zt {

// The same text, UTF-16 unit by unit. Empty for a null reference. Thread: any, for all that follow.
QString textOf(CFStringRef text);

// The text as an object; null only when there is no memory.
CFOwner<CFStringRef> makeCFText(const QString &text);

// The path of an address of a file. No value when it has none, and for a null reference.
std::optional<QString> pathOf(CFURLRef url);

// The address of the item at the path. Null when the path is empty.
CFOwner<CFURLRef> makeFileUrl(const QString &path);

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// References of the File Manager, which follow an item when it is renamed.

#include <QString>

#include <optional>

struct FSRef;

namespace zt {

// The path of the item now. No value when it is gone. Thread: any, for all that follow.
std::optional<QString> pathOf(const FSRef &item);

// What the alias file at the path leads to in the end, through all others on the way. No value when
// the item is no alias, and when nothing is at the end.
std::optional<QString> targetOfAliasFile(const QString &path);

} // namespace zt

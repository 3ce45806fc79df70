#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Shortcuts to other items: symbolic links, and the desktop's entries of the kind "Link".

#include <QByteArray>
#include <QString>

#include <optional>

namespace zt {

// What the shortcut leads to in the end, without links in its path. No value when the item is no
// shortcut, nothing is at the end, or there is no end. Thread: any, as for the other.
std::optional<QString> targetOfAlias(const QString &path);

// The path that a desktop entry links to: that of its address, when that is a file of this machine.
// No value for other entries and other texts.
std::optional<QByteArray> pathInLinkEntry(const QByteArray &entry);

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What is kept with a file beside its content.

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>

namespace zt {

// The largest attribute that is read, in bytes: a classic resource map cannot address more.
inline constexpr qsizetype maximumFileAttributeSize = qsizetype(16) * 1024 * 1024;

// The extended attribute that programs know by the name ("com.apple.TextEncoding"). No value when
// the item has none, and when it cannot be read. Thread: any, for both.
std::optional<QByteArray> readFileAttribute(const QString &path, const QByteArray &name);

// The data of the classic resource with the type, a four-character code, and the number. No value
// when the item has none, when it is compressed, and when it is damaged.
std::optional<QByteArray> readFileResource(const QString &path, std::uint32_t type,
                                           std::int16_t number);

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Classic resources: small pieces of data beside a file, told apart by a type and a number.

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <optional>

namespace zt {

// The resource fork of the file: in an AppleDouble companion "._name" beside it, else in an
// extended attribute. No value when the file has none, or none that can be read. Thread: any.
std::optional<QByteArray> readResourceFork(const QString &path);

// The resource fork within the content of an AppleDouble file; empty when the content is not one or
// holds none. A view of the same bytes. Thread: any.
QByteArrayView resourceForkOfAppleDouble(QByteArrayView content);

// The data of the resource with the type and the number. No value when there is none, when it is
// compressed, and when the fork is damaged on the way to it. A view of the same bytes. Thread: any.
std::optional<QByteArrayView> resourceInFork(QByteArrayView fork, std::uint32_t type,
                                             std::int16_t number);

} // namespace zt

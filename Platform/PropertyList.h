#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Property lists: the dictionaries in which bundles describe themselves.

#include "Platform/Result.h"

#include <QByteArray>
#include <QVariant>

namespace zt {

// The largest property list that is read, in bytes. Information dictionaries are a few kilobytes;
// a larger file is refused rather than read.
inline constexpr qint64 maximumPropertyListSize = qint64(16) * 1024 * 1024;

// Reads a property list in XML, binary or the old text form, told apart by its content.
// Dictionaries become QVariantMap, arrays QVariantList, strings QString, data QByteArray, dates
// QDateTime (UTC), booleans bool, integers qlonglong, reals double. Fails on anything malformed.
// Thread: any.
Result<QVariant> parsePropertyList(const QByteArray &content);

// The same from a file. Fails also when the file cannot be read or is larger than
// maximumPropertyListSize. Thread: any.
Result<QVariant> readPropertyList(const QString &path);

} // namespace zt

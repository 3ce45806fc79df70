#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Mac OS Roman, the encoding in which four-character codes are written.

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <optional>

namespace zt {

// Every byte has a character. Thread: any.
QString stringFromMacRoman(QByteArrayView bytes);

// No value when the encoding does not have all characters of the text. Thread: any.
std::optional<QByteArray> macRomanFromString(const QString &text);

// The four bytes as one number, the first character in the highest byte. No value when the text is
// not exactly four characters that the encoding has. An accent that stands behind its letter counts
// as part of it. Thread: any.
std::optional<std::uint32_t> fourCharacterCode(const QString &text);

} // namespace zt

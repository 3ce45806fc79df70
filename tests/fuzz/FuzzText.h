#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Texts from the bytes that a fuzzer makes up.

#include <QString>
#include <QStringList>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

// The bytes as UTF-8; every other form of text comes of that by what follows a backquote: four
// hexadecimal digits are a unit of their own, a surrogate too.
inline QString fuzzText(const std::uint8_t *data, std::size_t size) {
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    QString result;
    for (qsizetype index = 0; index < text.size(); ++index) {
        bool isNumber = false;
        const QString digits = text.mid(index + 1, 4);
        const ushort unit = digits.toUShort(&isNumber, 16);
        if (text[index] == u'`' && digits.size() == 4 && isNumber) {
            result.append(QChar(unit));
            index += 4;
        } else {
            result.append(text[index]);
        }
    }
    return result;
}

// The first lines of the text, and what is behind them as the last.
inline QStringList fuzzParts(const QString &text, int count) {
    QStringList parts = text.split(u'\n');
    while (parts.size() < count)
        parts.append(QString());
    const QString rest = parts.mid(count - 1).join(u'\n');
    return parts.mid(0, count - 1) << rest;
}

// Ends the program when something that must hold does not.
inline void require(bool holds) {
    if (!holds)
        std::abort();
}

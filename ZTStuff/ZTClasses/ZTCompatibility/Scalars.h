#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Unicode scalars in a text of UTF-16 units.

#include <QChar>
#include <QStringView>

// One character and the number of its units.
struct Scalar {
    char32_t value;
    int length;
};

// The character that begins at the index. A surrogate without its partner behind it stands for
// itself. Thread: any, as for all that follow.
inline Scalar scalarAt(QStringView text, qsizetype index) {
    const char16_t unit = text.utf16()[index];
    if (QChar::isHighSurrogate(unit) && index + 1 < text.size() &&
        QChar::isLowSurrogate(text.utf16()[index + 1]))
        return {QChar::surrogateToUcs4(unit, text.utf16()[index + 1]), 2};
    return {unit, 1};
}

// The character that ends right before the index, which is not 0.
inline Scalar scalarBefore(QStringView text, qsizetype index) {
    const char16_t unit = text.utf16()[index - 1];
    if (QChar::isLowSurrogate(unit) && index >= 2 &&
        QChar::isHighSurrogate(text.utf16()[index - 2]))
        return {QChar::surrogateToUcs4(text.utf16()[index - 2], unit), 2};
    return {unit, 1};
}

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The code pages of rich text.

#include "ZTStuff/ZTClasses/ZTCompatibility/TextConverter.h"

#include <QByteArrayView>
#include <QString>

#include <map>
#include <optional>

inline constexpr int macRomanCodePage = 10000;
inline constexpr int westernCodePage = 1252;
// The private code page of fonts that hold symbols in place of letters.
inline constexpr int symbolCodePage = 42;

// The code page that a font's character set stands for; no value for the sets that stand for that
// of the document. Thread: any.
std::optional<int> codePageOfCharacterSet(int characterSet);

// The character that such a font shows for the byte: bullets and check marks, which is what these
// fonts are used for in texts. Thread: any.
QChar symbolCharacter(unsigned char byte);

// Turns the bytes of a document into text; keeps a converter for each code page that was met.
class RtfCodePages {
public:
    // Bytes of an unknown code page are taken for western ones.
    QString toText(QByteArrayView bytes, int codePage);

private:
    const TextConverter *converterFor(int codePage);

    std::map<int, std::optional<TextConverter>> m_converters;
};

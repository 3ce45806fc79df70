#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Rich text cut into its tokens.

#include <cstdint>
#include <string_view>

struct RtfToken {
    enum class Kind : std::uint8_t {
        End,           // of the content
        GroupStart,    // {
        GroupEnd,      // }
        ControlWord,   // \name or \name42: `text` is the name
        ControlSymbol, // \ and one character that is no letter: `text` is the character
        Byte,          // \'e9: `parameter` is the byte
        Text,          // plain bytes without line ends
        Binary         // the raw bytes that \binN announces
    };

    Kind kind = Kind::End;
    std::string_view text = {}; // points into the content
    int parameter = 0;
    bool hasParameter = false;
};

// Reads one token after the other. Any bytes give some tokens; there is no failure. A backslash
// before the end of a line is the control word "par". The content must outlive it.
class RtfTokenizer {
public:
    explicit RtfTokenizer(std::string_view content) : m_rest(content) {}

    RtfToken next();

private:
    RtfToken readControl();
    RtfToken readControlWord();
    RtfToken readHexadecimalByte();
    RtfToken readText();

    std::string_view m_rest; // what was not read yet
};

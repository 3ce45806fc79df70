// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/RtfTokenizer.h"

#include <algorithm>

namespace {

bool isLetter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

bool isLineEnd(char character) {
    return character == '\r' || character == '\n';
}

int hexadecimalDigit(char character) {
    if (isDigit(character))
        return character - '0';
    if (character >= 'a' && character <= 'f')
        return character - 'a' + 10;
    return character >= 'A' && character <= 'F' ? character - 'A' + 10 : -1;
}

} // namespace

RtfToken RtfTokenizer::next() {
    while (!m_rest.empty() && isLineEnd(m_rest.front()))
        m_rest.remove_prefix(1);
    if (m_rest.empty())
        return {};
    switch (m_rest.front()) {
    case '{':
        m_rest.remove_prefix(1);
        return {.kind = RtfToken::Kind::GroupStart};
    case '}':
        m_rest.remove_prefix(1);
        return {.kind = RtfToken::Kind::GroupEnd};
    case '\\':
        m_rest.remove_prefix(1);
        return readControl();
    default:
        return readText();
    }
}

RtfToken RtfTokenizer::readText() {
    const std::size_t length = std::min(m_rest.find_first_of("\\{}\r\n"), m_rest.size());
    const RtfToken token = {.kind = RtfToken::Kind::Text, .text = m_rest.substr(0, length)};
    m_rest.remove_prefix(length);
    return token;
}

RtfToken RtfTokenizer::readControl() {
    if (m_rest.empty())
        return {};
    const char first = m_rest.front();
    if (isLetter(first))
        return readControlWord();
    if (isLineEnd(first)) {
        m_rest.remove_prefix(1);
        return {.kind = RtfToken::Kind::ControlWord, .text = "par"};
    }
    if (first == '\'')
        return readHexadecimalByte();
    const RtfToken token = {.kind = RtfToken::Kind::ControlSymbol, .text = m_rest.substr(0, 1)};
    m_rest.remove_prefix(1);
    return token;
}

RtfToken RtfTokenizer::readControlWord() {
    RtfToken token = {.kind = RtfToken::Kind::ControlWord};
    std::size_t length = 0;
    while (length < m_rest.size() && isLetter(m_rest[length]))
        ++length;
    token.text = m_rest.substr(0, length);
    m_rest.remove_prefix(length);

    const bool isNegative = m_rest.size() > 1 && m_rest[0] == '-' && isDigit(m_rest[1]);
    if (isNegative)
        m_rest.remove_prefix(1);
    // Larger numbers than anything means are all the same.
    constexpr int limit = 100'000'000;
    while (!m_rest.empty() && isDigit(m_rest.front())) {
        token.hasParameter = true;
        token.parameter = std::min(limit, token.parameter * 10 + (m_rest.front() - '0'));
        m_rest.remove_prefix(1);
    }
    if (isNegative)
        token.parameter = -token.parameter;
    // One blank belongs to the word.
    if (!m_rest.empty() && m_rest.front() == ' ')
        m_rest.remove_prefix(1);

    if (token.text == "bin" && token.parameter > 0) {
        const auto count = std::min(static_cast<std::size_t>(token.parameter), m_rest.size());
        token.kind = RtfToken::Kind::Binary;
        token.text = m_rest.substr(0, count);
        m_rest.remove_prefix(count);
    }
    return token;
}

RtfToken RtfTokenizer::readHexadecimalByte() {
    m_rest.remove_prefix(1);
    const int high = m_rest.empty() ? -1 : hexadecimalDigit(m_rest[0]);
    const int low = m_rest.size() < 2 ? -1 : hexadecimalDigit(m_rest[1]);
    // Without two digits it stands for nothing.
    if (high < 0 || low < 0)
        return {.kind = RtfToken::Kind::Text};
    m_rest.remove_prefix(2);
    return {.kind = RtfToken::Kind::Byte, .parameter = high * 16 + low, .hasParameter = true};
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/StringExtensionsScalars.h"

#include "ZTStuff/CocoaExtensions/VirtualCharacterTables.h"

#include <array>
#include <mutex>
#include <optional>

namespace StringExtensions {

namespace {

// The first regional indicator, that of the letter A.
constexpr char32_t regionalIndicatorA = 0x1F1E6;
constexpr char32_t letterCount = 26;

constexpr char32_t flagStart = 0xA0000;
constexpr char32_t flagEnd = flagStart + letterCount * letterCount;
constexpr char32_t joinerSequenceStart = 0xA0300;
constexpr char32_t joinerSequenceEnd = joinerSequenceStart + N_ZWJ_SEQUENCES;
constexpr char32_t keycapStart = 0xA1000;
constexpr char32_t keycapEnd = keycapStart + N_KEYCAP_SEQUENCES;
constexpr char32_t ligatureStart = 0xB0000;
constexpr char32_t ligatureEnd = 0xBFFFF;

bool isFlag(char32_t character) {
    return character >= flagStart && character < flagEnd;
}

std::array<char32_t, 2> regionalIndicators(char32_t flag) {
    const char32_t number = flag - flagStart;
    return {regionalIndicatorA + number / letterCount, regionalIndicatorA + number % letterCount};
}

// The row of one of the two tables; null when the value has none.
const char32_t *tableRow(char32_t character) {
    if (character >= joinerSequenceStart && character < joinerSequenceEnd)
        return ZWJ_SEQUENCES[character - joinerSequenceStart];
    if (character >= keycapStart && character < keycapEnd)
        return KEYCAP_SEQUENCES[character - keycapStart];
    return nullptr;
}

class Ligatures {
public:
    void define(const QStringList &ligatures) {
        const std::scoped_lock lock(m_mutex);
        m_ligatures = ligatures;
    }

    std::optional<QString> at(char32_t index) const {
        const std::scoped_lock lock(m_mutex);
        if (index >= static_cast<std::size_t>(m_ligatures.size()))
            return std::nullopt;
        return m_ligatures.at(static_cast<qsizetype>(index));
    }

private:
    mutable std::mutex m_mutex;
    QStringList m_ligatures;
};

Ligatures &ligatureArray() {
    static Ligatures ligatures;
    return ligatures;
}

// Appends a unit or a pair, also for values beyond Unicode's.
void appendScalar(QString &text, char32_t scalar) {
    if (scalar < 0x10000) {
        text.append(QChar(static_cast<char16_t>(scalar)));
        return;
    }
    text.append(QChar(static_cast<char16_t>(((scalar - 0x10000) >> 10) + 0xD800)));
    text.append(QChar(static_cast<char16_t>((scalar & 0x3FF) | 0xDC00)));
}

} // namespace

QString stringWithUTF32Character(char32_t character) {
    QString text;
    if (isFlag(character)) {
        for (const char32_t indicator : regionalIndicators(character))
            appendScalar(text, indicator);
        return text;
    }
    if (const char32_t *scalar = tableRow(character)) {
        for (; *scalar != 0; ++scalar)
            appendScalar(text, *scalar);
        return text;
    }
    if (character >= ligatureStart) {
        if (std::optional<QString> ligature = ligatureArray().at(character - ligatureStart))
            return *std::move(ligature);
    }
    appendScalar(text, character);
    return text;
}

bool isVirtualCharacter(std::int32_t signedCharacter) {
    const auto character = static_cast<char32_t>(signedCharacter);
    return isFlag(character) || tableRow(character) != nullptr ||
           (character >= ligatureStart && character < ligatureEnd);
}

const char32_t *utf32CharactersForVirtualCharacter(std::int32_t signedCharacter) {
    const auto character = static_cast<char32_t>(signedCharacter);
    if (!isFlag(character))
        return tableRow(character);
    thread_local std::array<char32_t, 3> uc = {};
    const std::array<char32_t, 2> indicators = regionalIndicators(character);
    uc = {indicators[0], indicators[1], 0};
    return uc.data();
}

void defineLigatures(const QStringList &ligatures) {
    ligatureArray().define(ligatures);
}

} // namespace StringExtensions

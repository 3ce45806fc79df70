// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/StringExtensionsEscapes.h"
#include "ZTStuff/CocoaExtensions/StringExtensionsLines.h"
#include "ZTStuff/CocoaExtensions/StringExtensionsScalars.h"

#include "tests/fuzz/FuzzText.h"
#include "tests/unit/text/TextModels.h"

using namespace StringExtensions;

// The first line is the set or the separator, the rest the text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QStringList parts = fuzzParts(fuzzText(data, size), 2);
    const QString &set = parts[0];
    const QString &text = parts[1];

    require(stringByEscapingCharacters(text, set) == models::stringByEscapingCharacters(text, set));
    require(stringByExpandingEscapedCharacters(text, set) ==
            models::stringByExpandingEscapedCharacters(text, set));
    require(stringByExpandingEscapedControlCharacters(text) ==
            models::expandedControlCharacters(text, true));
    require(stringByExpandingEscapedControlCharactersIncludingBackslash(
                text, EscapedBackslash::Kept) == models::expandedControlCharacters(text, false));
    require(stringWithObjCString(text) == models::stringWithObjCString(text));
    const QString plain = models::expandedPercentEscapes(text).value_or(text);
    require(stringWithExpandedPercentEscapes(text) == plain);
    require(stringWithPercentEscapes(text) == models::addedPercentEscapes(plain).value_or(text));

    require(arrayOfLines(text) == models::arrayOfLines(text));
    require(withLineSeparator(text, set) == models::withLineSeparator(text, set));
    require(asSingleLine(text) == models::asSingleLine(text));
    require(trimWhitespace(text) == models::trimmed(text, models::isWhitespaceOrNewline));
    require(numberOfUnicodeCharacters(text) == models::numberOfUnicodeCharacters(text));
    require(emojiStringWithSkinColor(text, 4) == models::emojiStringWithSkinColor(text, 4));
    return 0;
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/RtfTokenizer.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace {

// The tokens as text: "{ word=5 'e9 <text> }".
std::string tokensOf(std::string_view content) {
    RtfTokenizer tokenizer(content);
    std::string tokens;
    for (;;) {
        const RtfToken token = tokenizer.next();
        const std::string text(token.text);
        switch (token.kind) {
        case RtfToken::Kind::End:
            return tokens;
        case RtfToken::Kind::GroupStart:
            tokens += "{ ";
            break;
        case RtfToken::Kind::GroupEnd:
            tokens += "} ";
            break;
        case RtfToken::Kind::ControlWord:
            tokens +=
                text + (token.hasParameter ? '=' + std::to_string(token.parameter) : "") + ' ';
            break;
        case RtfToken::Kind::ControlSymbol:
            tokens += '\\' + text + ' ';
            break;
        case RtfToken::Kind::Byte:
            tokens += '\'' + std::to_string(token.parameter) + ' ';
            break;
        case RtfToken::Kind::Text:
            tokens += '<' + text + "> ";
            break;
        case RtfToken::Kind::Binary:
            tokens += '[' + text + "] ";
            break;
        }
    }
}

struct Row {
    const char *reason;
    const char *content;
    const char *expected;
};

void PrintTo(const Row &row, std::ostream *stream) {
    *stream << row.reason;
}

class RtfTokens : public testing::TestWithParam<Row> {};

TEST_P(RtfTokens, areCut) {
    EXPECT_EQ(tokensOf(GetParam().content), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    RtfTokenizer, RtfTokens,
    testing::Values(Row{"nothing", "", ""}, Row{"groups", "{{}}", "{ { } } "},
                    Row{"wordsWithAndWithoutNumbers", R"(\b\fs24\li-720)", "b fs=24 li=-720 "},
                    Row{"oneBlankBelongsToTheWord", R"(\b  x)", "b < x> "},
                    Row{"noBlankIsNeededBeforeOtherThings", R"(\b{\i\'41})", "b { i '65 } "},
                    Row{"aMinusAloneIsText", R"(\b-x)", "b <-x> "},
                    Row{"aHugeNumberIsCut", R"(\fs99999999999999999999 x)", "fs=100000000 <x> "},
                    Row{"symbols", R"(\~\*\\\{\})", R"(\~ \* \\ \{ \} )"},
                    Row{"bytes", R"(\'e9\'E9)", "'233 '233 "},
                    Row{"aByteWithoutDigitsStandsForNothing", R"(\'zz)", "<> <zz> "},
                    Row{"lineEndsAreNoText", "a\r\nb\nc", "<a> <b> <c> "},
                    Row{"aBackslashBeforeALineEndEndsAParagraph", "a\\\nb\\\r\nc",
                        "<a> par <b> par <c> "},
                    Row{"binaryBytesAreNotLookedAt", "\\bin4 {}\\x}", "[{}\\x] } "},
                    Row{"binaryBytesCutOff", "\\bin400 {}", "[{}] "},
                    Row{"aBackslashAtTheEnd", "a\\", "<a> "},
                    Row{"aByteCutOff", "\\'e", "<> <e> "}),
    [](const auto &row) { return std::string(row.param.reason); });

} // namespace

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/RtfCodePages.h"

#include <algorithm>
#include <array>
#include <ranges>

namespace {

struct CharacterSet {
    int number;
    int codePage;
};

// Sets 77 to 89 are those of the Macintosh.
constexpr std::array characterSets = {
    CharacterSet{0, 1252},   CharacterSet{2, symbolCodePage}, CharacterSet{77, 10000},
    CharacterSet{78, 932},   CharacterSet{79, 949},           CharacterSet{80, 936},
    CharacterSet{81, 950},   CharacterSet{85, 10006},         CharacterSet{86, 10081},
    CharacterSet{87, 874},   CharacterSet{88, 10029},         CharacterSet{89, 10007},
    CharacterSet{128, 932},  CharacterSet{129, 949},          CharacterSet{134, 936},
    CharacterSet{136, 950},  CharacterSet{161, 1253},         CharacterSet{162, 1254},
    CharacterSet{163, 1258}, CharacterSet{177, 1255},         CharacterSet{178, 1256},
    CharacterSet{186, 1257}, CharacterSet{204, 1251},         CharacterSet{222, 874},
    CharacterSet{238, 1250}, CharacterSet{254, 437},          CharacterSet{255, 850}};

struct CodePage {
    int number;
    const char *name; // as ICU knows it
};

constexpr std::array codePages = {
    CodePage{437, "ibm-437"},          CodePage{708, "ISO-8859-6"},
    CodePage{737, "ibm-737"},          CodePage{775, "ibm-775"},
    CodePage{850, "ibm-850"},          CodePage{852, "ibm-852"},
    CodePage{855, "ibm-855"},          CodePage{857, "ibm-857"},
    CodePage{860, "ibm-860"},          CodePage{861, "ibm-861"},
    CodePage{862, "ibm-862"},          CodePage{863, "ibm-863"},
    CodePage{864, "ibm-864"},          CodePage{865, "ibm-865"},
    CodePage{866, "ibm-866"},          CodePage{874, "windows-874"},
    CodePage{932, "windows-31j"},      CodePage{936, "windows-936"},
    CodePage{949, "windows-949"},      CodePage{950, "windows-950"},
    CodePage{1250, "windows-1250"},    CodePage{1251, "windows-1251"},
    CodePage{1252, "windows-1252"},    CodePage{1253, "windows-1253"},
    CodePage{1254, "windows-1254"},    CodePage{1255, "windows-1255"},
    CodePage{1256, "windows-1256"},    CodePage{1257, "windows-1257"},
    CodePage{1258, "windows-1258"},    CodePage{10000, "macintosh"},
    CodePage{10001, "windows-31j"},    CodePage{10002, "windows-950"},
    CodePage{10003, "windows-949"},    CodePage{10006, "x-mac-greek"},
    CodePage{10007, "x-mac-cyrillic"}, CodePage{10008, "windows-936"},
    CodePage{10029, "x-mac-ce"},       CodePage{10081, "x-mac-turkish"},
    CodePage{54936, "GB18030"},        CodePage{65001, "UTF-8"}};

bool isAscii(QByteArrayView bytes) {
    return std::ranges::all_of(bytes,
                               [](char byte) { return static_cast<signed char>(byte) >= 0; });
}

} // namespace

std::optional<int> codePageOfCharacterSet(int characterSet) {
    const auto *found = std::ranges::find(characterSets, characterSet, &CharacterSet::number);
    return found == characterSets.end() ? std::nullopt : std::optional(found->codePage);
}

QChar symbolCharacter(unsigned char byte) {
    switch (byte) {
    case 0xA7:
        return u'\u25AA'; // small square
    case 0xB7:
        return u'\u2022'; // bullet
    case 0xD8:
        return u'\u27A2'; // arrow head
    case 0xFC:
        return u'\u2713'; // check mark
    default:
        return char16_t{byte};
    }
}

QString RtfCodePages::toText(QByteArrayView bytes, int codePage) {
    if (codePage == symbolCodePage) {
        QString text;
        for (const char byte : bytes)
            text += symbolCharacter(static_cast<unsigned char>(byte));
        return text;
    }
    if (isAscii(bytes))
        return QString::fromLatin1(bytes);
    const TextConverter *converter = converterFor(codePage);
    return converter ? converter->toText(bytes) : QString::fromLatin1(bytes);
}

const TextConverter *RtfCodePages::converterFor(int codePage) {
    const auto *found = std::ranges::find(codePages, codePage, &CodePage::number);
    if (found == codePages.end())
        return codePage == westernCodePage ? nullptr : converterFor(westernCodePage);
    auto place = m_converters.find(codePage);
    if (place == m_converters.end())
        place = m_converters.emplace(codePage, TextConverter::named(found->name)).first;
    return place->second ? &*place->second : nullptr;
}

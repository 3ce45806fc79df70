// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/StringEncoding.h"

#include <QHash>

#include <unicode/ucnv.h>

#include <algorithm>
#include <iterator>

namespace {

struct Row {
    StringEncoding encoding;
    const char *name;
};

// By number. The high bit stands before the numbers of the reference platform's lower layer.
constexpr Row rows[] = {
    {StringEncoding{1}, "US-ASCII"},
    {StringEncoding{3}, "EUC-JP"},
    {StringEncoding{4}, "UTF-8"},
    {StringEncoding{5}, "ISO-8859-1"},
    {StringEncoding{8}, "Shift_JIS"},
    {StringEncoding{9}, "ISO-8859-2"},
    {StringEncoding{10}, "UTF-16"},
    {StringEncoding{11}, "windows-1251"},
    {StringEncoding{12}, "windows-1252"},
    {StringEncoding{13}, "windows-1253"},
    {StringEncoding{14}, "windows-1254"},
    {StringEncoding{15}, "windows-1250"},
    {StringEncoding{21}, "ISO-2022-JP"},
    {StringEncoding{30}, "macintosh"},
    {StringEncoding{0x80000006}, "x-mac-greek"},
    {StringEncoding{0x80000007}, "x-mac-cyrillic"},
    {StringEncoding{0x8000001D}, "x-mac-centraleurroman"},
    {StringEncoding{0x80000023}, "x-mac-turkish"},
    {StringEncoding{0x80000203}, "ISO-8859-3"},
    {StringEncoding{0x80000204}, "ISO-8859-4"},
    {StringEncoding{0x80000205}, "ISO-8859-5"},
    {StringEncoding{0x80000206}, "ISO-8859-6"},
    {StringEncoding{0x80000207}, "ISO-8859-7"},
    {StringEncoding{0x80000208}, "ISO-8859-8"},
    {StringEncoding{0x80000209}, "ISO-8859-9"},
    {StringEncoding{0x8000020A}, "ISO-8859-10"},
    {StringEncoding{0x8000020D}, "ISO-8859-13"},
    {StringEncoding{0x8000020E}, "ISO-8859-14"},
    {StringEncoding{0x8000020F}, "ISO-8859-15"},
    {StringEncoding{0x80000400}, "IBM437"},
    {StringEncoding{0x80000406}, "IBM775"},
    {StringEncoding{0x80000410}, "IBM850"},
    {StringEncoding{0x80000412}, "IBM852"},
    {StringEncoding{0x80000413}, "IBM855"},
    {StringEncoding{0x80000414}, "IBM857"},
    {StringEncoding{0x80000415}, "IBM860"},
    {StringEncoding{0x80000416}, "IBM861"},
    {StringEncoding{0x80000417}, "IBM862"},
    {StringEncoding{0x80000418}, "IBM863"},
    {StringEncoding{0x80000419}, "IBM864"},
    {StringEncoding{0x8000041A}, "IBM865"},
    {StringEncoding{0x8000041B}, "IBM866"},
    {StringEncoding{0x8000041C}, "IBM869"},
    {StringEncoding{0x8000041D}, "TIS-620"},
    {StringEncoding{0x80000505}, "windows-1255"},
    {StringEncoding{0x80000506}, "windows-1256"},
    {StringEncoding{0x80000507}, "windows-1257"},
    {StringEncoding{0x80000508}, "windows-1258"},
    {StringEncoding{0x80000631}, "GBK"},
    {StringEncoding{0x80000632}, "GB18030"},
    {StringEncoding{0x80000830}, "ISO-2022-CN"},
    {StringEncoding{0x80000840}, "ISO-2022-KR"},
    {StringEncoding{0x80000930}, "GB2312"},
    {StringEncoding{0x80000931}, "EUC-TW"},
    {StringEncoding{0x80000940}, "EUC-KR"},
    {StringEncoding{0x80000A02}, "KOI8-R"},
    {StringEncoding{0x80000A03}, "Big5"},
    {StringEncoding{0x80000A05}, "HZ-GB-2312"},
    {StringEncoding{0x80000A06}, "Big5-HKSCS"},
    {StringEncoding{0x80000A08}, "KOI8-U"},
    {StringEncoding{0x80000C01}, "IBM037"},
    {StringEncoding{0x84000100}, "UTF-7"},
    {StringEncoding{0x8C000100}, "UTF-32"},
    {StringEncoding{0x90000100}, "UTF-16BE"},
    {StringEncoding{0x94000100}, "UTF-16LE"},
    {StringEncoding{0x98000100}, "UTF-32BE"},
    {StringEncoding{0x9C000100}, "UTF-32LE"},
};

// ICU's own name for its converter; null for an unknown one.
const char *converterName(const char *name) {
    UErrorCode status = U_ZERO_ERROR;
    const char *const found = ucnv_getAlias(name, 0, &status);
    return U_SUCCESS(status) ? found : nullptr;
}

// By the names above and those of ICU's converters, in lower case. Where one converter serves
// several encodings, the first counts.
QHash<QByteArray, StringEncoding> encodingsByName() {
    QHash<QByteArray, StringEncoding> encodings;
    for (const Row &row : rows) {
        const char *const converter = converterName(row.name);
        if (!converter)
            continue;
        const QByteArray key = QByteArray(converter).toLower();
        if (!encodings.contains(key))
            encodings.insert(key, row.encoding);
        encodings.insert(QByteArray(row.name).toLower(), encodings.value(key));
    }
    return encodings;
}

} // namespace

const char *nameOfEncoding(StringEncoding encoding) {
    const auto *const found = std::ranges::lower_bound(rows, encoding, {}, &Row::encoding);
    return found != std::end(rows) && found->encoding == encoding ? found->name : nullptr;
}

std::optional<StringEncoding> encodingWithIANAName(QByteArrayView name) {
    // The longest name has fewer than fifty letters.
    constexpr qsizetype longestName = 60;
    if (name.isEmpty() || name.size() > longestName)
        return std::nullopt;
    static const QHash<QByteArray, StringEncoding> encodings = encodingsByName();
    const QByteArray key = name.toByteArray().toLower();
    auto found = encodings.constFind(key);
    if (found == encodings.cend()) {
        // ICU knows a thousand further spellings; looking through them takes longer.
        const char *const converter = converterName(key.constData());
        if (converter)
            found = encodings.constFind(QByteArray(converter).toLower());
    }
    return found == encodings.cend() ? std::nullopt : std::optional(*found);
}

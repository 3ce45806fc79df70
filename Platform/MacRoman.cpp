// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/MacRoman.h"

#include <QStringView>

#include <algorithm>
#include <cstring>
#include <iterator>

namespace zt {

namespace {

// The characters of the bytes from 0x80; those below are ASCII.
constexpr char16_t upperHalf[] = u"ÄÅÇÉÑÖÜáàâäãåçéè"
                                 u"êëíìîïñóòôöõúùûü"
                                 u"†°¢£§•¶ß®©™´¨≠ÆØ"
                                 u"∞±≤≥¥µ∂∑∏π∫ªºΩæø"
                                 u"¿¡¬√ƒ≈∆«»…\u00A0ÀÃÕŒœ"
                                 u"–—“”‘’÷◊ÿŸ⁄€‹›ﬁﬂ"
                                 u"‡·‚„‰ÂÊÁËÈÍÎÏÌÓÔ"
                                 u"\uF8FFÒÚÛÙı\u02C6\u02DC¯\u02D8\u02D9\u02DA¸\u02DD\u02DB\u02C7";
static_assert(std::size(upperHalf) == 128 + 1);

std::optional<std::uint8_t> macRomanByte(char16_t unit) {
    if (unit < 0x80)
        return static_cast<std::uint8_t>(unit);
    const qsizetype index = QStringView(upperHalf, 128).indexOf(unit);
    if (index < 0)
        return std::nullopt;
    return static_cast<std::uint8_t>(0x80 + index);
}

} // namespace

QString stringFromMacRoman(QByteArrayView bytes) {
    // Most bytes are ASCII, which many are turned into text of at a time; the others are put right
    // after that.
    QString text = QString::fromLatin1(bytes);
    QChar *const units = text.data();
    const char *const first = bytes.begin();
    const char *byte = first;
    while (byte != bytes.end()) {
        std::uint64_t eightBytes = 0;
        if (bytes.end() - byte >= qsizetype{sizeof eightBytes}) {
            std::memcpy(&eightBytes, byte, sizeof eightBytes);
            if ((eightBytes & 0x8080808080808080U) == 0) {
                byte += sizeof eightBytes;
                continue;
            }
        }
        const qsizetype length = std::min<qsizetype>(bytes.end() - byte, sizeof eightBytes);
        for (const char *const end = byte + length; byte != end; ++byte) {
            if (const auto value = static_cast<std::uint8_t>(*byte); value >= 0x80)
                units[byte - first] = QChar(upperHalf[value - 0x80]);
        }
    }
    return text;
}

std::optional<QByteArray> macRomanFromString(const QString &text) {
    QByteArray bytes(text.size(), Qt::Uninitialized);
    char *output = bytes.data();
    for (const QChar unit : text) {
        const std::optional<std::uint8_t> byte = macRomanByte(unit.unicode());
        if (!byte)
            return std::nullopt;
        *output++ = static_cast<char>(*byte);
    }
    return bytes;
}

std::optional<std::uint32_t> fourCharacterCode(const QString &text) {
    const QString composed = text.normalized(QString::NormalizationForm_C);
    if (composed.size() != 4)
        return std::nullopt;
    std::uint32_t code = 0;
    for (const QChar unit : composed) {
        const std::optional<std::uint8_t> byte = macRomanByte(unit.unicode());
        if (!byte)
            return std::nullopt;
        code = code << 8 | *byte;
    }
    return code;
}

} // namespace zt

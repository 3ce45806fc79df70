// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/MacRoman.h"

#include <QStringView>

#include <algorithm>
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
    QString text(bytes.size(), Qt::Uninitialized);
    std::ranges::transform(bytes, text.data(), [](char signedByte) {
        const auto byte = static_cast<std::uint8_t>(signedByte);
        return QChar(byte < 0x80 ? char16_t{byte} : upperHalf[byte - 0x80]);
    });
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

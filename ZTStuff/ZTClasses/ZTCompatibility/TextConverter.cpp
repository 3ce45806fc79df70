// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/Documents/TextConverter.h"

#include <unicode/ucnv_cb.h>
#include <unicode/ucnv_err.h>

#include <algorithm>
#include <cstdint>
#include <limits>

namespace {

// Without it, some converters write the control character SUB.
void writeReplacement(const void * /*context*/, UConverterToUnicodeArgs *arguments,
                      const char * /*bytes*/, std::int32_t /*length*/,
                      UConverterCallbackReason reason, UErrorCode *status) {
    constexpr char16_t replacement = u'\uFFFD';
    if (reason > UCNV_IRREGULAR)
        return; // the converter is reset or closed
    *status = U_ZERO_ERROR;
    ucnv_cbToUWriteUChars(arguments, &replacement, 1, 0, status);
}

} // namespace

std::optional<TextConverter> TextConverter::named(const char *encoding) {
    UErrorCode status = U_ZERO_ERROR;
    TextConverter converter(ucnv_open(encoding, &status));
    if (U_FAILURE(status))
        return std::nullopt;
    ucnv_setToUCallBack(converter.m_converter.get(), writeReplacement, nullptr, nullptr, nullptr,
                        &status);
    return converter;
}

QString TextConverter::toText(QByteArrayView bytes) const {
    const auto length = static_cast<std::int32_t>(
        std::min<qsizetype>(bytes.size(), std::numeric_limits<std::int32_t>::max()));
    // No encoding in use makes more than one unit of a byte, but one may write a mark first; the
    // second round is for the exception.
    QString text(length + 8, Qt::Uninitialized);
    for (int round = 0; round < 2; ++round) {
        UErrorCode status = U_ZERO_ERROR;
        const std::int32_t units =
            ucnv_toUChars(m_converter.get(), reinterpret_cast<char16_t *>(text.data()),
                          static_cast<std::int32_t>(text.size()), bytes.data(), length, &status);
        text.resize(std::max(units, 0));
        if (U_SUCCESS(status))
            return text;
        if (status != U_BUFFER_OVERFLOW_ERROR)
            break;
    }
    return {};
}

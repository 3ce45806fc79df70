// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/TextConverter.h"

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
    constexpr qsizetype longest = std::numeric_limits<std::int32_t>::max() - 8;
    return convert(bytes.first(std::min(bytes.size(), longest))).value_or(QString());
}

std::optional<QString> TextConverter::toTextExactly(QByteArrayView bytes) const {
    UErrorCode status = U_ZERO_ERROR;
    UConverterToUCallback previous = nullptr;
    const void *context = nullptr;
    ucnv_setToUCallBack(m_converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, &previous, &context,
                        &status);
    std::optional<QString> text = convert(bytes);
    ucnv_setToUCallBack(m_converter.get(), previous, context, nullptr, nullptr, &status);
    return text;
}

std::optional<QString> TextConverter::convert(QByteArrayView bytes) const {
    constexpr qsizetype longest = std::numeric_limits<std::int32_t>::max() - 8;
    if (bytes.size() > longest)
        return std::nullopt;
    // No encoding in use makes more than one unit of a byte, but one may write a mark first; the
    // second round is for the exception.
    QString text(bytes.size() + 8, Qt::Uninitialized);
    for (int round = 0; round < 2; ++round) {
        UErrorCode status = U_ZERO_ERROR;
        const std::int32_t units =
            ucnv_toUChars(m_converter.get(), reinterpret_cast<char16_t *>(text.data()),
                          static_cast<std::int32_t>(text.size()), bytes.data(),
                          static_cast<std::int32_t>(bytes.size()), &status);
        text.resize(std::max(units, 0));
        if (U_SUCCESS(status))
            return text;
        if (status != U_BUFFER_OVERFLOW_ERROR)
            break;
    }
    return std::nullopt;
}

std::optional<QByteArray> TextConverter::fromTextExactly(const QString &text) const {
    UErrorCode status = U_ZERO_ERROR;
    ucnv_setFromUCallBack(m_converter.get(), UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr,
                          &status);
    const QStringView view(text);
    const qsizetype most = UCNV_GET_MAX_BYTES_FOR_STRING(
        view.size(), qsizetype{ucnv_getMaxCharSize(m_converter.get())});
    if (most > std::numeric_limits<std::int32_t>::max())
        return std::nullopt;
    QByteArray bytes(most, Qt::Uninitialized);
    const std::int32_t size =
        ucnv_fromUChars(m_converter.get(), bytes.data(), static_cast<std::int32_t>(bytes.size()),
                        view.utf16(), static_cast<std::int32_t>(view.size()), &status);
    if (U_FAILURE(status))
        return std::nullopt;
    bytes.truncate(size);
    return bytes;
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "benchmarks/text/TextPeers.h"

#include <QLocale>

NumericCollators::NumericCollators(Qt::CaseSensitivity sensitivity)
    : m_qt(QLocale(QLocale::English)) {
    UErrorCode status = U_ZERO_ERROR;
    m_icu.reset(ucol_open("en", &status));
    ucol_setAttribute(m_icu.get(), UCOL_NUMERIC_COLLATION, UCOL_ON, &status);
    ucol_setStrength(m_icu.get(),
                     sensitivity == Qt::CaseSensitive ? UCOL_TERTIARY : UCOL_SECONDARY);
    m_qt.setNumericMode(true);
    m_qt.setCaseSensitivity(sensitivity);
    m_qt.compare(QStringView(u"a"), QStringView(u"b")); // makes it ready
}

int NumericCollators::compareWithIcu(const QString &a, const QString &b) const {
    return ucol_strcoll(m_icu.get(), QStringView(a).utf16(), static_cast<std::int32_t>(a.size()),
                        QStringView(b).utf16(), static_cast<std::int32_t>(b.size()));
}

IcuMacRoman::IcuMacRoman() {
    UErrorCode status = U_ZERO_ERROR;
    m_converter.reset(ucnv_open("macintosh", &status));
}

QString IcuMacRoman::decode(const QByteArray &bytes) const {
    UErrorCode status = U_ZERO_ERROR;
    QString text(bytes.size() + 1, Qt::Uninitialized);
    const std::int32_t length =
        ucnv_toUChars(m_converter.get(), reinterpret_cast<char16_t *>(text.data()),
                      static_cast<std::int32_t>(text.size()), bytes.constData(),
                      static_cast<std::int32_t>(bytes.size()), &status);
    text.truncate(length);
    return text;
}

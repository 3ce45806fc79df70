#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What other libraries offer for the same tasks.

#include <QByteArray>
#include <QCollator>
#include <QString>

#include <memory>

#include <unicode/ucnv.h>
#include <unicode/ucol.h>

// Compares texts with numbers by their value, as ICU and Qt do.
class NumericCollators {
public:
    explicit NumericCollators(Qt::CaseSensitivity sensitivity);

    int compareWithIcu(const QString &a, const QString &b) const;
    int compareWithQt(const QString &a, const QString &b) const { return m_qt.compare(a, b); }

private:
    struct Closer {
        void operator()(UCollator *collator) const { ucol_close(collator); }
    };

    std::unique_ptr<UCollator, Closer> m_icu;
    QCollator m_qt;
};

// Decodes Mac OS Roman with ICU.
class IcuMacRoman {
public:
    IcuMacRoman();

    QString decode(const QByteArray &bytes) const;

private:
    struct Closer {
        void operator()(UConverter *converter) const { ucnv_close(converter); }
    };

    std::unique_ptr<UConverter, Closer> m_converter;
};

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Text in the encodings from before Unicode, by ICU.

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <unicode/ucnv.h>

#include <memory>
#include <optional>

// Turns bytes of one encoding into text. Not for use by two threads at once.
class TextConverter {
public:
    // The converter for an encoding by any name that ICU knows ("windows-1252", "Shift_JIS"); no
    // value for an unknown one.
    static std::optional<TextConverter> named(const char *encoding);

    // Bytes that stand for no character become U+FFFD.
    QString toText(QByteArrayView bytes) const;

    // No value when there are such bytes.
    std::optional<QString> toTextExactly(QByteArrayView bytes) const;

    // No value when the encoding does not have all characters of the text.
    std::optional<QByteArray> fromTextExactly(const QString &text) const;

private:
    struct Closer {
        void operator()(UConverter *converter) const { ucnv_close(converter); }
    };

    explicit TextConverter(UConverter *converter) : m_converter(converter) {}

    std::optional<QString> convert(QByteArrayView bytes) const;

    std::unique_ptr<UConverter, Closer> m_converter;
};

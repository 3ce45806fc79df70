#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Text in the encodings from before Unicode, by ICU.

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

private:
    struct Closer {
        void operator()(UConverter *converter) const { ucnv_close(converter); }
    };

    explicit TextConverter(UConverter *converter) : m_converter(converter) {}

    std::unique_ptr<UConverter, Closer> m_converter;
};

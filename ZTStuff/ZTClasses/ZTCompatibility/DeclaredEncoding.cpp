// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/DeclaredEncoding.h"

#include <QFile>

#include <array>

#include <sys/xattr.h>

std::optional<StringEncoding> declaredEncodingOfFile(const QString &path) {
    const QByteArray nativePath = QFile::encodeName(path);
    for (const char *const name : {"user.com.apple.TextEncoding", "user.charset"}) {
        std::array<char, 256> value = {};
        const ssize_t size = ::getxattr(nativePath.constData(), name, value.data(), value.size());
        if (size <= 0)
            continue;
        // A number of the encoding may follow the name.
        const QByteArray text = QByteArray(value.data(), static_cast<qsizetype>(size));
        const QByteArray encoding = text.split(';').constFirst().trimmed();
        if (const std::optional<StringEncoding> known = encodingWithIANAName(encoding))
            return known;
    }
    return std::nullopt;
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/DeclaredEncoding.h"

#include "Platform/FileAttributes.h"

#include <QList>

std::optional<StringEncoding> declaredEncodingOfFile(const QString &path) {
    constexpr qsizetype longestName = 256;
    for (const QByteArray name : {"com.apple.TextEncoding", "charset"}) {
        const std::optional<QByteArray> text = zt::readFileAttribute(path, name);
        if (!text || text->size() > longestName)
            continue;
        // A number of the encoding may follow the name.
        const QByteArray encoding = text->split(';').constFirst().trimmed();
        if (const std::optional<StringEncoding> known = encodingWithIANAName(encoding))
            return known;
    }
    return std::nullopt;
}

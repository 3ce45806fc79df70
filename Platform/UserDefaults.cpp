// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/UserDefaults.h"

#include <algorithm>

namespace zt {

namespace {

bool readsAsTrue(const QString &text) {
    const auto first = std::find_if(text.begin(), text.end(), [](QChar c) {
        return !c.isSpace() && c != u'+' && c != u'-' && c != u'0';
    });
    return first != text.end() && QStringView(u"YyTt123456789").contains(*first);
}

} // namespace

bool UserDefaults::boolForKey(const QString &key) const {
    const std::optional<QVariant> value = objectForKey(key);
    if (!value)
        return false;
    if (value->metaType() == QMetaType::fromType<QString>())
        return readsAsTrue(value->toString());
    switch (value->typeId()) {
    case QMetaType::Bool:
        return value->toBool();
    case QMetaType::LongLong:
    case QMetaType::Double:
        return value->toDouble() != 0.0;
    default:
        return false;
    }
}

std::optional<QString> UserDefaults::stringForKey(const QString &key) const {
    const std::optional<QVariant> value = objectForKey(key);
    if (!value)
        return std::nullopt;
    switch (value->typeId()) {
    case QMetaType::QString:
    case QMetaType::Bool:
    case QMetaType::LongLong:
    case QMetaType::Double:
        return value->toString();
    default:
        return std::nullopt;
    }
}

} // namespace zt

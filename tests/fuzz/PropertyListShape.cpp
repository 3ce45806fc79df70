// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "PropertyListShape.h"

#include <QMetaType>
#include <QVariantMap>

#include <cstdlib>

void checkPropertyListShape(const QVariant &value) {
    switch (value.metaType().id()) {
    case QMetaType::QVariantMap: {
        const QVariantMap dictionary = value.toMap();
        for (const QVariant &member : dictionary)
            checkPropertyListShape(member);
        break;
    }
    case QMetaType::QVariantList: {
        const QVariantList array = value.toList();
        for (const QVariant &member : array)
            checkPropertyListShape(member);
        break;
    }
    case QMetaType::QString:
    case QMetaType::QByteArray:
    case QMetaType::QDateTime:
    case QMetaType::Bool:
    case QMetaType::LongLong:
    case QMetaType::Double:
        break;
    default:
        std::abort();
    }
}

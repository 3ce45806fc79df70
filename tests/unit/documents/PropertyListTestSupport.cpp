// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "PropertyListTestSupport.h"

#include <QDateTime>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

QString describedValue(const QVariant &value) {
    switch (value.metaType().id()) {
    case QMetaType::QVariantMap: {
        QStringList pairs;
        const QVariantMap map = value.toMap();
        for (auto pair = map.begin(); pair != map.end(); ++pair)
            pairs.append(pair.key() + u'=' + describedValue(pair.value()));
        return u'{' + pairs.join(u';') + u'}';
    }
    case QMetaType::QVariantList: {
        QStringList items;
        const QVariantList list = value.toList();
        for (const QVariant &item : list)
            items.append(describedValue(item));
        return u'(' + items.join(u',') + u')';
    }
    case QMetaType::QString:
        return u'"' + value.toString() + u'"';
    case QMetaType::QByteArray:
        return u'<' + QString::fromLatin1(value.toByteArray().toHex()) + u'>';
    case QMetaType::QDateTime:
        return value.toDateTime().toString(Qt::ISODateWithMs).remove(".000"_L1);
    case QMetaType::Bool:
        return value.toBool() ? u"true"_s : u"false"_s;
    case QMetaType::LongLong:
        return QString::number(value.toLongLong());
    case QMetaType::Double:
        return QString::number(value.toDouble(), 'g', 17) + u'r';
    default:
        return u"unexpected type "_s + QString::fromLatin1(value.typeName());
    }
}

QByteArray bigEndian(quint64 number, int width) {
    QByteArray bytes;
    for (int shift = (width - 1) * 8; shift >= 0; shift -= 8)
        bytes.append(static_cast<char>(number >> static_cast<unsigned>(shift)));
    return bytes;
}

} // namespace

std::string describe(const QVariant &value) {
    return describedValue(value).toStdString();
}

std::string describe(const zt::Result<QVariant> &result) {
    return result ? describe(*result) : "failed: " + result.error().cause;
}

QByteArray binaryPropertyList(const QList<QByteArray> &objects, int referenceWidth,
                              int offsetWidth) {
    QByteArray content = "bplist00";
    QByteArray table;
    for (const QByteArray &object : objects) {
        table += bigEndian(static_cast<quint64>(content.size()), offsetWidth);
        content += object;
    }
    const auto tableOffset = static_cast<quint64>(content.size());
    return content + table + QByteArray(6, '\0') + static_cast<char>(offsetWidth) +
           static_cast<char>(referenceWidth) + bigEndian(static_cast<quint64>(objects.size()), 8) +
           bigEndian(0, 8) + bigEndian(tableOffset, 8);
}

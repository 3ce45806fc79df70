// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/PropertyListBinary.h"

#include "Platform/linux/PropertyListBinaryCheck.h"
#include "Platform/linux/PropertyListLibrary.h"
#include "Platform/linux/PropertyListLimits.h"

#include <QDateTime>
#include <QVariantMap>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>

namespace zt {

namespace {

struct AllocationDeleter {
    void operator()(void *memory) const { std::free(memory); }
};

using UniquePropertyList = std::unique_ptr<void, decltype(&::plist_free)>;
using UniqueAllocation = std::unique_ptr<void, AllocationDeleter>;

// Takes values out of the library's nodes.
class NodeReader {
public:
    explicit NodeReader(const PropertyListLibrary &library) : m_library(library) {}

    // Recurses as deep as the list is nested, which was bounded before. No value for a node of an
    // unknown kind.
    std::optional<QVariant> value(plist_t node) const;

private:
    std::optional<QVariant> dictionary(plist_t node) const;
    std::optional<QVariant> array(plist_t node) const;
    QVariant date(plist_t node) const;

    const PropertyListLibrary &m_library;
};

std::optional<QVariant> NodeReader::dictionary(plist_t node) const {
    plist_dict_iter iteratorMemory = nullptr;
    m_library.plist_dict_new_iter(node, &iteratorMemory);
    const UniqueAllocation iterator(iteratorMemory);
    QVariantMap result;
    for (;;) {
        char *keyMemory = nullptr;
        plist_t child = nullptr;
        m_library.plist_dict_next_item(node, iterator.get(), &keyMemory, &child);
        const UniqueAllocation key(keyMemory);
        if (!child)
            return QVariant(result);
        std::optional<QVariant> found = value(child);
        if (!found || !keyMemory)
            return std::nullopt;
        result.insert(QString::fromUtf8(keyMemory), *std::move(found));
    }
}

std::optional<QVariant> NodeReader::array(plist_t node) const {
    plist_array_iter iteratorMemory = nullptr;
    m_library.plist_array_new_iter(node, &iteratorMemory);
    const UniqueAllocation iterator(iteratorMemory);
    QVariantList result;
    for (;;) {
        plist_t child = nullptr;
        m_library.plist_array_next_item(node, iterator.get(), &child);
        if (!child)
            return QVariant(result);
        std::optional<QVariant> found = value(child);
        if (!found)
            return std::nullopt;
        result.append(*std::move(found));
    }
}

QVariant NodeReader::date(plist_t node) const {
    qint32 seconds = 0;
    qint32 microseconds = 0;
    m_library.plist_get_date_val(node, &seconds, &microseconds);
    // The fraction comes without a sign of its own.
    const qint64 fraction = seconds < 0 ? -microseconds : microseconds;
    const QDateTime start(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC);
    return start.addMSecs(qint64(seconds) * 1000 + fraction / 1000);
}

std::optional<QVariant> NodeReader::value(plist_t node) const {
    switch (m_library.plist_get_node_type(node)) {
    case PLIST_DICT:
        return dictionary(node);
    case PLIST_ARRAY:
        return array(node);
    case PLIST_DATE:
        return date(node);
    case PLIST_STRING: {
        std::uint64_t length = 0;
        const char *text = m_library.plist_get_string_ptr(node, &length);
        return QVariant(QString::fromUtf8(text, static_cast<qsizetype>(length)));
    }
    case PLIST_DATA: {
        std::uint64_t length = 0;
        const char *data = m_library.plist_get_data_ptr(node, &length);
        return QVariant(QByteArray(data, static_cast<qsizetype>(length)));
    }
    case PLIST_BOOLEAN: {
        std::uint8_t value = 0;
        m_library.plist_get_bool_val(node, &value);
        return QVariant(value != 0);
    }
    case PLIST_UINT: {
        std::uint64_t value = 0;
        m_library.plist_get_uint_val(node, &value);
        // Negative integers arrive as their two's complement.
        return QVariant(static_cast<qlonglong>(value));
    }
    case PLIST_REAL: {
        double value = 0;
        m_library.plist_get_real_val(node, &value);
        return QVariant(value);
    }
    default:
        return std::nullopt;
    }
}

} // namespace

Result<QVariant> parseBinaryPropertyList(const QByteArray &content) {
    // The library unfolds shared objects and recurses into nested ones without a limit.
    if (Result<void> checked = checkBinaryPropertyList(content); !checked)
        return checked.error();
    const PropertyListLibrary *library = propertyListLibrary();
    if (!library)
        return propertyListError("the binary form needs libplist, which is not installed");
    plist_t memory = nullptr;
    library->plist_from_bin(content.constData(), static_cast<std::uint32_t>(content.size()),
                            &memory);
    const UniquePropertyList list(memory, library->plist_free);
    if (!list)
        return propertyListError("the binary form is damaged");
    std::optional<QVariant> value = NodeReader(*library).value(list.get());
    if (!value)
        return propertyListError("it holds a value of an unknown kind");
    return *std::move(value);
}

} // namespace zt

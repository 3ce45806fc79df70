// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/PropertyListBinaryCheck.h"

#include "Platform/linux/PropertyListLimits.h"

#include <QtEndian>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <optional>
#include <vector>

namespace zt {

namespace {

constexpr qsizetype headerSize = 8;
constexpr qsizetype trailerSize = 32;

// The kinds of objects, as the upper half of the byte that begins each one.
enum Kind : quint8 {
    Singleton = 0x0,
    Integer = 0x1,
    Real = 0x2,
    Date = 0x3,
    Data = 0x4,
    AsciiText = 0x5,
    Utf16Text = 0x6,
    Array = 0xA,
    Dictionary = 0xD
};

// One object as its first bytes describe it.
struct Object {
    Kind kind;
    quint64 count;  // elements of a container, units of a text, bytes of anything else
    quint64 offset; // where its content begins
};

// The list's table of objects. Each question answers no value when what it asks for lies outside
// the content.
class ObjectTable {
public:
    static std::optional<ObjectTable> read(QByteArrayView content);

    quint64 size() const { return m_size; }

    quint64 root() const { return m_root; }

    std::optional<Object> object(quint64 index) const;
    std::optional<quint64> reference(const Object &container, quint64 position) const;
    std::optional<double> dateValue(const Object &date) const;
    bool containsNul(const Object &text) const;

private:
    explicit ObjectTable(QByteArrayView content) : m_content(content) {}

    std::optional<quint64> number(quint64 offset, quint64 width) const;
    bool fits(const Object &object) const;

    QByteArrayView m_content;
    quint64 m_offsetWidth = 0;
    quint64 m_referenceWidth = 0;
    quint64 m_size = 0;
    quint64 m_root = 0;
    quint64 m_tableOffset = 0;
};

std::optional<ObjectTable> ObjectTable::read(QByteArrayView content) {
    if (content.size() < headerSize + trailerSize)
        return std::nullopt;
    const auto *trailer = content.data() + (content.size() - trailerSize);
    ObjectTable table(content);
    table.m_offsetWidth = static_cast<quint8>(trailer[6]);
    table.m_referenceWidth = static_cast<quint8>(trailer[7]);
    table.m_size = qFromBigEndian<quint64>(trailer + 8);
    table.m_root = qFromBigEndian<quint64>(trailer + 16);
    table.m_tableOffset = qFromBigEndian<quint64>(trailer + 24);

    const auto end = static_cast<quint64>(content.size() - trailerSize);
    const auto isWidth = [](quint64 width) { return width >= 1 && width <= 8; };
    if (!isWidth(table.m_offsetWidth) || !isWidth(table.m_referenceWidth) || table.m_size == 0 ||
        table.m_size > maximumPropertyListValues || table.m_root >= table.m_size ||
        table.m_tableOffset < headerSize || table.m_tableOffset > end ||
        table.m_size > (end - table.m_tableOffset) / table.m_offsetWidth)
        return std::nullopt;
    return table;
}

std::optional<quint64> ObjectTable::number(quint64 offset, quint64 width) const {
    const auto size = static_cast<quint64>(m_content.size());
    if (offset > size || width > size - offset)
        return std::nullopt;
    quint64 value = 0;
    for (quint64 i = 0; i < width; ++i)
        value = value << 8U | static_cast<quint8>(m_content[static_cast<qsizetype>(offset + i)]);
    return value;
}

std::optional<Object> ObjectTable::object(quint64 index) const {
    if (index >= m_size)
        return std::nullopt;
    const auto offset = number(m_tableOffset + index * m_offsetWidth, m_offsetWidth);
    if (!offset || *offset < headerSize || *offset >= m_tableOffset)
        return std::nullopt;
    const auto marker = number(*offset, 1);
    if (!marker)
        return std::nullopt;

    const auto kind = static_cast<Kind>(*marker >> 4U);
    const quint64 low = *marker & 0xFU;
    Object object = {.kind = kind, .count = low, .offset = *offset + 1};
    if (kind == Integer || kind == Real || kind == Date) {
        object.count = low <= 4 ? 1ULL << low : 0;
    } else if (kind == Singleton) {
        object.count = 0;
        if (low != 0x8 && low != 0x9) // neither false nor true
            return std::nullopt;
    } else if (low == 0xF) {
        // A count of 15 and more follows as an integer object.
        const auto length = number(object.offset, 1);
        if (!length || *length >> 4U != Integer || (*length & 0xFU) > 3)
            return std::nullopt;
        const quint64 width = 1ULL << (*length & 0xFU);
        const auto count = number(object.offset + 1, width);
        if (!count)
            return std::nullopt;
        object.count = *count;
        object.offset += 1 + width;
    }
    return fits(object) ? std::optional(object) : std::nullopt;
}

bool ObjectTable::fits(const Object &object) const {
    quint64 width = 1;
    switch (object.kind) {
    case Singleton:
    case Data:
    case AsciiText:
        break;
    case Integer:
        if (object.count == 0)
            return false;
        break;
    case Real:
        if (object.count != 4 && object.count != 8)
            return false;
        break;
    case Date:
        if (object.count != 8)
            return false;
        break;
    case Utf16Text:
        width = 2;
        break;
    case Array:
        width = m_referenceWidth;
        break;
    case Dictionary:
        width = 2 * m_referenceWidth;
        break;
    default:
        return false;
    }
    return object.offset <= m_tableOffset &&
           object.count <= (m_tableOffset - object.offset) / width;
}

std::optional<quint64> ObjectTable::reference(const Object &container, quint64 position) const {
    return number(container.offset + position * m_referenceWidth, m_referenceWidth);
}

std::optional<double> ObjectTable::dateValue(const Object &date) const {
    const auto bits = number(date.offset, 8);
    return bits ? std::optional(std::bit_cast<double>(*bits)) : std::nullopt;
}

bool ObjectTable::containsNul(const Object &text) const {
    const quint64 width = text.kind == Utf16Text ? 2 : 1;
    for (quint64 i = 0; i < text.count; ++i) {
        if (number(text.offset + i * width, width) == 0U)
            return true;
    }
    return false;
}

// Visits every object once, its members before itself, and adds up what it unfolds to.
class UnfoldedSize {
public:
    explicit UnfoldedSize(const ObjectTable &table) : m_table(table), m_sums(table.size()) {}

    Result<void> check();

private:
    // What one object unfolds to.
    struct Sum {
        enum : quint8 { Unseen, Open, Done } state = Unseen;

        quint32 depth = 0;
        quint64 values = 0;
        quint64 bytes = 0;
    };

    // An object whose members are being visited.
    struct Visit {
        quint64 index;
        Object object;
        quint64 references;
        quint64 next = 0;
    };

    Result<void> enter(quint64 index);
    Result<void> addMember(Visit &visit);
    Result<void> leave();

    const ObjectTable &m_table;
    std::vector<Sum> m_sums;
    std::vector<Visit> m_visits;
    quint64 m_references = 0; // of all objects entered so far
};

Result<void> UnfoldedSize::check() {
    if (Result<void> entered = enter(m_table.root()); !entered)
        return entered;
    while (!m_visits.empty()) {
        Visit &visit = m_visits.back();
        Result<void> step = visit.next < visit.references ? addMember(visit) : leave();
        if (!step)
            return step;
    }
    return {};
}

Result<void> UnfoldedSize::enter(quint64 index) {
    const auto object = m_table.object(index);
    if (!object)
        return propertyListError("an object is damaged or of an unknown kind");
    if (object->kind == Date) {
        // Seconds since 2001; the library hands them on as a 32-bit number.
        const double seconds = m_table.dateValue(*object).value_or(std::nan(""));
        if (!(std::abs(seconds) <= double(std::numeric_limits<qint32>::max())))
            return propertyListError("a date is out of range");
    }
    const bool isContainer = object->kind == Array || object->kind == Dictionary;
    if (isContainer && m_visits.size() >= maximumPropertyListDepth)
        return propertyListError("values are nested too deeply");
    const quint64 references =
        isContainer ? object->count * (object->kind == Dictionary ? 2 : 1) : 0;
    m_references += references;
    if (m_references > maximumPropertyListValues)
        return propertyListError("it holds too many values");
    Sum &sum = m_sums[index];
    sum.state = Sum::Open;
    sum.depth = isContainer ? 1 : 0;
    sum.values = 1;
    sum.bytes = isContainer ? 0 : object->count;
    m_visits.push_back({.index = index, .object = *object, .references = references});
    return {};
}

Result<void> UnfoldedSize::addMember(Visit &visit) {
    const auto member = m_table.reference(visit.object, visit.next);
    if (!member || *member >= m_table.size())
        return propertyListError("an object refers to one that does not exist");
    if (m_sums[*member].state == Sum::Open)
        return propertyListError("an object contains itself");
    if (m_sums[*member].state == Sum::Unseen)
        return enter(*member);

    // A dictionary's keys come first, then as many values.
    const bool isKey = visit.object.kind == Dictionary && visit.next < visit.object.count;
    if (isKey) {
        const auto key = m_table.object(*member);
        if (!key || (key->kind != AsciiText && key->kind != Utf16Text))
            return propertyListError("a key is not a text");
        // The library takes the end of such a key for a mistake of its own, and ends the program.
        if (m_table.containsNul(*key))
            return propertyListError("a key contains a NUL character");
    }
    const Sum &added = m_sums[*member];
    Sum &sum = m_sums[visit.index];
    sum.depth = std::max(sum.depth, added.depth + 1);
    sum.values += added.values;
    sum.bytes += added.bytes;
    if (sum.depth > maximumPropertyListDepth)
        return propertyListError("values are nested too deeply");
    // The content itself is bounded, so that four times its largest size is only ever reached by
    // sharing long texts.
    constexpr quint64 maximumBytes = 64ULL * 1024 * 1024;
    if (sum.values > maximumPropertyListValues || sum.bytes > maximumBytes)
        return propertyListError("its values unfold to too many");
    ++visit.next;
    return {};
}

Result<void> UnfoldedSize::leave() {
    m_sums[m_visits.back().index].state = Sum::Done;
    m_visits.pop_back();
    return {};
}

} // namespace

Result<void> checkBinaryPropertyList(QByteArrayView content) {
    const auto table = ObjectTable::read(content);
    if (!table)
        return propertyListError("the table of objects is damaged or too large");
    return UnfoldedSize(*table).check();
}

} // namespace zt

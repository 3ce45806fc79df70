// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/ResourceFork.h"

#include "Platform/FileAttributes.h"

#include <QFile>
#include <QFileInfo>

namespace zt {

namespace {

constexpr std::uint32_t appleDoubleMagic = 0x00051607;
constexpr std::uint32_t resourceForkEntry = 2;
constexpr std::uint32_t compressedAttribute = 0x01;

// Big-endian numbers at places that the data itself names; a place outside of it gives no value.
class BigEndianReader {
public:
    explicit BigEndianReader(QByteArrayView bytes) : m_bytes(bytes) {}

    std::optional<std::uint32_t> number(std::uint64_t offset, unsigned width) const {
        if (offset > size() || size() - offset < width)
            return std::nullopt;
        std::uint32_t value = 0;
        for (const char byte : m_bytes.sliced(static_cast<qsizetype>(offset), width))
            value = value << 8 | static_cast<std::uint8_t>(byte);
        return value;
    }

    std::optional<QByteArrayView> part(std::uint64_t offset, std::uint64_t length) const {
        if (offset > size() || size() - offset < length)
            return std::nullopt;
        return m_bytes.sliced(static_cast<qsizetype>(offset), static_cast<qsizetype>(length));
    }

private:
    std::uint64_t size() const { return static_cast<std::uint64_t>(m_bytes.size()); }

    QByteArrayView m_bytes;
};

// Where a type's list of resources begins, and how many it holds.
struct ReferenceList {
    std::uint64_t offset = 0;
    std::uint32_t count = 0;
};

std::optional<ReferenceList> findType(const BigEndianReader &fork, std::uint64_t typeList,
                                      std::uint32_t type) {
    // Counts are stored less one, so that an empty list has 0xFFFF.
    const auto lastType = fork.number(typeList, 2);
    if (!lastType || *lastType == 0xFFFF)
        return std::nullopt;
    for (std::uint64_t index = 0; index <= *lastType; ++index) {
        const std::uint64_t entry = typeList + 2 + index * 8;
        const auto code = fork.number(entry, 4);
        const auto last = fork.number(entry + 4, 2);
        const auto offset = fork.number(entry + 6, 2);
        if (!code || !last || !offset)
            return std::nullopt;
        if (*code == type)
            return ReferenceList{typeList + *offset, *last == 0xFFFF ? 0 : *last + 1};
    }
    return std::nullopt;
}

// Where the resource's data stands, counted from the beginning of all data.
std::optional<std::uint32_t> findData(const BigEndianReader &fork, const ReferenceList &list,
                                      std::int16_t number) {
    for (std::uint64_t index = 0; index < list.count; ++index) {
        const std::uint64_t entry = list.offset + index * 12;
        const auto found = fork.number(entry, 2);
        const auto attributes = fork.number(entry + 4, 1);
        const auto data = fork.number(entry + 5, 3);
        if (!found || !attributes || !data)
            return std::nullopt;
        if (*found != static_cast<std::uint16_t>(number))
            continue;
        // Only the system that wrote a compressed resource can unpack it.
        if (*attributes & compressedAttribute)
            return std::nullopt;
        return data;
    }
    return std::nullopt;
}

std::optional<QByteArray> readCompanion(const QString &path) {
    const QFileInfo file(path);
    QFile companion(file.path() + QStringLiteral("/._") + file.fileName());
    // A pipe or device of that name would keep the reader waiting.
    if (!QFileInfo(companion).isFile() || companion.size() > maximumFileAttributeSize ||
        !companion.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray content = companion.read(maximumFileAttributeSize);
    const QByteArrayView fork = resourceForkOfAppleDouble(content);
    if (fork.isEmpty())
        return std::nullopt;
    return fork.toByteArray();
}

} // namespace

std::optional<QByteArray> readResourceFork(const QString &path) {
    if (std::optional<QByteArray> fork = readCompanion(path))
        return fork;
    return readFileAttribute(path, "com.apple.ResourceFork");
}

QByteArrayView resourceForkOfAppleDouble(QByteArrayView content) {
    const BigEndianReader reader(content);
    if (reader.number(0, 4) != appleDoubleMagic)
        return {};
    const std::uint32_t entries = reader.number(24, 2).value_or(0);
    for (std::uint64_t index = 0; index < entries; ++index) {
        const std::uint64_t entry = 26 + index * 12;
        const auto kind = reader.number(entry, 4);
        const auto offset = reader.number(entry + 4, 4);
        const auto length = reader.number(entry + 8, 4);
        if (!kind || !offset || !length)
            return {};
        if (*kind == resourceForkEntry)
            return reader.part(*offset, *length).value_or(QByteArrayView());
    }
    return {};
}

std::optional<QByteArrayView> resourceInFork(QByteArrayView fork, std::uint32_t type,
                                             std::int16_t number) {
    const BigEndianReader reader(fork);
    const auto dataStart = reader.number(0, 4);
    const auto map = reader.number(4, 4);
    if (!dataStart || !map)
        return std::nullopt;
    const auto typeList = reader.number(std::uint64_t(*map) + 24, 2);
    if (!typeList)
        return std::nullopt;
    const auto references = findType(reader, std::uint64_t(*map) + *typeList, type);
    if (!references)
        return std::nullopt;
    const auto offset = findData(reader, *references, number);
    if (!offset)
        return std::nullopt;
    const std::uint64_t data = std::uint64_t(*dataStart) + *offset;
    const auto length = reader.number(data, 4);
    if (!length)
        return std::nullopt;
    return reader.part(data + 4, *length);
}

} // namespace zt

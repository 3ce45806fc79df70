// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/process/ResourceForkMaker.h"

#include <QMap>

namespace {

QByteArray number(std::uint64_t value, int width) {
    QByteArray bytes;
    for (int shift = (width - 1) * 8; shift >= 0; shift -= 8)
        bytes += static_cast<char>(value >> shift);
    return bytes;
}

std::uint64_t sizeOf(const QByteArray &bytes) {
    return static_cast<std::uint64_t>(bytes.size());
}

} // namespace

QByteArray makeResourceFork(const QList<TestResource> &resources) {
    constexpr std::uint64_t headerSize = 256;
    constexpr std::uint64_t mapHeaderSize = 28;
    QByteArray data;
    QMap<FourCharCode, QByteArray> references;
    for (const TestResource &resource : resources) {
        references[resource.type] += number(static_cast<std::uint16_t>(resource.number), 2) +
                                     number(0xFFFF, 2) + number(resource.attributes, 1) +
                                     number(sizeOf(data), 3) + number(0, 4);
        data += number(sizeOf(resource.data), 4) + resource.data;
    }
    QByteArray types = number(static_cast<std::uint64_t>(references.size()) - 1, 2);
    QByteArray lists;
    const std::uint64_t typesSize = 2 + 8 * static_cast<std::uint64_t>(references.size());
    for (auto entry = references.cbegin(); entry != references.cend(); ++entry) {
        types += number(entry.key(), 4) + number(sizeOf(entry.value()) / 12 - 1, 2) +
                 number(typesSize + sizeOf(lists), 2);
        lists += entry.value();
    }
    const QByteArray map = QByteArray(24, '\0') + number(mapHeaderSize, 2) +
                           number(mapHeaderSize + sizeOf(types) + sizeOf(lists), 2) + types + lists;
    const QByteArray header = number(headerSize, 4) + number(headerSize + sizeOf(data), 4) +
                              number(sizeOf(data), 4) + number(sizeOf(map), 4);
    return header + QByteArray(static_cast<qsizetype>(headerSize) - header.size(), '\0') + data +
           map;
}

QByteArray makeAppleDouble(const QByteArray &fork) {
    constexpr std::uint64_t finderInformationSize = 32;
    constexpr std::uint64_t start = 26 + 2 * 12;
    return number(0x00051607, 4) + number(0x00020000, 4) + QByteArray(16, '\0') + number(2, 2) +
           number(9, 4) + number(start, 4) + number(finderInformationSize, 4) + number(2, 4) +
           number(start + finderInformationSize, 4) + number(sizeOf(fork), 4) +
           QByteArray(finderInformationSize, '\0') + fork;
}

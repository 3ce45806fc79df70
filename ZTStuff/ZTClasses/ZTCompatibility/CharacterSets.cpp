// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/CharacterSets.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/Scalars.h"

#include <algorithm>

CharacterSet::CharacterSet(QStringView characters) {
    for (qsizetype index = 0; index < characters.size();) {
        const Scalar scalar = scalarAt(characters, index);
        if (scalar.value < 0x10000)
            m_units[scalar.value / 64] |= std::uint64_t{1} << scalar.value % 64;
        else
            m_beyond.append(scalar.value);
        index += scalar.length;
    }
    std::ranges::sort(m_beyond);
}

bool CharacterSet::contains(char32_t scalar) const {
    if (scalar < 0x10000)
        return (m_units[scalar / 64] >> scalar % 64 & 1) != 0;
    return std::ranges::binary_search(m_beyond, scalar);
}

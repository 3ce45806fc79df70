// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/LiteralSearch.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace {

// The search of Knuth, Morris and Pratt: never looks at a unit of the text twice. It needs a table
// of the part, and is slower than skipping to its first unit where that is rare.
qsizetype indexWithoutGoingBack(QStringView text, QStringView part, qsizetype from) {
    // For each beginning of the part: how much of its end is a proper beginning of the part too.
    std::vector<qsizetype> overlaps(static_cast<std::size_t>(part.size()), 0);
    const auto longestOverlap = [&](qsizetype matched, QChar next) {
        while (matched > 0 && part[matched] != next)
            matched = overlaps[static_cast<std::size_t>(matched - 1)];
        return part[matched] == next ? matched + 1 : matched;
    };
    for (qsizetype end = 1; end < part.size(); ++end)
        overlaps[static_cast<std::size_t>(end)] =
            longestOverlap(overlaps[static_cast<std::size_t>(end - 1)], part[end]);
    qsizetype matched = 0;
    for (qsizetype index = from; index < text.size(); ++index) {
        matched = longestOverlap(matched, text[index]);
        if (matched == part.size())
            return index + 1 - part.size();
    }
    return -1;
}

} // namespace

qsizetype literalIndexOf(QStringView text, QStringView part, qsizetype from) {
    if (part.isEmpty())
        return from <= text.size() ? from : -1;
    const qsizetype last = text.size() - part.size();
    qsizetype spent = 0;
    for (qsizetype index = from; index <= last; ++index) {
        index = text.indexOf(part.front(), index);
        if (index < 0 || index > last)
            return -1;
        const auto difference =
            std::mismatch(part.begin() + 1, part.end(), text.begin() + index + 1);
        if (difference.first == part.end())
            return index;
        // Places that nearly match may be many; what has been spent on them may not outgrow what
        // has been passed.
        constexpr qsizetype costOfPlace = 4;
        constexpr qsizetype advance = 1024;
        spent += costOfPlace + (difference.first - part.begin());
        if (spent > advance + 2 * (index - from))
            return indexWithoutGoingBack(text, part, index + 1);
    }
    return -1;
}

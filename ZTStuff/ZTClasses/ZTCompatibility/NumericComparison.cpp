// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/NumericComparison.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/Scalars.h"

#include <algorithm>
#include <cstring>

namespace {

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

// Takes a run of digits off the front of the text and answers it without its leading zeros.
QStringView takeNumber(QStringView &text) {
    qsizetype start = 0;
    while (start < text.size() && text.at(start) == u'0')
        ++start;
    qsizetype end = start;
    while (end < text.size() && isDigit(text.at(end)))
        ++end;
    const QStringView number = text.mid(start, end - start);
    text = text.mid(end);
    return number;
}

Ordering ordering(qsizetype difference) {
    if (difference == 0)
        return Ordering::Same;
    return difference < 0 ? Ordering::Ascending : Ordering::Descending;
}

// The number of units that are the same at the start of both texts, but for less than a block:
// the C library compares whole blocks in one go.
qsizetype roughlyCommonLength(QStringView a, QStringView b) {
    constexpr qsizetype block = 128;
    const qsizetype shorter = std::min(a.size(), b.size());
    qsizetype length = 0;
    while (length + block <= shorter &&
           std::memcmp(a.utf16() + length, b.utf16() + length, block * sizeof(char16_t)) == 0)
        length += block;
    return length;
}

// How units are compared.
struct CaseSensitive {
    static int difference(QStringView a, QStringView b, qsizetype index) {
        return a.utf16()[index] - b.utf16()[index];
    }
};

struct CaseInsensitive {
    static int difference(QStringView a, QStringView b, qsizetype index) {
        if (a.utf16()[index] == b.utf16()[index] && !QChar::isSurrogate(a.utf16()[index]))
            return 0;
        return foldedUnit(a, index) - foldedUnit(b, index);
    }

private:
    // No character changes its number of units when its case is folded.
    static char16_t foldedUnit(QStringView text, qsizetype index) {
        const char16_t unit = text.utf16()[index];
        if (QChar::isLowSurrogate(unit))
            return QChar::lowSurrogate(folded(scalarBefore(text, index + 1)));
        const Scalar scalar = scalarAt(text, index);
        return scalar.length == 2 ? QChar::highSurrogate(folded(scalar))
                                  : static_cast<char16_t>(folded(scalar));
    }

    static char32_t folded(Scalar scalar) { return QChar::toCaseFolded(scalar.value); }
};

template <typename Units>
Ordering compare(QStringView a, QStringView b) {
    for (;;) {
        const qsizetype shorter = std::min(a.size(), b.size());
        qsizetype index = roughlyCommonLength(a, b);
        int difference = 0;
        while (index < shorter && (difference = Units::difference(a, b, index)) == 0)
            ++index;
        // The difference may be one between numbers that began in the common part.
        qsizetype number = index;
        while (number > 0 && isDigit(a.at(number - 1)))
            --number;
        const bool areNumbers = number < shorter && isDigit(a.at(number)) && isDigit(b.at(number));
        if (!areNumbers)
            return index < shorter ? ordering(difference) : ordering(a.size() - b.size());
        a = a.mid(number);
        b = b.mid(number);
        const QStringView numberA = takeNumber(a);
        const QStringView numberB = takeNumber(b);
        if (numberA.size() != numberB.size())
            return ordering(numberA.size() - numberB.size());
        if (const int result = numberA.compare(numberB); result != 0)
            return ordering(result);
    }
}

} // namespace

Ordering numericCompare(QStringView a, QStringView b) {
    return compare<CaseSensitive>(a, b);
}

Ordering caseInsensitiveNumericCompare(QStringView a, QStringView b) {
    return compare<CaseInsensitive>(a, b);
}

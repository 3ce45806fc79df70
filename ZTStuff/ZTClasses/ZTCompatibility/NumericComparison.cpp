// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/NumericComparison.h"

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

} // namespace

Ordering numericCompare(QStringView a, QStringView b) {
    while (!a.isEmpty() && !b.isEmpty()) {
        Ordering result = Ordering::Same;
        if (isDigit(a.front()) && isDigit(b.front())) {
            const QStringView numberA = takeNumber(a);
            const QStringView numberB = takeNumber(b);
            result = numberA.size() != numberB.size() ? ordering(numberA.size() - numberB.size())
                                                      : ordering(numberA.compare(numberB));
        } else {
            result = ordering(a.front().unicode() - b.front().unicode());
            a = a.mid(1);
            b = b.mid(1);
        }
        if (result != Ordering::Same)
            return result;
    }
    return ordering(a.size() - b.size());
}

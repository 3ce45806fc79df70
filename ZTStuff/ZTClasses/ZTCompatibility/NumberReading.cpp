// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/NumberReading.h"

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

bool isDigit(char16_t unit) {
    return unit >= u'0' && unit <= u'9';
}

QStringView withoutLeadingBlanks(QStringView text) {
    const auto first = std::find_if(text.begin(), text.end(), [](QChar c) { return !c.isSpace(); });
    return text.mid(first - text.begin());
}

// The length of the longest beginning that is a decimal number without a sign; 0 when none.
qsizetype unsignedNumberLength(QStringView text) {
    const auto digitsFrom = [text](qsizetype position) {
        qsizetype end = position;
        while (end < text.size() && isDigit(text.at(end).unicode()))
            ++end;
        return end - position;
    };
    const qsizetype whole = digitsFrom(0);
    qsizetype length = whole;
    if (length < text.size() && text.at(length) == u'.') {
        const qsizetype fraction = digitsFrom(length + 1);
        if (whole == 0 && fraction == 0)
            return 0;
        length += 1 + fraction;
    }
    if (length > 0 && length < text.size() &&
        (text.at(length) == u'e' || text.at(length) == u'E')) {
        qsizetype exponent = length + 1;
        if (exponent < text.size() && (text.at(exponent) == u'+' || text.at(exponent) == u'-'))
            ++exponent;
        if (const qsizetype digits = digitsFrom(exponent); digits > 0)
            length = exponent + digits;
    }
    return length;
}

// Tells an overflow from an underflow where the library reports only "out of range": by the
// decimal exponent of the first digit that is not 0.
bool isTooLarge(const QByteArray &number) {
    const auto mantissaEnd =
        std::ranges::find_if(number, [](char c) { return c == 'e' || c == 'E'; });
    const auto point = std::find(number.begin(), mantissaEnd, '.');
    const auto first =
        std::find_if(number.begin(), mantissaEnd, [](char c) { return c >= '1' && c <= '9'; });
    const qsizetype exponent =
        mantissaEnd == number.end()
            ? 0
            : integerValue(QString::fromLatin1(&*mantissaEnd + 1, number.end() - mantissaEnd - 1));
    return exponent + (point - first) > 0;
}

template <typename Real>
Real realValue(QStringView text) {
    QStringView rest = withoutLeadingBlanks(text);
    const bool negative = rest.startsWith(u'-');
    if (negative || rest.startsWith(u'+'))
        rest = rest.mid(1);
    const QByteArray number = rest.left(unsignedNumberLength(rest)).toLatin1();
    Real value = 0;
    const auto [end, failure] = std::from_chars(number.begin(), number.end(), value);
    if (failure == std::errc::result_out_of_range)
        value = isTooLarge(number) ? std::numeric_limits<Real>::infinity() : Real(0);
    return negative ? -value : value;
}

} // namespace

int integerValue(QStringView text) {
    QStringView rest = withoutLeadingBlanks(text);
    const bool negative = rest.startsWith(u'-');
    if (negative || rest.startsWith(u'+'))
        rest = rest.mid(1);
    constexpr qint64 largest = std::numeric_limits<int>::max();
    qint64 value = 0;
    for (const QChar c : rest) {
        if (!isDigit(c.unicode()))
            break;
        value = std::min(value * 10 + (c.unicode() - u'0'), largest + 1);
    }
    return static_cast<int>(negative ? -value : std::min(value, largest));
}

double doubleValue(QStringView text) {
    return realValue<double>(text);
}

float floatValue(QStringView text) {
    return realValue<float>(text);
}

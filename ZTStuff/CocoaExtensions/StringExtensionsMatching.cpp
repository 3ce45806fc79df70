// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/StringExtensionsValues.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/LiteralSearch.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/NumericComparison.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"
#include "ZTStuff/ZTClasses/ZTRegularExpression.h"

#include <algorithm>
#include <atomic>

namespace StringExtensions {

namespace {

// Set once it was logged that there are no regular expressions.
std::atomic<bool> messageLogged = false;

// The index of the first star, -1 without one. Patterns are short: a call to search for it would
// take longer than looking.
qsizetype indexOfStar(QStringView pattern) {
    const auto *const star = std::find(pattern.begin(), pattern.end(), u'*');
    return star == pattern.end() ? -1 : star - pattern.begin();
}

} // namespace

Ordering numericCompare(const QString &receiver, const QString &other) {
    return ::numericCompare(receiver, other);
}

Ordering caseInsensitiveNumericCompare(const QString &receiver, const QString &other) {
    return ::caseInsensitiveNumericCompare(receiver, other);
}

bool matchesWildcardPattern(const QString &receiver, const QString &pattern) {
    const QStringView text(receiver);
    QStringView rest(pattern);
    qsizetype star = indexOfStar(rest);
    if (star < 0)
        return receiver == pattern;
    if (star > 0 && !text.startsWith(rest.left(star)))
        return false;
    qsizetype position = star;
    for (;;) {
        rest = rest.mid(star + 1);
        star = indexOfStar(rest);
        if (star < 0)
            return rest.isEmpty() || (rest.size() <= text.size() - position && text.endsWith(rest));
        const QStringView part = rest.left(star);
        position = literalIndexOf(text, part, position);
        if (position < 0)
            return false;
        position += part.size();
    }
}

QString stringByReplacingOccurrencesOfRegexPattern(const QString &receiver, const QString &pattern,
                                                   const QString &withTemplate) {
    if (!ZTRegularExpression::regexAvailable()) {
        if (!messageLogged.exchange(true))
            ZTLog("Regular expressions are not available (require OS X 10.7 or newer).");
        return receiver;
    }
    QString error;
    const auto expression = ZTRegularExpression::regularExpressionWithPattern(
        pattern, RegularExpressionOption::UseUnicodeWordBoundaries, &error);
    std::optional<QString> replaced;
    if (expression)
        replaced = expression->stringByReplacingMatches(receiver, withTemplate, &error);
    if (!replaced) {
        ZTLog("Regular expression error: %@", error);
        return receiver;
    }
    return *std::move(replaced);
}

} // namespace StringExtensions

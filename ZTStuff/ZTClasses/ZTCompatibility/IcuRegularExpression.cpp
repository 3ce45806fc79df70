// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/IcuRegularExpression.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/RegularExpressionTemplate.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTFormat.h"

#include <unicode/uregex.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <string_view>
#include <utility>

#if UCONFIG_NO_REGULAR_EXPRESSIONS

const RegularExpressionClass *platformRegularExpressionClass(const char * /*name*/) {
    return nullptr;
}

#else

namespace {

struct Closer {
    void operator()(URegularExpression *expression) const { uregex_close(expression); }
};

using Expression = std::unique_ptr<URegularExpression, Closer>;

constexpr qsizetype longestText = std::numeric_limits<std::int32_t>::max();

// ICU counts the steps of a search by ten thousands. A short text may take two hundred million, and
// a long one a thousand for each of its units.
std::int32_t stepLimit(qsizetype textLength) {
    constexpr qsizetype leastLimit = 20000;
    constexpr qsizetype unitsForEach = 10;
    return static_cast<std::int32_t>(std::max(leastLimit, textLength / unitsForEach));
}

std::uint32_t flagsFor(RegularExpressionOptions options) {
    using Option = RegularExpressionOption;
    static constexpr std::array<std::pair<Option, std::uint32_t>, 7> flags = {{
        {Option::CaseInsensitive, UREGEX_CASE_INSENSITIVE},
        {Option::AllowCommentsAndWhitespace, UREGEX_COMMENTS},
        {Option::IgnoreMetacharacters, UREGEX_LITERAL},
        {Option::DotMatchesLineSeparators, UREGEX_DOTALL},
        {Option::AnchorsMatchLines, UREGEX_MULTILINE},
        {Option::UseUnixLineSeparators, UREGEX_UNIX_LINES},
        {Option::UseUnicodeWordBoundaries, UREGEX_UWORD},
    }};
    std::uint32_t result = 0;
    for (const auto &[option, flag] : flags)
        result |= options.testFlag(option) ? flag : 0;
    return result;
}

class IcuRegularExpression final : public RegularExpression {
public:
    IcuRegularExpression(Expression expression, QString pattern)
        : m_expression(std::move(expression))
        , m_pattern(std::move(pattern)) {}

    std::optional<QString> stringByReplacingMatches(const QString &text,
                                                    const QString &withTemplate,
                                                    QString *error) override {
        UErrorCode status = U_ZERO_ERROR;
        std::optional<QString> replaced;
        if (text.size() <= longestText)
            replaced = replace(text, withTemplate, status);
        else
            status = U_INDEX_OUTOFBOUNDS_ERROR;
        // Nothing is left that refers to the text.
        UErrorCode ignored = U_ZERO_ERROR;
        uregex_setText(m_expression.get(), u"", 0, &ignored);
        if (U_SUCCESS(status))
            return replaced;
        *error = ZTFormat("The search for \"%@\" failed: %s", m_pattern, u_errorName(status));
        return std::nullopt;
    }

private:
    QString replace(const QString &text, const QString &withTemplate, UErrorCode &status) {
        URegularExpression *const expression = m_expression.get();
        const QStringView view(text);
        uregex_setTimeLimit(expression, stepLimit(text.size()), &status);
        uregex_setText(expression, view.utf16(), static_cast<std::int32_t>(view.size()), &status);
        if (!uregex_findNext(expression, &status) || U_FAILURE(status))
            return text;
        const RegularExpressionTemplate replacement(withTemplate,
                                                    uregex_groupCount(expression, &status));
        QString replaced;
        replaced.reserve(text.size());
        qsizetype written = 0;
        do {
            const qsizetype start = uregex_start(expression, 0, &status);
            replaced.append(view.mid(written, start - written));
            replacement.appendTo(replaced, [&](int group) {
                const qsizetype from = uregex_start(expression, group, &status);
                return from < 0 ? QStringView()
                                : view.mid(from, uregex_end(expression, group, &status) - from);
            });
            written = uregex_end(expression, 0, &status);
        } while (uregex_findNext(expression, &status) && U_SUCCESS(status));
        return replaced.append(view.mid(written));
    }

    Expression m_expression;
    QString m_pattern;
};

class IcuRegularExpressionClass final : public RegularExpressionClass {
public:
    std::unique_ptr<RegularExpression>
    regularExpressionWithPattern(const QString &pattern, RegularExpressionOptions options,
                                 QString *error) const override {
        UErrorCode status = U_ZERO_ERROR;
        UParseError place = {};
        const QStringView view(pattern);
        Expression expression(
            uregex_open(view.utf16(), static_cast<std::int32_t>(std::min(view.size(), longestText)),
                        flagsFor(options), &place, &status));
        if (U_SUCCESS(status))
            return std::make_unique<IcuRegularExpression>(std::move(expression), pattern);
        *error = ZTFormat("The value \"%@\" is invalid: %s, line %d, offset %d", pattern,
                          u_errorName(status), place.line, place.offset);
        return nullptr;
    }
};

} // namespace

const RegularExpressionClass *platformRegularExpressionClass(const char *name) {
    static const IcuRegularExpressionClass icu;
    return std::string_view(name) == "NSRegularExpression" ? &icu : nullptr;
}

#endif

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Regular expressions, where the platform has them.

#include <QFlags>
#include <QString>

#include <memory>
#include <optional>

// The numbers of the reference platform.
enum class RegularExpressionOption {
    CaseInsensitive = 1,
    AllowCommentsAndWhitespace = 2,
    IgnoreMetacharacters = 4,
    DotMatchesLineSeparators = 8,
    AnchorsMatchLines = 16,
    UseUnixLineSeparators = 32,
    UseUnicodeWordBoundaries = 64
};
Q_DECLARE_FLAGS(RegularExpressionOptions, RegularExpressionOption)
Q_DECLARE_OPERATORS_FOR_FLAGS(RegularExpressionOptions)

// A pattern that was understood. Thread: one at a time.
class RegularExpression {
public:
    virtual ~RegularExpression() = default;

    // The text with each match replaced by the template; the text itself when nothing matches. In
    // the template "$" and a number stand for what that group matched, 0 for the whole match; as
    // many digits count as make the number of a group, and one digit that makes none stands for
    // nothing. A backslash makes the next character an ordinary one. No value, and the reason in
    // `error`, when the search takes steps out of all proportion to the text's length.
    virtual std::optional<QString>
    stringByReplacingMatches(const QString &text, const QString &withTemplate, QString *error) = 0;

protected:
    RegularExpression() = default;
    RegularExpression(const RegularExpression &) = default;
    RegularExpression &operator=(const RegularExpression &) = default;
};

// What makes regular expressions.
class RegularExpressionClass {
public:
    virtual ~RegularExpressionClass() = default;

    // Null, and the reason in `error`, when the pattern is none. Thread: any.
    virtual std::unique_ptr<RegularExpression>
    regularExpressionWithPattern(const QString &pattern, RegularExpressionOptions options,
                                 QString *error) const = 0;

protected:
    RegularExpressionClass() = default;
    RegularExpressionClass(const RegularExpressionClass &) = default;
    RegularExpressionClass &operator=(const RegularExpressionClass &) = default;
};

// The platform's class by its name, found out once. Thread: any, for all operations.
class ZTRegularExpression {
public:
    // Null where the platform has no regular expressions.
    static const RegularExpressionClass *regexClass();
    static bool regexAvailable();

    // Null without a class, and then `error` stays as it is, or when the pattern is none.
    static std::unique_ptr<RegularExpression>
    regularExpressionWithPattern(const QString &pattern, RegularExpressionOptions options,
                                 QString *error);

    // Finds the class of the name, or null.
    using ClassLookUp = const RegularExpressionClass *(*)(const char *name);

    // Lets the class be found anew, by another look-up, for its own lifetime. For tests.
    class ScopedClassLookUp {
    public:
        explicit ScopedClassLookUp(ClassLookUp lookUp);
        ~ScopedClassLookUp();
        ScopedClassLookUp(const ScopedClassLookUp &) = delete;
        ScopedClassLookUp &operator=(const ScopedClassLookUp &) = delete;

    private:
        ClassLookUp m_previous;
    };
};

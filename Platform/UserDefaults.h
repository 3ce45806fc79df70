#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Settings of the user: what was given on the command line, stored by this application, stored by
// a named group of applications ("suite"), or set for the whole system.

#include <QString>
#include <QVariant>

#include <optional>

namespace zt {

// Thread: any, for all operations; but a setting of the interface's appearance is asked for on the
// main thread.
class UserDefaults {
public:
    virtual ~UserDefaults() = default;

    // The value under the key, searched in this order: the command line ("-key value"), the
    // application's own settings, the settings shared by all applications. A value from the command
    // line is a string unless it reads as a property list.
    virtual std::optional<QVariant> objectForKey(const QString &key) const = 0;

    // The value under the key in the named suite's own settings.
    virtual std::optional<QVariant> objectForKey(const QString &key,
                                                 const QString &suiteName) const = 0;

    // The value read as a truth: a true boolean, a non-zero number, or a text that after blanks,
    // a sign and leading zeros begins with Y, y, T, t or a digit from 1 to 9. No value is false.
    bool boolForKey(const QString &key) const;

    // The value when it is a text or a number, as a text.
    std::optional<QString> stringForKey(const QString &key) const;

protected:
    UserDefaults() = default;
    UserDefaults(const UserDefaults &) = default;
    UserDefaults &operator=(const UserDefaults &) = default;
};

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// User defaults on Linux: the command line, then settings files in the user's configuration folder,
// then the system's own settings.

#include "Platform/UserDefaults.h"

#include <QStringList>
#include <QVariantMap>

#include <functional>

namespace zt {

// The "-key value" pairs of an argument vector (element 0 is passed over). A value that begins like
// a property list and is one becomes what it says, any other a text; a key followed by another key
// has no value; of a key given twice the last value holds.
QVariantMap parseArgumentDefaults(const QStringList &argumentVector);

// Settings are read from "<configuration folder>/<domain>.conf" (INI form) anew for each question,
// so that a change takes effect at once.
class LinuxUserDefaults final : public UserDefaults {
public:
    // What the system has set under a key for all applications.
    using SystemSettings = std::function<std::optional<QVariant>(const QString &key)>;

    // `configurationFolder` is the user's, ~/.config by default; `domain` names the application's
    // own settings, by its bundle identifier. `systemSettings` is called on the thread that asks.
    LinuxUserDefaults(const QStringList &argumentVector, QString configurationFolder,
                      QString domain, SystemSettings systemSettings = {});

    std::optional<QVariant> objectForKey(const QString &key) const override;
    std::optional<QVariant> objectForKey(const QString &key,
                                         const QString &suiteName) const override;

private:
    QVariantMap m_argumentDefaults;
    QString m_configurationFolder;
    QString m_domain;
    SystemSettings m_systemSettings;
};

} // namespace zt

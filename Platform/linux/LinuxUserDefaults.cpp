// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/LinuxUserDefaults.h"

#include "Platform/PropertyList.h"

#include <QFileInfo>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace zt {

namespace {

QVariant argumentValue(const QString &text) {
    if (!text.isEmpty() && QStringView(u"{(<\"").contains(text.front())) {
        if (Result<QVariant> value = parsePropertyList(text.toUtf8()))
            return *value;
    }
    return text;
}

} // namespace

QVariantMap parseArgumentDefaults(const QStringList &argumentVector) {
    QVariantMap defaults;
    for (qsizetype i = 1; i + 1 < argumentVector.size(); ++i) {
        const QString &key = argumentVector.at(i);
        const QString &value = argumentVector.at(i + 1);
        if (key.size() > 1 && key.startsWith(u'-') && !value.startsWith(u'-'))
            defaults.insert(key.mid(1), argumentValue(value));
    }
    return defaults;
}

LinuxUserDefaults::LinuxUserDefaults(const QStringList &argumentVector, QString configurationFolder,
                                     QString domain, SystemSettings systemSettings)
    : m_argumentDefaults(parseArgumentDefaults(argumentVector))
    , m_configurationFolder(std::move(configurationFolder))
    , m_domain(std::move(domain))
    , m_systemSettings(std::move(systemSettings)) {}

std::optional<QVariant> LinuxUserDefaults::objectForKey(const QString &key) const {
    if (const auto value = m_argumentDefaults.constFind(key); value != m_argumentDefaults.cend())
        return *value;
    if (const std::optional<QVariant> value = objectForKey(key, m_domain))
        return value;
    return m_systemSettings ? m_systemSettings(key) : std::nullopt;
}

std::optional<QVariant> LinuxUserDefaults::objectForKey(const QString &key,
                                                        const QString &suiteName) const {
    // A suite's name becomes a file's name; one that would lead elsewhere names no suite.
    if (suiteName.isEmpty() || suiteName.contains(u'/'))
        return std::nullopt;
    const QString path = m_configurationFolder + u'/' + suiteName + u".conf"_s;
    if (!QFileInfo::exists(path))
        return std::nullopt;
    const QVariant value = QSettings(path, QSettings::IniFormat).value(key);
    return value.isValid() ? std::optional(value) : std::nullopt;
}

} // namespace zt

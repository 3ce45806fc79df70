// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/Bundles.h"

#include <QDir>
#include <QFileInfo>

namespace zt {

std::optional<QString> Bundle::stringForKey(const QString &key) const {
    const QVariant value = m_layout.information.value(key);
    if (value.metaType() != QMetaType::fromType<QString>())
        return std::nullopt;
    return value.toString();
}

std::optional<QString> Bundle::pathForResource(const QString &name, const QString &type) const {
    if (name.isEmpty() || m_layout.resourcesPath.isEmpty())
        return std::nullopt;
    const QString fileName = type.isEmpty() ? name : name + u'.' + type;
    const QFileInfo resource(m_layout.resourcesPath + u'/' + fileName);
    if (!resource.exists())
        return std::nullopt;
    // A name such as "../../secret" must not reach a file outside the bundle's resources.
    const QString folder = QFileInfo(m_layout.resourcesPath).canonicalFilePath();
    if (!resource.canonicalFilePath().startsWith(folder + u'/'))
        return std::nullopt;
    return resource.filePath();
}

QStringList Bundle::pathsForResources() const {
    if (m_layout.resourcesPath.isEmpty())
        return {};
    QStringList paths;
    const QDir folder(m_layout.resourcesPath);
    for (const QString &name :
         folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name))
        paths << m_layout.resourcesPath + u'/' + name;
    return paths;
}

std::optional<Bundle> Bundles::bundleEnclosing(const QString &path) const {
    if (path.isEmpty())
        return std::nullopt;
    QString candidate = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    while (candidate != u"/") {
        if (candidate.endsWith(u".app", Qt::CaseInsensitive)) {
            if (std::optional<Bundle> bundle = bundleAtPath(candidate))
                return bundle;
        }
        candidate = QFileInfo(candidate).path();
    }
    return std::nullopt;
}

} // namespace zt

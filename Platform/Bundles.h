#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Bundles: folders that hold a program with its resources and an information dictionary.

#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <optional>

namespace zt {

// One bundle as it was when it was read. A value; copies are cheap. Thread: any.
class Bundle {
public:
    struct Layout {
        QString path;            // the bundle's folder, absolute, without a trailing slash
        QString resourcesPath;   // the folder that holds its resources
        QString executablePath;  // its program; empty when the dictionary names none that exists
        QVariantMap information; // the information dictionary
    };

    explicit Bundle(Layout layout) : m_layout(std::move(layout)) {}

    const QString &path() const { return m_layout.path; }
    const QString &resourcesPath() const { return m_layout.resourcesPath; }
    const QString &executablePath() const { return m_layout.executablePath; }
    const QVariantMap &infoDictionary() const { return m_layout.information; }

    // The string stored under the key; no value when it is absent or not a string.
    std::optional<QString> stringForKey(const QString &key) const;

    // The path of the existing resource `name` with the extension `type` (none when empty). A name
    // that leads out of the resources folder is not found.
    std::optional<QString> pathForResource(const QString &name, const QString &type = {}) const;

    // The paths of all items at the top of the resources folder, by name. Empty when it cannot be
    // read.
    QStringList pathsForResources() const;

private:
    Layout m_layout;
};

// Finds bundles. Thread: any, for all operations.
class Bundles {
public:
    virtual ~Bundles() = default;

    // The bundle at the folder. No value when it is not a bundle: no information dictionary is
    // found, or the one found is unreadable or not a dictionary.
    virtual std::optional<Bundle> bundleAtPath(const QString &path) const = 0;

    // The bundle that this program runs from; when it runs from none, a bundle without information
    // whose path is the folder of the executable.
    virtual const Bundle &mainBundle() const = 0;

    // The innermost bundle folder that encloses the path (a path ending in a bundle suffix on the
    // way upwards, the path itself included) and is a bundle. No value when there is none.
    virtual std::optional<Bundle> bundleEnclosing(const QString &path) const;

protected:
    Bundles() = default;
    Bundles(const Bundles &) = default;
    Bundles &operator=(const Bundles &) = default;
};

} // namespace zt

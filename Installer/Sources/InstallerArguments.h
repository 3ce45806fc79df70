#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The installer arguments: a dictionary of what the product says about itself on the command line,
// completed from its bundle. Pure functions; the window controller calls them in this order.
//
// A value is a QString, or a QStringList for keys that end in "Code". Keys: ZTInstallerInterface.h.

#include "Platform/Bundles.h"

#include <QStringList>
#include <QVariantMap>

#include <functional>
#include <optional>

namespace InstallerArguments {

// The string under the key; no value when it is absent or a list.
std::optional<QString> stringArgument(const QVariantMap &arguments, const QString &key);

// The dictionary of a full argument vector, element 0 included. An element that begins with "-" is
// the key for the values that follow; a key ending in "Code" collects all its values, any other
// keeps the last. Values before the first key are stored under the empty key.
QVariantMap dictionary(const QStringList &argumentVector);

// The same with a line in the log.
QVariantMap parse(const QStringList &argumentVector);

// Fills in the source path when it was not given: the innermost folder ending in ".app" around the
// installer's own bundle. Answers false when there is none.
bool completeSourcePath(QVariantMap &arguments, const QString &installerBundlePath);

// Fills in the product name when it was not given: the source's name without its extension.
// Answers false when that is empty.
bool completeProductName(QVariantMap &arguments);

// What was given, else what the product's information dictionary says. Not stored.
std::optional<QString> version(const QVariantMap &arguments,
                               const std::optional<zt::Bundle> &product);
std::optional<QString> minimumSystemVersion(const QVariantMap &arguments,
                                            const std::optional<zt::Bundle> &product);

// The rules that choose a destination where none was given.
struct DestinationRules {
    std::function<std::optional<QString>(const QString &productName)> preferredDestination;
    std::function<QString()> applicationsDirectory;
};

// Fills in or mends the destination path, and drops a wrapper that is not around the source.
void completeDestination(QVariantMap &arguments, const DestinationRules &rules);

// Drops a documentation path at which no file exists.
void completeDocumentation(QVariantMap &arguments);

// Fills in the product codes when none were given: the product's signature. Answers false when
// there is none either.
bool completeProductCodes(QVariantMap &arguments, const std::optional<zt::Bundle> &product);

// Makes the quit codes end with the product codes.
void completeQuitCodes(QVariantMap &arguments);

} // namespace InstallerArguments

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/InstallerArguments.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/PathComponents.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"
#include "ZTStuff/ZTClasses/ZTInstallerInterface.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace InstallerArguments {

namespace {

std::optional<QString> argumentOrInformation(const QVariantMap &arguments, const QString &key,
                                             const std::optional<zt::Bundle> &product,
                                             const QString &informationKey) {
    if (auto given = stringArgument(arguments, key))
        return given;
    return product ? product->stringForKey(informationKey) : std::nullopt;
}

QString destinationFor(const QVariantMap &arguments, const DestinationRules &rules,
                       const QString &source) {
    auto destination = stringArgument(arguments, ZTInstallerKeyDestinationPath);
    if (!destination) {
        destination = rules.preferredDestination(
            stringArgument(arguments, ZTInstallerKeyProductName).value_or(QString()));
    }
    if (destination && QFileInfo(deletingLastPathComponent(*destination)).isDir())
        return *destination;
    return appendingPathComponent(rules.applicationsDirectory(), lastPathComponent(source));
}

QString insideWrapper(const QString &destination, const QString &wrapper) {
    const QString parent = deletingLastPathComponent(destination);
    const QString wrapperName = lastPathComponent(wrapper);
    if (lastPathComponent(parent) == wrapperName)
        return destination;
    return appendingPathComponent(appendingPathComponent(parent, wrapperName),
                                  lastPathComponent(destination));
}

} // namespace

std::optional<QString> stringArgument(const QVariantMap &arguments, const QString &key) {
    const QVariant value = arguments.value(key);
    return value.typeId() == QMetaType::QString ? std::optional(value.toString()) : std::nullopt;
}

QVariantMap dictionary(const QStringList &argumentVector) {
    QVariantMap arguments;
    QString key = u""_s;
    for (const QString &element : argumentVector) {
        if (element.startsWith(u'-')) {
            key = element.mid(1);
        } else if (key.endsWith(u"Code")) {
            arguments[key] = arguments.value(key).toStringList() << element;
        } else {
            arguments[key] = element;
        }
    }
    return arguments;
}

QVariantMap parse(const QStringList &argumentVector) {
    ZTLog("arguments: %@", argumentVector);
    return dictionary(argumentVector);
}

bool completeSourcePath(QVariantMap &arguments, const QString &installerBundlePath) {
    if (arguments.contains(ZTInstallerKeySourcePath))
        return true;
    const QString suffix = u".app"_s;
    QString path = deletingLastPathComponent(installerBundlePath);
    while (path.size() > 1 && !path.endsWith(suffix)) {
        path = deletingLastPathComponent(path);
        ZTLog("shortened path = %@", path);
    }
    if (!path.endsWith(suffix))
        return false;
    arguments[ZTInstallerKeySourcePath] = path;
    return true;
}

bool completeProductName(QVariantMap &arguments) {
    if (arguments.contains(ZTInstallerKeyProductName))
        return true;
    const QString source = stringArgument(arguments, ZTInstallerKeySourcePath).value_or(QString());
    const QString name = deletingPathExtension(lastPathComponent(source));
    if (name.isEmpty())
        return false;
    arguments[ZTInstallerKeyProductName] = name;
    return true;
}

std::optional<QString> version(const QVariantMap &arguments,
                               const std::optional<zt::Bundle> &product) {
    return argumentOrInformation(arguments, ZTInstallerKeyVersion, product,
                                 u"CFBundleShortVersionString"_s);
}

std::optional<QString> minimumSystemVersion(const QVariantMap &arguments,
                                            const std::optional<zt::Bundle> &product) {
    return argumentOrInformation(arguments, ZTInstallerKeyMinSystemVersion, product,
                                 u"LSMinimumSystemVersion"_s);
}

void completeDestination(QVariantMap &arguments, const DestinationRules &rules) {
    const QString source = stringArgument(arguments, ZTInstallerKeySourcePath).value_or(QString());
    QString destination = destinationFor(arguments, rules, source);
    if (const auto wrapper = stringArgument(arguments, ZTInstallerKeyWrapperPath)) {
        if (wrapper->startsWith(deletingLastPathComponent(source)) && QFileInfo::exists(*wrapper)) {
            ZTLog("wrapper = %@", *wrapper);
            destination = insideWrapper(destination, *wrapper);
        } else {
            arguments.remove(ZTInstallerKeyWrapperPath);
        }
    }
    arguments[ZTInstallerKeyDestinationPath] = destination;
}

void completeDocumentation(QVariantMap &arguments) {
    const auto path = stringArgument(arguments, ZTInstallerKeyDocumentationPath);
    if (path && !QFileInfo::exists(*path))
        arguments.remove(ZTInstallerKeyDocumentationPath);
}

bool completeProductCodes(QVariantMap &arguments, const std::optional<zt::Bundle> &product) {
    if (arguments.contains(ZTInstallerKeyProductCode))
        return true;
    const auto signature =
        product ? product->stringForKey(u"CFBundleSignature"_s) : std::optional<QString>();
    if (!signature)
        return false;
    arguments[ZTInstallerKeyProductCode] = QStringList{*signature};
    return true;
}

void completeQuitCodes(QVariantMap &arguments) {
    arguments[ZTInstallerKeyQuitCode] = arguments.value(ZTInstallerKeyQuitCode).toStringList() +
                                        arguments.value(ZTInstallerKeyProductCode).toStringList();
    ZTLog("Updated arguments: %@", arguments);
}

} // namespace InstallerArguments

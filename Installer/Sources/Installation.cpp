// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/Installation.h"

#include "Installer/Sources/InstallerArguments.h"
#include "Installer/Sources/LocalizedString.h"
#include "ZTStuff/ZTClasses/ZTInstallerInterface.h"
#include "ZTStuff/ZTClasses/ZTUtilities.h"

Installation::Installation(const zt::Platform &platform) : m_platform(platform) {}

Installation::~Installation() = default;

void Installation::extractArguments(const QStringList &argumentVector) {
    m_arguments = InstallerArguments::parse(argumentVector);
}

std::optional<QString> Installation::findProduct() {
    if (!InstallerArguments::completeSourcePath(m_arguments,
                                                m_platform.bundles.mainBundle().path()))
        return localizationKey("missing source path");
    if (!InstallerArguments::completeProductName(m_arguments))
        return localizationKey("missing program name");
    m_product = m_platform.bundles.bundleAtPath(sourcePath());
    return std::nullopt;
}

std::optional<QString> Installation::completeArguments() {
    InstallerArguments::completeDestination(
        m_arguments, {.preferredDestination =
                          [this](const QString &name) { return findPreferredDestinationFor(name); },
                      .applicationsDirectory = [this] { return applicationsDirectory(); }});
    InstallerArguments::completeDocumentation(m_arguments);
    if (!InstallerArguments::completeProductCodes(m_arguments, m_product))
        return localizationKey("missing product signature");
    InstallerArguments::completeQuitCodes(m_arguments);
    return std::nullopt;
}

std::optional<QString> Installation::argument(const QString &key) const {
    return InstallerArguments::stringArgument(m_arguments, key);
}

QString Installation::productName() const {
    return argument(ZTInstallerKeyProductName).value_or(QString());
}

QString Installation::sourcePath() const {
    return argument(ZTInstallerKeySourcePath).value_or(QString());
}

QString Installation::destinationPath() const {
    return argument(ZTInstallerKeyDestinationPath).value_or(QString());
}

std::optional<QString> Installation::version() const {
    return InstallerArguments::version(m_arguments, m_product);
}

std::optional<QString> Installation::minimumSystemVersion() const {
    return InstallerArguments::minimumSystemVersion(m_arguments, m_product);
}

bool Installation::systemIsSupported() const {
    const auto minimum = minimumSystemVersion();
    return !minimum || ZTUtilities::compareVersion(ZTUtilities::systemVersionString(), *minimum) !=
                           Ordering::Ascending;
}

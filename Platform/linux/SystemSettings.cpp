// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/SystemSettings.h"

#include "Platform/linux/AccentColorIndex.h"

namespace zt {

using namespace Qt::StringLiterals;

namespace {

std::optional<QVariant> accentColorSetting(const std::optional<AccentColor> &color) {
    const AccentColorIndex index = color ? accentColorIndexOf(*color) : AccentColorIndex::Blue;
    if (index == AccentColorIndex::Blue)
        return std::nullopt;
    return QVariant(static_cast<qlonglong>(index));
}

} // namespace

std::optional<QVariant> systemSetting(const QString &key, const Appearance &appearance) {
    if (key == u"AppleInterfaceStyle" && appearance.preferredScheme() == Appearance::Scheme::Dark)
        return u"Dark"_s;
    if (key == u"AppleAccentColor")
        return accentColorSetting(appearance.accentColor());
    return std::nullopt;
}

} // namespace zt

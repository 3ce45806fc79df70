// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/SystemSettings.h"

namespace zt {

using namespace Qt::StringLiterals;

std::optional<QVariant> systemSetting(const QString &key, const Appearance &appearance) {
    if (key == u"AppleInterfaceStyle" && appearance.preferredScheme() == Appearance::Scheme::Dark)
        return u"Dark"_s;
    return std::nullopt;
}

} // namespace zt

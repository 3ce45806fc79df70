// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/AppearanceAnswers.h"

namespace zt {

std::optional<Appearance::Scheme> schemeOfAppearance(const QString &name, const QString &light,
                                                     const QString &dark) {
    if (name == dark)
        return Appearance::Scheme::Dark;
    if (name == light)
        return Appearance::Scheme::Light;
    return std::nullopt;
}

Appearance::ControlTint controlTintOf(unsigned long number) {
    return number == static_cast<unsigned long>(Appearance::ControlTint::Graphite)
               ? Appearance::ControlTint::Graphite
               : Appearance::ControlTint::Blue;
}

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the numbers and names that AppKit answers with mean.

#include "Platform/Appearance.h"

#include <QString>

namespace zt {

// The scheme of an appearance, by the name of the best match among the light and the dark one; no
// value when there is neither. Thread: any, for both.
std::optional<Appearance::Scheme> schemeOfAppearance(const QString &name, const QString &light,
                                                     const QString &dark);

// Only graphite is grey; every other number stands for a colour.
Appearance::ControlTint controlTintOf(unsigned long number);

} // namespace zt

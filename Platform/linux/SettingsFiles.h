#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the settings files of desktops and toolkits say about the appearance of the interface.

#include "Platform/Appearance.h"

#include <QString>

#include <optional>

namespace zt {

// From the files of KDE and of GTK below the folder, the first of them that says something. No
// value when none does. Thread: any, as for the others.
std::optional<Appearance::Scheme> schemeInSettingsFiles(const QString &configurationFolder);

// Whether GTK's file names a theme made for contrast.
bool moreContrastInSettingsFiles(const QString &configurationFolder);

// From KDE's file; the others know of none.
std::optional<AccentColor> accentColorInSettingsFiles(const QString &configurationFolder);

} // namespace zt

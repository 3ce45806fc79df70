#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Login items on Linux: the entries in the user's XDG autostart folder.

#include "Platform/LoginItems.h"

namespace zt {

class Bundles;

class AutostartLoginItems final : public LoginItems {
public:
    // `configurationFolder` is the user's, ~/.config by default. `bundles` must outlive this.
    AutostartLoginItems(QString configurationFolder, const Bundles &bundles);

    // By the entries' file names. Entries are left out that are hidden, switched off by the
    // desktop, or not meant for the running desktop.
    std::optional<std::vector<std::optional<QString>>> resolvedPaths() const override;

private:
    QString m_configurationFolder;
    const Bundles &m_bundles;
};

} // namespace zt

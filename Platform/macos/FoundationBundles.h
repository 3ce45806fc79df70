#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Bundles, as Foundation reads them.

#include "Platform/Bundles.h"

namespace zt {

class FoundationBundles final : public Bundles {
public:
    FoundationBundles();

    std::optional<Bundle> bundleAtPath(const QString &path) const override;
    const Bundle &mainBundle() const override;

private:
    Bundle m_mainBundle;
};

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The appearance of the application and the colours that the user chose, from AppKit.

#include "Platform/Appearance.h"

#include <memory>

namespace zt {

class AppKitAppearance final : public Appearance {
public:
    AppKitAppearance();
    ~AppKitAppearance() override;
    AppKitAppearance(const AppKitAppearance &) = delete;
    AppKitAppearance &operator=(const AppKitAppearance &) = delete;

    std::optional<Scheme> preferredScheme() const override;
    bool prefersMoreContrast() const override;
    ControlTint controlTint() const override;
    std::optional<AccentColor> accentColor() const override;
    void setChangeListener(const void *owner, std::function<void()> changed) override;

private:
    struct Watch;

    std::unique_ptr<Watch> m_watch; // from the first listener on
};

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// An application that is light or dark as its user prefers.

#include "Platform/Appearance.h"

#include <QPalette>

// While it exists, the application's palette is light or dark, and has more contrast than usual, as
// the desktop's settings say, also when they change; then it is again what it was. The framework's
// own platform themes follow the setting in some desktops only; where theirs already fits, it
// stays. Thread: main.
class FollowedAppearance {
public:
    // The service outlives this.
    explicit FollowedAppearance(zt::Appearance &appearance);
    ~FollowedAppearance();
    FollowedAppearance(const FollowedAppearance &) = delete;
    FollowedAppearance &operator=(const FollowedAppearance &) = delete;

private:
    void apply() const;

    zt::Appearance &m_appearance;
    QPalette m_platformPalette; // the one that the desktop gave
};

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/CocoaExtensions/FollowedAppearance.h"

#include "ZTStuff/CocoaExtensions/AppearancePalette.h"

#include <QApplication>

FollowedAppearance::FollowedAppearance(zt::Appearance &appearance)
    : m_appearance(appearance)
    , m_platformPalette(QApplication::palette()) {
    apply();
    m_appearance.setChangeListener(this, [this] { apply(); });
}

FollowedAppearance::~FollowedAppearance() {
    m_appearance.setChangeListener(this, {});
    QApplication::setPalette(m_platformPalette);
}

void FollowedAppearance::apply() const {
    const auto scheme = m_appearance.preferredScheme();
    if (m_appearance.prefersMoreContrast()) {
        const bool isDark = isDarkPalette(m_platformPalette);
        QApplication::setPalette(contrastPaletteForScheme(scheme.value_or(
            isDark ? zt::Appearance::Scheme::Dark : zt::Appearance::Scheme::Light)));
        return;
    }
    const bool wantsDark = scheme == zt::Appearance::Scheme::Dark;
    const bool fits = !scheme || isDarkPalette(m_platformPalette) == wantsDark;
    QApplication::setPalette(fits ? m_platformPalette : paletteForScheme(*scheme));
}

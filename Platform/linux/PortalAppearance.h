#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The preferred colour scheme from the desktop portal's settings.

#include "Platform/Appearance.h"

#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QObject>

namespace zt {

class PortalAppearance final : public QObject, public Appearance {
    Q_OBJECT

public:
    // Asks the portal at once and goes on without waiting for the answer.
    PortalAppearance();

    // Waits for the first answer, but not longer than a tenth of a second after it was asked for:
    // a portal that is slow or hangs must not hold up a window. What it says later is told to the
    // listener.
    std::optional<Scheme> preferredScheme() const override;
    void setChangeListener(std::function<void()> changed) override;

private:
    Q_SLOT void settingChanged(const QString &group, const QString &key, const QDBusVariant &value);
    QDBusPendingCall askPortal(int timeoutMilliseconds) const;
    void takeAnswer(const QDBusPendingCall &answer);
    void setScheme(std::optional<Scheme> scheme);

    std::optional<Scheme> m_scheme;
    std::function<void()> m_changed;
    std::optional<QDBusPendingCall> m_firstAnswer; // until it was taken
};

} // namespace zt

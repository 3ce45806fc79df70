#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The preferred colour scheme and the accent colour: from the desktop portal, or from settings
// files where the portal does not have them.

#include "Platform/Appearance.h"

#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QObject>

#include <map>

namespace zt {

class PortalAppearance final : public QObject, public Appearance {
    Q_OBJECT

public:
    // Asks the portal at once and goes on without waiting for the answer. `configurationFolder` is
    // the user's, ~/.config by default.
    explicit PortalAppearance(QString configurationFolder);

    // Waits for the first answer, but not longer than a tenth of a second after it was asked for:
    // a portal that is slow or hangs must not hold up a window. What it says later is told to the
    // listener. Settings files are read anew each time.
    std::optional<Scheme> preferredScheme() const override;

    // Told to the listener once the portal has answered.
    bool prefersMoreContrast() const override;

    // Graphite when the accent colour is a grey.
    ControlTint controlTint() const override;
    // Asks the portal the first time, for a tenth of a second at most.
    std::optional<AccentColor> accentColor() const override;
    void setChangeListener(const void *owner, std::function<void()> changed) override;

private:
    Q_SLOT void settingChanged(const QString &group, const QString &key, const QDBusVariant &value);
    QDBusPendingCall askPortal(const QString &key, int timeoutMilliseconds) const;
    void takeAnswer(const QDBusPendingCall &answer);
    void askForContrast();
    void setContrast(bool isMore);
    void setScheme(std::optional<Scheme> scheme);
    void tellListeners() const;

    std::optional<Scheme> m_scheme;
    bool m_prefersMoreContrast = false;
    // Once it was asked for.
    mutable std::optional<std::optional<AccentColor>> m_accentColor;
    QString m_configurationFolder;
    bool m_isWithoutPortal = false; // it has nothing to say about the scheme, so files are asked
    std::map<const void *, std::function<void()>> m_listeners; // by owner
    std::optional<QDBusPendingCall> m_firstAnswer;             // until it was taken
};

} // namespace zt

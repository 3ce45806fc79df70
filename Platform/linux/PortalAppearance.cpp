// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/PortalAppearance.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

using namespace Qt::StringLiterals;

namespace zt {

namespace {

const QString portalService = u"org.freedesktop.portal.Desktop"_s;
const QString portalPath = u"/org/freedesktop/portal/desktop"_s;
const QString settingsInterface = u"org.freedesktop.portal.Settings"_s;
const QString appearanceGroup = u"org.freedesktop.appearance"_s;
const QString colorSchemeKey = u"color-scheme"_s;

constexpr int firstAnswerTimeout = 100; // milliseconds
constexpr int laterAnswerTimeout = 25'000;

// The values of org.freedesktop.appearance color-scheme: 1 dark, 2 light, others no preference.
std::optional<Appearance::Scheme> schemeOf(QVariant value) {
    // The portal wraps the value once or twice, depending on its age.
    while (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    switch (value.toUInt()) {
    case 1:
        return Appearance::Scheme::Dark;
    case 2:
        return Appearance::Scheme::Light;
    default:
        return std::nullopt;
    }
}

} // namespace

PortalAppearance::PortalAppearance() {
    // Without this the bus refuses to deliver a signal that carries a variant.
    qRegisterMetaType<QDBusVariant>();
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(portalService, portalPath, settingsInterface, u"SettingChanged"_s, this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    m_firstAnswer = askPortal(firstAnswerTimeout);
    auto *watcher = new QDBusPendingCallWatcher(*m_firstAnswer, this);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const bool late = watcher->error().type() == QDBusError::NoReply ||
                          watcher->error().type() == QDBusError::Timeout;
        if (m_firstAnswer)
            takeAnswer(*watcher);
        m_firstAnswer.reset();
        if (!late)
            return;
        auto *second = new QDBusPendingCallWatcher(askPortal(laterAnswerTimeout), this);
        QObject::connect(second, &QDBusPendingCallWatcher::finished, this, [this, second] {
            second->deleteLater();
            takeAnswer(*second);
        });
    });
}

std::optional<Appearance::Scheme> PortalAppearance::preferredScheme() const {
    if (m_firstAnswer) {
        QDBusPendingCall answer = *m_firstAnswer;
        answer.waitForFinished();
        const QDBusPendingReply<QDBusVariant> reply = answer;
        return reply.isError() ? std::nullopt : schemeOf(QVariant::fromValue(reply.value()));
    }
    return m_scheme;
}

void PortalAppearance::setChangeListener(std::function<void()> changed) {
    m_changed = std::move(changed);
}

void PortalAppearance::settingChanged(const QString &group, const QString &key,
                                      const QDBusVariant &value) {
    if (group == appearanceGroup && key == colorSchemeKey)
        setScheme(schemeOf(value.variant()));
}

QDBusPendingCall PortalAppearance::askPortal(int timeoutMilliseconds) const {
    QDBusMessage question =
        QDBusMessage::createMethodCall(portalService, portalPath, settingsInterface, u"Read"_s);
    question << appearanceGroup << colorSchemeKey;
    return QDBusConnection::sessionBus().asyncCall(question, timeoutMilliseconds);
}

void PortalAppearance::takeAnswer(const QDBusPendingCall &answer) {
    const QDBusPendingReply<QDBusVariant> reply = answer;
    if (!reply.isError())
        setScheme(schemeOf(QVariant::fromValue(reply.value())));
}

void PortalAppearance::setScheme(std::optional<Scheme> scheme) {
    m_firstAnswer.reset();
    if (scheme == m_scheme)
        return;
    m_scheme = scheme;
    if (m_changed)
        m_changed();
}

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/PortalAppearance.h"

#include "Platform/linux/AccentColorIndex.h"
#include "Platform/linux/SettingsFiles.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace zt {

namespace {

const QString portalService = u"org.freedesktop.portal.Desktop"_s;
const QString portalPath = u"/org/freedesktop/portal/desktop"_s;
const QString settingsInterface = u"org.freedesktop.portal.Settings"_s;
const QString appearanceGroup = u"org.freedesktop.appearance"_s;
const QString colorSchemeKey = u"color-scheme"_s;
const QString accentColorKey = u"accent-color"_s;
const QString contrastKey = u"contrast"_s;

constexpr int firstAnswerTimeout = 100; // milliseconds
constexpr int laterAnswerTimeout = 25'000;

// The portal wraps a value once or twice, depending on its age.
QVariant unwrapped(QVariant value) {
    while (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

// The values of org.freedesktop.appearance color-scheme: 1 dark, 2 light, others no preference.
std::optional<Appearance::Scheme> schemeOf(const QVariant &value) {
    switch (unwrapped(value).toUInt()) {
    case 1:
        return Appearance::Scheme::Dark;
    case 2:
        return Appearance::Scheme::Light;
    default:
        return std::nullopt;
    }
}

// The value of org.freedesktop.appearance accent-color: red, green and blue, each from 0 to 1.
// Numbers out of range say that there is none. No value for anything else, too.
std::optional<AccentColor> accentColorOf(const QVariant &value) {
    const QVariant content = unwrapped(value);
    if (content.metaType() != QMetaType::fromType<QDBusArgument>())
        return std::nullopt;
    // Taking values out of one that is not constant would write to it instead.
    const auto argument = content.value<QDBusArgument>();
    if (argument.currentSignature() != u"(ddd)")
        return std::nullopt;
    AccentColor color;
    argument.beginStructure();
    argument >> color.red >> color.green >> color.blue;
    argument.endStructure();
    const std::array parts{color.red, color.green, color.blue};
    const bool isColor =
        std::all_of(parts.begin(), parts.end(), [](double part) { return part >= 0 && part <= 1; });
    return isColor ? std::optional(color) : std::nullopt;
}

// The values of org.freedesktop.appearance contrast: 1 more, others no preference.
bool isMoreContrast(const QVariant &value) {
    return unwrapped(value).toUInt() == 1;
}

// Whether the portal has only not answered yet, which is another thing than having no answer.
bool isLate(const QDBusError &error) {
    return error.type() == QDBusError::NoReply || error.type() == QDBusError::Timeout;
}

} // namespace

PortalAppearance::PortalAppearance(QString configurationFolder)
    : m_configurationFolder(std::move(configurationFolder)) {
    // Without this the bus refuses to deliver a signal that carries a variant.
    qRegisterMetaType<QDBusVariant>();
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        m_isWithoutPortal = true;
        m_prefersMoreContrast = moreContrastInSettingsFiles(m_configurationFolder);
        return;
    }
    bus.connect(portalService, portalPath, settingsInterface, u"SettingChanged"_s, this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    m_firstAnswer = askPortal(colorSchemeKey, firstAnswerTimeout);
    auto *watcher = new QDBusPendingCallWatcher(*m_firstAnswer, this);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        if (m_firstAnswer)
            takeAnswer(*watcher);
        m_firstAnswer.reset();
        if (!isLate(watcher->error()))
            return;
        auto *second =
            new QDBusPendingCallWatcher(askPortal(colorSchemeKey, laterAnswerTimeout), this);
        QObject::connect(second, &QDBusPendingCallWatcher::finished, this, [this, second] {
            second->deleteLater();
            takeAnswer(*second);
        });
    });
    askForContrast();
}

bool PortalAppearance::prefersMoreContrast() const {
    return m_prefersMoreContrast;
}

void PortalAppearance::askForContrast() {
    auto *watcher = new QDBusPendingCallWatcher(askPortal(contrastKey, laterAnswerTimeout), this);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (!reply.isError()) {
            setContrast(isMoreContrast(QVariant::fromValue(reply.value())));
        } else if (!isLate(reply.error())) {
            setContrast(moreContrastInSettingsFiles(m_configurationFolder));
        }
    });
}

void PortalAppearance::setContrast(bool isMore) {
    if (isMore == m_prefersMoreContrast)
        return;
    m_prefersMoreContrast = isMore;
    tellListeners();
}

std::optional<Appearance::Scheme> PortalAppearance::preferredScheme() const {
    if (m_firstAnswer) {
        QDBusPendingCall answer = *m_firstAnswer;
        answer.waitForFinished();
        const QDBusPendingReply<QDBusVariant> reply = answer;
        if (!reply.isError())
            return schemeOf(QVariant::fromValue(reply.value()));
        return isLate(reply.error()) ? std::nullopt : schemeInSettingsFiles(m_configurationFolder);
    }
    return m_isWithoutPortal ? schemeInSettingsFiles(m_configurationFolder) : m_scheme;
}

Appearance::ControlTint PortalAppearance::controlTint() const {
    const std::optional<AccentColor> color = accentColor();
    return color && accentColorIndexOf(*color) == AccentColorIndex::Graphite ? ControlTint::Graphite
                                                                             : ControlTint::Blue;
}

std::optional<AccentColor> PortalAppearance::accentColor() const {
    if (m_accentColor)
        return *m_accentColor;
    QDBusPendingReply<QDBusVariant> reply = askPortal(accentColorKey, firstAnswerTimeout);
    reply.waitForFinished();
    if (reply.isError() && !isLate(reply.error()))
        return accentColorInSettingsFiles(m_configurationFolder);
    // One that is late is not asked again, but it tells of a change.
    m_accentColor.emplace(reply.isError() ? std::nullopt
                                          : accentColorOf(QVariant::fromValue(reply.value())));
    return *m_accentColor;
}

void PortalAppearance::setChangeListener(const void *owner, std::function<void()> changed) {
    if (changed) {
        m_listeners[owner] = std::move(changed);
    } else {
        m_listeners.erase(owner);
    }
}

void PortalAppearance::settingChanged(const QString &group, const QString &key,
                                      const QDBusVariant &value) {
    if (group != appearanceGroup)
        return;
    if (key == colorSchemeKey) {
        setScheme(schemeOf(value.variant()));
    } else if (key == contrastKey) {
        setContrast(isMoreContrast(value.variant()));
    } else if (key == accentColorKey) {
        const std::optional<AccentColor> color = accentColorOf(value.variant());
        const bool isNew = !m_accentColor || *m_accentColor != color;
        m_accentColor.emplace(color);
        if (isNew)
            tellListeners();
    }
}

QDBusPendingCall PortalAppearance::askPortal(const QString &key, int timeoutMilliseconds) const {
    QDBusMessage question =
        QDBusMessage::createMethodCall(portalService, portalPath, settingsInterface, u"Read"_s);
    question << appearanceGroup << key;
    return QDBusConnection::sessionBus().asyncCall(question, timeoutMilliseconds);
}

void PortalAppearance::takeAnswer(const QDBusPendingCall &answer) {
    const QDBusPendingReply<QDBusVariant> reply = answer;
    if (reply.isError()) {
        m_isWithoutPortal = !isLate(reply.error());
        return;
    }
    setScheme(schemeOf(QVariant::fromValue(reply.value())));
}

void PortalAppearance::setScheme(std::optional<Scheme> scheme) {
    m_firstAnswer.reset();
    m_isWithoutPortal = false;
    if (scheme == m_scheme)
        return;
    m_scheme = scheme;
    tellListeners();
}

void PortalAppearance::tellListeners() const {
    // A listener may add and remove some.
    const auto listeners = m_listeners;
    for (const auto &[owner, changed] : listeners)
        changed();
}

} // namespace zt

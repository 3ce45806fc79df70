// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/BusConversation.h"

#include <QDBusError>
#include <QDBusVariant>
#include <QVariantMap>

#include <algorithm>
#include <initializer_list>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace zt {

namespace {

const QString applicationInterface = u"org.freedesktop.Application"_s;
const QString actionsInterface = u"org.gtk.Actions"_s;
const QString mediaPlayerInterface = u"org.mpris.MediaPlayer2"_s;
const QString mediaPlayerPath = u"/org/mpris/MediaPlayer2"_s;
const QString toolkitInterface = u"org.qtproject.Qt.QCoreApplication"_s;
const QString toolkitPath = u"/MainApplication"_s;
const QString quitAction = u"quit"_s;

// The messages, each in one place.

QDBusMessage toTarget(const BusConnection &target, const QString &path, const QString &interface,
                      const QString &method, const QVariantList &arguments = {}) {
    QDBusMessage message =
        QDBusMessage::createMethodCall(target.uniqueName, path, interface, method);
    message.setArguments(arguments);
    message.setAutoStartService(false);
    return message;
}

QDBusMessage activateAction(const BusConnection &target, const QString &path) {
    return toTarget(target, path, applicationInterface, u"ActivateAction"_s,
                    {quitAction, QVariantList(), QVariantMap()});
}

QDBusMessage activateApplication(const BusConnection &target, const QString &path) {
    return toTarget(target, path, applicationInterface, u"Activate"_s, {QVariantMap()});
}

QDBusMessage quitToolkit(const BusConnection &target) {
    return toTarget(target, toolkitPath, toolkitInterface, u"quit"_s);
}

bool isAmong(QDBusError::ErrorType type, std::initializer_list<QDBusError::ErrorType> types) {
    return std::find(types.begin(), types.end(), type) != types.end();
}

} // namespace

bool sendBusRequest(const QDBusConnection &bus, const BusConnection &target, BusRequest request) {
    QList<QDBusMessage> messages;
    const bool quits = request == BusRequest::Quit;
    const QStringList paths = target.applicationPaths();
    for (const QString &path : paths)
        messages << (quits ? activateAction(target, path) : activateApplication(target, path));
    if (target.isMediaPlayer())
        messages << toTarget(target, mediaPlayerPath, mediaPlayerInterface,
                             quits ? u"Quit"_s : u"Raise"_s);
    if (quits)
        messages << quitToolkit(target);
    bool sent = false;
    for (const QDBusMessage &message : messages)
        sent |= bus.send(message);
    return sent;
}

BusConversation::BusConversation(QDBusConnection bus, BusConnection target, QDeadlineTimer deadline)
    : m_bus(std::move(bus))
    , m_target(std::move(target))
    , m_deadline(deadline) {}

BusOutcome BusConversation::make(BusRequest request) {
    if (request == BusRequest::Activate)
        return activate();
    const BusOutcome outcome = quit();
    // An application that quits may be gone before its answer is sent.
    return outcome == BusOutcome::Disconnected && m_bus.isConnected() ? BusOutcome::Done : outcome;
}

BusOutcome BusConversation::quit() {
    const QStringList paths = m_target.applicationPaths();
    for (const QString &path : paths) {
        if (const BusOutcome outcome = quitByAction(path); outcome != BusOutcome::NotOffered)
            return outcome;
    }
    const BusOutcome outcome = askMediaPlayer(u"CanQuit"_s, u"Quit"_s);
    return outcome == BusOutcome::NotOffered ? call(quitToolkit(m_target)).outcome : outcome;
}

BusOutcome BusConversation::quitByAction(const QString &path) {
    // An application takes an action that it does not have without complaint, so it is asked first
    // which ones it has.
    const Answer actions = call(toTarget(m_target, path, actionsInterface, u"List"_s));
    if (actions.outcome == BusOutcome::Done) {
        const QStringList names = actions.value.toStringList();
        const QString name = names.contains(quitAction) ? quitAction : u"app."_s + quitAction;
        if (!names.contains(name))
            return BusOutcome::NotOffered;
        return call(toTarget(m_target, path, actionsInterface, u"Activate"_s,
                             {name, QVariantList(), QVariantMap()}))
            .outcome;
    }
    if (actions.outcome != BusOutcome::NotOffered)
        return actions.outcome;
    // It cannot be asked. Where the toolkit has a call of its own, that one is certain.
    const BusOutcome outcome = call(quitToolkit(m_target)).outcome;
    return outcome == BusOutcome::NotOffered ? call(activateAction(m_target, path)).outcome
                                             : outcome;
}

BusOutcome BusConversation::activate() {
    const QStringList paths = m_target.applicationPaths();
    for (const QString &path : paths) {
        const BusOutcome outcome = call(activateApplication(m_target, path)).outcome;
        if (outcome != BusOutcome::NotOffered)
            return outcome;
    }
    return askMediaPlayer(u"CanRaise"_s, u"Raise"_s);
}

BusOutcome BusConversation::askMediaPlayer(const QString &ability, const QString &method) {
    if (!m_target.isMediaPlayer())
        return BusOutcome::NotOffered;
    const Answer able =
        call(toTarget(m_target, mediaPlayerPath, u"org.freedesktop.DBus.Properties"_s, u"Get"_s,
                      {mediaPlayerInterface, ability}));
    if (able.outcome != BusOutcome::Done)
        return able.outcome;
    if (!able.value.value<QDBusVariant>().variant().toBool())
        return BusOutcome::NotOffered;
    return call(toTarget(m_target, mediaPlayerPath, mediaPlayerInterface, method)).outcome;
}

BusConversation::Answer BusConversation::call(QDBusMessage message) const {
    if (m_deadline.hasExpired())
        return {.outcome = BusOutcome::TimedOut, .value = {}};
    const auto left =
        std::clamp<qint64>(m_deadline.remainingTime(), 1, std::numeric_limits<int>::max());
    const QDBusMessage reply = m_bus.call(message, QDBus::Block, static_cast<int>(left));
    if (reply.type() != QDBusMessage::ErrorMessage)
        return {.outcome = BusOutcome::Done, .value = reply.arguments().value(0)};
    const QDBusError::ErrorType error = QDBusError(reply).type();
    // The same error tells that nobody answered in time and that somebody left without answering.
    if (isAmong(error, {QDBusError::NoReply, QDBusError::Timeout, QDBusError::TimedOut}))
        return {.outcome = isBusConnection(m_bus, m_target) ? BusOutcome::TimedOut
                                                            : BusOutcome::Disconnected,
                .value = {}};
    if (isAmong(error, {QDBusError::ServiceUnknown, QDBusError::Disconnected}))
        return {.outcome = BusOutcome::Disconnected, .value = {}};
    // Everything else, an error of the application's own included, says that it was not done.
    return {.outcome = BusOutcome::NotOffered, .value = {}};
}

} // namespace zt

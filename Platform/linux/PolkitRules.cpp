// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/PolkitRules.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QMap>
#include <QVariant>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace zt {

namespace {

constexpr int patience = 2000; // milliseconds

// A subject of polkit's: (sa{sv}).
struct PolkitSubject {
    QString kind;
    QVariantMap details;
};

QDBusArgument &operator<<(QDBusArgument &argument, const PolkitSubject &subject) {
    argument.beginStructure();
    argument << subject.kind << subject.details;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, PolkitSubject &subject) {
    argument.beginStructure();
    argument >> subject.kind >> subject.details;
    argument.endStructure();
    return argument;
}

using Details = QMap<QString, QString>; // a{ss}

// A connection of this call's own, since the calling thread may be any and may end.
class SystemBus {
public:
    SystemBus() : m_connection(QDBusConnection::connectToBus(QDBusConnection::SystemBus, m_name)) {}

    ~SystemBus() { QDBusConnection::disconnectFromBus(m_name); }

    SystemBus(const SystemBus &) = delete;
    SystemBus &operator=(const SystemBus &) = delete;

    QVariantList ask(const QString &method, const QVariantList &arguments) const {
        QDBusMessage question = QDBusMessage::createMethodCall(
            u"org.freedesktop.PolicyKit1"_s, u"/org/freedesktop/PolicyKit1/Authority"_s,
            u"org.freedesktop.PolicyKit1.Authority"_s, method);
        question.setArguments(arguments);
        const QDBusMessage answer = m_connection.call(question, QDBus::Block, patience);
        return answer.type() == QDBusMessage::ReplyMessage ? answer.arguments() : QVariantList();
    }

private:
    const QString m_name = u"velmora-polkit-%1"_s.arg(quintptr(this));
    QDBusConnection m_connection;
};

// The action that was declared for the tool, else the one that stands for all programs.
QString actionForTool(const SystemBus &bus, const QString &toolPath) {
    QString found = u"org.freedesktop.policykit.exec"_s;
    const QVariantList answer = bus.ask(u"EnumerateActions"_s, {u"C"_s});
    if (answer.isEmpty() || answer.first().metaType() != QMetaType::fromType<QDBusArgument>())
        return found;
    const auto actions = answer.first().value<QDBusArgument>();
    actions.beginArray();
    while (!actions.atEnd()) {
        QString id;
        QString text;
        unsigned number = 0;
        Details annotations;
        actions.beginStructure(); // (ssssssuuua{ss})
        actions >> id >> text >> text >> text >> text >> text >> number >> number >> number >>
            annotations;
        actions.endStructure();
        if (annotations.value(u"org.freedesktop.policykit.exec.path"_s) == toolPath)
            found = id;
    }
    actions.endArray();
    return found;
}

} // namespace

PolkitAnswer polkitAnswerForTool(const QString &toolPath) {
    qDBusRegisterMetaType<PolkitSubject>();
    qDBusRegisterMetaType<Details>();
    const SystemBus bus;
    // A start time of 0 has polkit look it up itself.
    const PolkitSubject thisProcess = {
        u"unix-process"_s,
        {{u"pid"_s, unsigned(::getpid())}, {u"start-time"_s, QVariant::fromValue(quint64(0))}}};
    constexpr unsigned withoutInteraction = 0;
    const QVariantList answer = bus.ask(
        u"CheckAuthorization"_s, {QVariant::fromValue(thisProcess), actionForTool(bus, toolPath),
                                  QVariant::fromValue(Details()), withoutInteraction, QString()});
    if (answer.isEmpty() || answer.first().metaType() != QMetaType::fromType<QDBusArgument>())
        return PolkitAnswer::Unknown;
    const auto result = answer.first().value<QDBusArgument>();
    bool isAuthorized = false;
    bool isChallenge = false;
    result.beginStructure(); // (bba{ss})
    result >> isAuthorized >> isChallenge;
    if (isAuthorized)
        return PolkitAnswer::Allowed;
    return isChallenge ? PolkitAnswer::NeedsPassword : PolkitAnswer::Forbidden;
}

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/desktop/polkit/PolkitAgent.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QProcess>

#include <pwd.h>

using namespace Qt::StringLiterals;

namespace {

const QString administrator = u"berta"_s;
const QString cancelled = u"org.freedesktop.PolicyKit1.Error.Cancelled"_s;

} // namespace

// Found by the type of what they write and read, which is in no namespace.
QDBusArgument &operator<<(QDBusArgument &argument, const PolkitIdentity &identity);
const QDBusArgument &operator>>(const QDBusArgument &argument, PolkitIdentity &identity);

QDBusArgument &operator<<(QDBusArgument &argument, const PolkitIdentity &identity) {
    argument.beginStructure();
    argument << identity.kind << identity.details;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, PolkitIdentity &identity) {
    argument.beginStructure();
    argument >> identity.kind >> identity.details;
    argument.endStructure();
    return argument;
}

bool PolkitAgent::registerFor(qint64 pid) {
    qDBusRegisterMetaType<PolkitIdentity>();
    qDBusRegisterMetaType<QList<PolkitIdentity>>();
    qDBusRegisterMetaType<QMap<QString, QString>>();
    QDBusConnection bus = QDBusConnection::systemBus();
    const QString path = u"/agent"_s;
    bus.registerObject(path, this, QDBusConnection::ExportAllSlots);
    const PolkitIdentity subject = {
        u"unix-process"_s,
        {{u"pid"_s, unsigned(pid)}, {u"start-time"_s, QVariant::fromValue(quint64(0))}}};
    QDBusMessage question = QDBusMessage::createMethodCall(
        u"org.freedesktop.PolicyKit1"_s, u"/org/freedesktop/PolicyKit1/Authority"_s,
        u"org.freedesktop.PolicyKit1.Authority"_s, u"RegisterAuthenticationAgent"_s);
    question << QVariant::fromValue(subject) << u"C"_s << path;
    return bus.call(question).type() == QDBusMessage::ReplyMessage;
}

void PolkitAgent::typePassword(const QString &user, const QString &cookie) const {
    QProcess helper;
    helper.setProcessChannelMode(QProcess::MergedChannels);
    helper.start(u"/usr/lib/polkit-1/polkit-agent-helper-1"_s, {user});
    helper.write((cookie + u'\n').toUtf8());
    const QByteArray password = m_answer == Answer::TypesPassword ? "secret\n" : "wrong\n";
    while (helper.waitForReadyRead(10'000)) {
        if (helper.readAll().contains("PAM_PROMPT_ECHO_OFF"))
            helper.write(password);
    }
    helper.waitForFinished(10'000);
}

void PolkitAgent::BeginAuthentication(const QString & /*action*/, const QString &text,
                                      const QString & /*icon*/, const QMap<QString, QString> &more,
                                      const QString &cookie,
                                      const QList<PolkitIdentity> &identities,
                                      const QDBusMessage &request) {
    ++requests;
    message = text;
    for (auto detail = more.begin(); detail != more.end(); ++detail)
        details.insert(detail.key(), detail.value());
    request.setDelayedReply(true);
    QDBusConnection bus = QDBusConnection::systemBus();
    switch (m_answer) {
    case Answer::Waits:
        m_waiting = request;
        return;
    case Answer::Dismisses:
        bus.send(request.createErrorReply(cancelled, u"dismissed"_s));
        return;
    case Answer::TypesPassword:
    case Answer::TypesWrongPassword:
        break;
    }
    for (const PolkitIdentity &identity : identities) {
        const passwd *user = ::getpwuid(identity.details.value(u"uid"_s).toUInt());
        if (user && QString::fromUtf8(user->pw_name) == administrator)
            typePassword(administrator, cookie);
    }
    bus.send(request.createReply());
}

void PolkitAgent::CancelAuthentication(const QString & /*cookie*/) {
    ++cancellations;
    QDBusConnection::systemBus().send(m_waiting.createErrorReply(cancelled, u"cancelled"_s));
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/BusConnections.h"

#include <QDBusMessage>
#include <QDBusPendingReply>

#include <algorithm>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace zt {

namespace {

const QString mediaPlayerPrefix = u"org.mpris.MediaPlayer2."_s;

QDBusPendingCall askBus(const QDBusConnection &bus, const QString &method,
                        const QVariantList &about, const QDeadlineTimer &deadline) {
    QDBusMessage question = QDBusMessage::createMethodCall(
        u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus"_s, method);
    question.setArguments(about);
    // Zero would stand for no limit.
    const auto left = std::clamp<qint64>(deadline.remainingTime(), 1, 5000);
    return bus.asyncCall(question, static_cast<int>(left));
}

template <typename Value>
Value take(QDBusPendingReply<Value> answer) {
    answer.waitForFinished();
    return answer.isError() ? Value() : answer.value();
}

// Those of the names that belong to the process. All are asked about before the first answer is
// awaited, so that a full bus takes hardly longer than an empty one.
QStringList namesOfProcess(const QDBusConnection &bus, std::int32_t pid,
                           const QDeadlineTimer &deadline) {
    const QStringList names = take<QStringList>(askBus(bus, u"ListNames"_s, {}, deadline));
    std::vector<QDBusPendingCall> answers;
    answers.reserve(static_cast<std::size_t>(names.size()));
    for (const QString &name : names)
        answers.push_back(askBus(bus, u"GetConnectionUnixProcessID"_s, {name}, deadline));
    QStringList found;
    for (std::size_t index = 0; index < answers.size(); ++index) {
        if (take<uint>(answers[index]) == static_cast<uint>(pid))
            found << names[static_cast<qsizetype>(index)];
    }
    return found;
}

QString pathOfName(const QString &name) {
    QString path = u'/' + name;
    return path.replace(u'.', u'/').replace(u'-', u'_');
}

// The name without the process id at its end; empty when there is none.
QString withoutInstance(const QString &name) {
    const qsizetype dash = name.lastIndexOf(u'-');
    bool isNumber = false;
    name.mid(dash + 1).toUInt(&isNumber);
    return dash > 0 && isNumber ? name.left(dash) : QString();
}

} // namespace

QStringList BusConnection::applicationPaths() const {
    QStringList paths;
    for (const QString &name : knownNames) {
        if (name.startsWith(mediaPlayerPrefix))
            continue;
        paths << pathOfName(name);
        if (const QString base = withoutInstance(name); !base.isEmpty())
            paths << pathOfName(base);
    }
    paths.removeDuplicates();
    return paths;
}

bool BusConnection::isMediaPlayer() const {
    return std::any_of(knownNames.begin(), knownNames.end(),
                       [](const QString &name) { return name.startsWith(mediaPlayerPrefix); });
}

QList<BusConnection> busConnectionsOfProcess(const QDBusConnection &bus, std::int32_t pid,
                                             const QDeadlineTimer &deadline) {
    QList<BusConnection> connections;
    const QStringList names = namesOfProcess(bus, pid, deadline);
    for (const QString &name : names) {
        if (name.startsWith(u':'))
            connections.append({.uniqueName = name, .knownNames = {}});
    }
    for (const QString &name : names) {
        if (name.startsWith(u':'))
            continue;
        const QString owner = take<QString>(askBus(bus, u"GetNameOwner"_s, {name}, deadline));
        for (BusConnection &connection : connections) {
            if (connection.uniqueName == owner)
                connection.knownNames << name;
        }
    }
    return connections;
}

bool isBusConnection(const QDBusConnection &bus, const BusConnection &connection) {
    return take<bool>(askBus(bus, u"NameHasOwner"_s, {connection.uniqueName}, QDeadlineTimer(500)));
}

} // namespace zt

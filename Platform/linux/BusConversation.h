#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Asking one application on the session bus to quit or to come forward.

#include "Platform/linux/BusConnections.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDeadlineTimer>

namespace zt {

enum class BusRequest { Quit, Activate };

enum class BusOutcome {
    Done,        // the application says that it did it, or it ended over it
    NotOffered,  // it has no way to be asked that
    TimedOut,    // it did not answer in time
    Disconnected // it left the bus, or the bus left us, before there was an answer
};

// Sends the request in every form that the application may understand and does not wait. Each form
// does the same, so that one that understands several does no more for it. False when nothing was
// sent. Thread: any.
bool sendBusRequest(const QDBusConnection &bus, const BusConnection &target, BusRequest request);

// Finds out which form of a request the application understands. One that hangs is not waited for
// beyond the deadline. Thread: any, one at a time.
class BusConversation {
public:
    BusConversation(QDBusConnection bus, BusConnection target, QDeadlineTimer deadline);

    BusOutcome make(BusRequest request);

private:
    struct Answer {
        BusOutcome outcome;
        QVariant value; // the first one, when the outcome is Done
    };

    BusOutcome quit();
    BusOutcome quitByAction(const QString &path);
    BusOutcome activate();
    BusOutcome askMediaPlayer(const QString &ability, const QString &method);
    Answer call(QDBusMessage message) const;

    QDBusConnection m_bus;
    BusConnection m_target;
    QDeadlineTimer m_deadline;
};

} // namespace zt

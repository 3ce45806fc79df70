#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Where a process can be reached on the session bus.

#include <QDBusConnection>
#include <QDeadlineTimer>
#include <QList>
#include <QStringList>

#include <cstdint>

namespace zt {

// One connection to the bus. The bus never gives a unique name a second time, so what is sent there
// reaches this connection or nobody.
struct BusConnection {
    QString uniqueName;     // ":1.42"
    QStringList knownNames; // "org.example.Editor", in the order of the bus's list

    // The paths where the desktop's standard objects for applications are: derived from the known
    // names. Applications that run several times append their process id to the name, which is no
    // part of the path.
    QStringList applicationPaths() const;

    // Whether it offers to be controlled as media players are.
    bool isMediaPlayer() const;
};

// The connections of the process. Empty when it has none, and when the bus does not tell before the
// deadline. Thread: any.
QList<BusConnection> busConnectionsOfProcess(const QDBusConnection &bus, std::int32_t pid,
                                             const QDeadlineTimer &deadline);

// Whether the connection is still there, as far as the bus tells quickly. Thread: any.
bool isBusConnection(const QDBusConnection &bus, const BusConnection &connection);

} // namespace zt

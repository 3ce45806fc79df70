#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Waiting for what other programs do.

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QThread>

#include <concepts>

// Lets events be handled until the condition holds. False when it does not come to hold for so long
// that something must be wrong.
template <std::predicate Condition>
bool comesToHold(Condition condition) {
    constexpr int hopeless = 30'000; // milliseconds
    const QDeadlineTimer deadline(hopeless);
    QEventLoop loop;
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        // Until there is nothing to do: some of it waits until everything else is done.
        while (loop.processEvents(QEventLoop::AllEvents) && !deadline.hasExpired()) {
        }
        QThread::msleep(2);
    }
    return true;
}

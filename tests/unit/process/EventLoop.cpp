// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/process/EventLoop.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>

#include <chrono>
#include <thread>

using namespace std::chrono_literals;

bool runLoopUntil(const std::function<bool()> &condition) {
    const QDeadlineTimer deadline(30s);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents);
        std::this_thread::sleep_for(1ms);
    }
    return true;
}

void runLoopOnce() {
    QCoreApplication::processEvents(QEventLoop::AllEvents);
}

bool waitUntil(const std::function<bool()> &condition) {
    const QDeadlineTimer deadline(30s);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        std::this_thread::sleep_for(1ms);
    }
    return true;
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/portable/EventLoopClock.h"

#include <QThread>
#include <QTimer>

#include <thread>

namespace zt {

std::chrono::system_clock::time_point EventLoopClock::now() const {
    return std::chrono::system_clock::now();
}

std::chrono::steady_clock::time_point EventLoopClock::steadyNow() const {
    return std::chrono::steady_clock::now();
}

void EventLoopClock::sleepFor(std::chrono::microseconds duration) {
    std::this_thread::sleep_for(duration);
}

void EventLoopClock::sleepFor(std::chrono::microseconds duration, const Wait &wait) {
    wait(duration);
}

void EventLoopClock::callAfter(std::chrono::milliseconds delay, std::function<void()> action) {
    Q_ASSERT(QThread::currentThread() == m_mainThread.thread());
    QTimer::singleShot(delay, Qt::PreciseTimer, &m_mainThread, std::move(action));
}

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Time from the system's clocks, and delayed calls on the main event loop.

#include "Platform/Clock.h"

#include <QObject>

namespace zt {

class EventLoopClock final : public Clock {
public:
    std::chrono::system_clock::time_point now() const override;
    std::chrono::steady_clock::time_point steadyNow() const override;
    void sleepFor(std::chrono::microseconds duration) override;
    void sleepFor(std::chrono::microseconds duration, const Wait &wait) override;
    void callAfter(std::chrono::milliseconds delay, std::function<void()> action) override;

private:
    QObject m_mainThread; // its thread is the one that delayed calls arrive on
};

} // namespace zt

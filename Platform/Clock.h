#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Time: the current date, waiting, and delayed calls. Everything that sleeps or schedules goes
// through here, so that tests run without waiting.

#include <chrono>
#include <functional>

namespace zt {

class Clock {
public:
    virtual ~Clock() = default;

    // The current date. Thread: any.
    virtual std::chrono::system_clock::time_point now() const = 0;

    // A time that never goes backwards, for measuring spans. Thread: any.
    virtual std::chrono::steady_clock::time_point steadyNow() const = 0;

    // Blocks the calling thread. Thread: any.
    virtual void sleepFor(std::chrono::microseconds duration) = 0;

    // The same by a wait of the caller's own, which gets the duration and may be over sooner, when
    // something has happened that makes further sleep needless. Thread: any.
    using Wait = std::function<void(std::chrono::microseconds)>;
    virtual void sleepFor(std::chrono::microseconds duration, const Wait &wait) = 0;

    // Runs `action` on the main thread after `delay`, unless the application has ended by then.
    // Thread: main.
    virtual void callAfter(std::chrono::milliseconds delay, std::function<void()> action) = 0;

protected:
    Clock() = default;
    Clock(const Clock &) = default;
    Clock &operator=(const Clock &) = default;
};

} // namespace zt

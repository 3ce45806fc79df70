#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Waiting until something has come about: what other programs, threads and events do.

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>

#include <chrono>
#include <concepts>
#include <thread>

// Looks at the condition again and again and does the work between. False when it does not come to
// hold for so long that something must be wrong. Thread: any.
template <std::predicate Condition, std::invocable Work>
[[nodiscard]] bool eventually(Condition condition, Work work) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        work();
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

// The same while events are handled.
template <std::predicate Condition>
[[nodiscard]] bool eventually(Condition condition) {
    constexpr int longest = 1000; // milliseconds
    return eventually(condition, [] {
        // Until there is nothing to do: some of it waits until everything else is done.
        QCoreApplication::processEvents(QEventLoop::AllEvents, longest);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    });
}

// The same while nothing is done.
template <std::predicate Condition>
[[nodiscard]] bool eventuallyWithoutEvents(Condition condition) {
    return eventually(condition, [] {});
}

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Holding off what would interrupt a work that had better be finished: sleep, shutdown, log-out.

#include <QString>

#include <memory>

namespace zt {

// While it lives, what can be held off is. Thread: any.
class InterruptionHold {
public:
    virtual ~InterruptionHold() = default;
    InterruptionHold(const InterruptionHold &) = delete;
    InterruptionHold &operator=(const InterruptionHold &) = delete;

protected:
    InterruptionHold() = default;
};

class Interruptions {
public:
    virtual ~Interruptions() = default;

    // Asks that the computer does not go to sleep or shut down by itself, and that the user is
    // warned before the session ends. The reason, in the user's language, is what the user is shown
    // then. Goes on at once, without waiting for an answer; what nobody here can hold off is not,
    // which is told in the log. Never null; several holds count each for itself. Thread: any.
    virtual std::unique_ptr<InterruptionHold> holdOff(const QString &reason) = 0;

protected:
    Interruptions() = default;
    Interruptions(const Interruptions &) = default;
    Interruptions &operator=(const Interruptions &) = default;
};

} // namespace zt

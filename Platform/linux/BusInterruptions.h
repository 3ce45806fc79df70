#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Interruptions held off through the buses: the system's login manager for sleep and shutdown, and
// the desktop for the end of the session.

#include "Platform/Interruptions.h"

namespace zt {

class Log;

// Each hold has a thread of its own that asks, and is over when all have answered. A service that
// hangs holds up neither the start nor the end of a hold.
class BusInterruptions final : public Interruptions {
public:
    // The log outlives this and all holds.
    explicit BusInterruptions(Log &log) : m_log(log) {}

    std::unique_ptr<InterruptionHold> holdOff(const QString &reason) override;

private:
    Log &m_log;
};

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Holding off sleep on macOS, by assertions of the power management. Log-out is no matter for them:
// the system asks the application itself before it ends a session.

#include "Platform/Interruptions.h"

namespace zt {

class Log;

class PowerInterruptions final : public Interruptions {
public:
    // The log outlives this.
    explicit PowerInterruptions(Log &log) : m_log(log) {}

    std::unique_ptr<InterruptionHold> holdOff(const QString &reason) override;

private:
    Log &m_log;
};

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Apple events.

#include "Platform/ApplicationEvents.h"

namespace zt {

class AppleApplicationEvents final : public ApplicationEvents {
public:
    std::int32_t checkAddress(std::int32_t targetPid) override;
    std::int32_t checkEvent(const Event &event) override;
    // Addressed by the serial number of the process, and put before events that wait already.
    std::int32_t sendWithoutReply(const Event &event) override;
    // Addressed by the process id. The target asks its user nothing meanwhile.
    std::int32_t sendAndWait(const Event &event, std::int32_t timeoutTicks) override;
};

} // namespace zt

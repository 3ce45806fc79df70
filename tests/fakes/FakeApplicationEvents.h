#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Events to other applications for unit tests.

#include "Platform/ApplicationEvents.h"

// Nobody can be addressed.
class FakeApplicationEvents final : public zt::ApplicationEvents {
public:
    std::int32_t checkAddress(std::int32_t /*targetPid*/) override { return processNotFound; }
    std::int32_t checkEvent(const Event & /*event*/) override { return processNotFound; }
    std::int32_t sendWithoutReply(const Event & /*event*/) override { return processNotFound; }
    std::int32_t sendAndWait(const Event & /*event*/, std::int32_t /*timeoutTicks*/) override {
        return processNotFound;
    }
};

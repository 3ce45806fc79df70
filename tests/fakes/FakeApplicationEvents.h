#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Keeps the events that are sent, and answers what a test wants.

#include "Platform/ApplicationEvents.h"

#include <vector>

// Thread: one at a time.
class FakeApplicationEvents final : public zt::ApplicationEvents {
public:
    struct Sent {
        Event event;
        bool waited = false;
        std::int32_t timeoutTicks = 0; // when it was waited for
    };

    std::int32_t checkAddress(std::int32_t targetPid) override {
        return targetPid == 0 ? processNotFound : addressError;
    }

    std::int32_t checkEvent(const Event & /*event*/) override { return eventError; }

    std::int32_t sendWithoutReply(const Event &event) override {
        sent.push_back({.event = event});
        return sendError;
    }

    std::int32_t sendAndWait(const Event &event, std::int32_t timeoutTicks) override {
        sent.push_back({.event = event, .waited = true, .timeoutTicks = timeoutTicks});
        return event.targetPid == 0 ? processNotFound : sendError;
    }

    std::int32_t addressError = noError;
    std::int32_t eventError = noError;
    std::int32_t sendError = noError;
    std::vector<Sent> sent;
};

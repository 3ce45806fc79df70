#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A user for unit tests.

#include "Platform/UserInput.h"

// Has been idle for as long as the test says.
class FakeUserInput final : public zt::UserInput {
public:
    std::optional<std::chrono::nanoseconds> idleTime() override { return idle; }

    std::optional<std::chrono::nanoseconds> idle = std::chrono::nanoseconds(0);
};

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The user's keyboard and mouse, from the system of human interface devices.

#include "Platform/UserInput.h"

namespace zt {

class HidUserInput final : public UserInput {
public:
    std::optional<std::chrono::nanoseconds> idleTime() override;
};

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the user does with the keyboard and the mouse.

#include <chrono>
#include <optional>

namespace zt {

// Thread: any, for all operations.
class UserInput {
public:
    virtual ~UserInput() = default;

    // How long ago the user last touched a key, a button or the mouse, whatever program that was
    // for. No value when the system does not tell.
    virtual std::optional<std::chrono::nanoseconds> idleTime() = 0;

protected:
    UserInput() = default;
    UserInput(const UserInput &) = default;
    UserInput &operator=(const UserInput &) = default;
};

} // namespace zt

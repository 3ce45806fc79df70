#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The user's idle time, from the X server's screen-saver extension.

#include "Platform/UserInput.h"

#include <memory>
#include <mutex>

namespace zt {

class X11Connection;

// Talks to the server from the first question on.
class X11UserInput final : public UserInput {
public:
    X11UserInput();
    ~X11UserInput() override;
    X11UserInput(const X11UserInput &) = delete;
    X11UserInput &operator=(const X11UserInput &) = delete;

    std::optional<std::chrono::nanoseconds> idleTime() override;

private:
    std::mutex m_mutex;
    std::unique_ptr<X11Connection> m_connection;
};

} // namespace zt

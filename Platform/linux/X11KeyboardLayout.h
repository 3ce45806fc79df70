#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The keyboard layout of the X server.

#include "Platform/KeyboardLayout.h"

#include <memory>
#include <mutex>

namespace zt {

// Asks the server each time, so that a change of the layout counts at once. Talks to it from the
// first question on.
class X11KeyboardLayout final : public KeyboardLayout {
public:
    X11KeyboardLayout();
    ~X11KeyboardLayout() override;
    X11KeyboardLayout(const X11KeyboardLayout &) = delete;
    X11KeyboardLayout &operator=(const X11KeyboardLayout &) = delete;

    std::optional<QString> textForKey(std::uint16_t keyCode,
                                      const Modifiers &modifiers) const override;

private:
    class Server;

    mutable std::mutex m_mutex;
    mutable std::unique_ptr<Server> m_server;
};

} // namespace zt

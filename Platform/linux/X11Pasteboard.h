#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The clipboard of the X server.

#include "Platform/Pasteboard.h"

#include <memory>

namespace zt {

// Counts from the first question on.
class X11Pasteboard final : public Pasteboard {
public:
    X11Pasteboard();
    ~X11Pasteboard() override;
    X11Pasteboard(const X11Pasteboard &) = delete;
    X11Pasteboard &operator=(const X11Pasteboard &) = delete;

    std::optional<std::int32_t> changeCount() override;

private:
    class Counter;

    std::unique_ptr<Counter> m_counter;
};

} // namespace zt

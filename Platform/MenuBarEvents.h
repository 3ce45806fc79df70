#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Tells when the menu bar at the top of the screen is hidden, because the program in front fills
// the screen, and when it is shown again.

#include <cstdint>
#include <functional>
#include <span>

namespace zt {

// Thread: main, for all operations.
class MenuBarEvents {
public:
    struct Type {
        std::uint32_t eventClass = 0; // a four-character code
        std::uint32_t eventKind = 0;

        bool operator==(const Type &) const = default;
    };

    static constexpr std::uint32_t menuClass = 0x6D656E75; // 'menu'
    static constexpr Type shown = {.eventClass = menuClass, .eventKind = 2000};
    static constexpr Type hidden = {.eventClass = menuClass, .eventKind = 2001};

    // What a handler answers.
    static constexpr std::int32_t handled = 0;
    static constexpr std::int32_t notHandled = -9874;

    using Handler = std::function<std::int32_t(Type)>;

    virtual ~MenuBarEvents() = default;

    // Calls the handler on the main thread for each event of the wanted types from now on. What is
    // hidden already is no event. The newest handler is called first, and an event travels on to
    // the others as long as the answer is notHandled. False when such events cannot be had here.
    virtual bool installHandler(std::span<const Type> wanted, Handler handler) = 0;

protected:
    MenuBarEvents() = default;
    MenuBarEvents(const MenuBarEvents &) = default;
    MenuBarEvents &operator=(const MenuBarEvents &) = default;
};

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Measures from outside how long a program takes to its first painted window, and to all of it.

#include <xcb/damage.h>
#include <xcb/xcb.h>

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <sys/types.h> // pid_t

namespace zt {

// The X server tells of new windows and of what is drawn in them, so the program under measurement
// needs no hook of its own. Thread: the one that made it.
class PaintWatch {
public:
    using Milliseconds = std::chrono::duration<double, std::milli>;

    // Connects to the X server of the environment. No value when there is none, or it cannot tell
    // of drawing.
    static std::optional<PaintWatch> connect();

    // From the start of the program.
    struct Moments {
        Milliseconds first; // drawing in a window of some size
        Milliseconds last;  // drawing there before a quarter of a second without any
    };

    // Starts the program with the arguments, waits for its drawing and ends it. No value when none
    // came within half a minute, or the program ended before.
    std::optional<Moments> measure(const std::string &program,
                                   const std::vector<std::string> &arguments);

private:
    struct Disconnect {
        void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
    };
    struct Free {
        void operator()(void *memory) const { std::free(memory); } // the library uses malloc
    };
    using Clock = std::chrono::steady_clock;
    using Event = std::unique_ptr<xcb_generic_event_t, Free>;

    PaintWatch() = default;
    Event nextEvent(Clock::time_point deadline);
    std::optional<xcb_window_t> awaitDrawing(pid_t process, Clock::time_point deadline);
    // The window that the event tells to be drawn in, if it does and the window is of some size;
    // the next drawing there is told again.
    std::optional<xcb_window_t> drawnWindow(const xcb_generic_event_t &event);
    Clock::time_point awaitSilence(xcb_window_t window);
    void awaitDestruction(xcb_window_t window, Clock::time_point deadline);
    // The part of a window's number that is the same for all windows of one connection.
    std::uint32_t clientOf(xcb_window_t window) const;
    void watchDrawing(xcb_window_t window);

    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    std::uint8_t m_drawingEvent = 0;
    // Among them is the window manager, whose frames around the windows are drawn earlier.
    std::set<std::uint32_t> m_earlierClients;
};

} // namespace zt

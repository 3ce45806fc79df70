#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Which processes the clients of the X server are, by the server's own knowledge.

#include <xcb/xcb.h>

#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

namespace zt {

class X11Connection;

// Thread: one at a time.
class X11ClientPids {
public:
    // Process ids by client.
    class Answer {
    public:
        // The process that made the window, if it was asked for and is known.
        std::optional<std::int32_t> pidOf(xcb_window_t window) const;

    private:
        friend X11ClientPids;
        std::uint32_t m_clientBits = 0; // of a window's id
        std::unordered_map<std::uint32_t, std::int32_t> m_pids;
    };

    // `connection` must outlive this.
    explicit X11ClientPids(X11Connection &connection);

    // Whether the server can tell. What it says comes from the kernel and cannot be wrong; but a
    // server that lives in another space of process ids than we do speaks of other processes.
    bool isReliable() const { return m_isReliable; }

    // Asks about all at once. Empty when the server cannot tell.
    Answer pidsOf(const std::vector<xcb_window_t> &windows) const;

private:
    Answer ask(const std::vector<xcb_window_t> &windows) const;
    bool knowsOurOwnPid() const;

    X11Connection &m_connection;
    bool m_isReliable;
};

} // namespace zt

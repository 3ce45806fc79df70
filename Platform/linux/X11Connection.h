#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A connection to the X server, and owners for what it answers.

#include <xcb/xcb.h>
#include <xcb/xcb_ewmh.h>

#include <cstdint>
#include <cstdlib>
#include <memory>

namespace zt {

struct XcbDeleter {
    void operator()(void *answer) const { std::free(answer); }
    void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
};

template <typename T>
using XcbPointer = std::unique_ptr<T, XcbDeleter>;

// Thread: one at a time.
class X11Connection {
public:
    // Null when there is no X server to talk to.
    static std::unique_ptr<X11Connection> open();

    // The same for what concerns all programs of the session. Null also in a Wayland session: the X
    // server in there sees only what programs do that still talk to it.
    static std::unique_ptr<X11Connection> openForWholeSession();

    ~X11Connection();
    X11Connection(const X11Connection &) = delete;
    X11Connection &operator=(const X11Connection &) = delete;

    xcb_connection_t *get() const { return m_connection.get(); }
    xcb_window_t root() const { return m_screen->root; }

    // The atoms of the hints by which window managers and other programs talk, and the library's
    // functions for them, which take it by pointer.
    xcb_ewmh_connection_t *hints() const { return &m_hints; }
    int screenNumber() const { return m_screenNumber; }

    // False once the server has gone; nothing is answered from then on.
    bool isOpen() const { return xcb_connection_has_error(m_connection.get()) == 0; }

    // Whether a window manager runs that keeps those hints.
    bool hasWindowManager() const;

    // The server's time now, in its own milliseconds; 0 when it does not answer. Window managers
    // believe a request for the keyboard that tells when it was made.
    xcb_timestamp_t serverTime();

    // Frees events that nobody waits for; servers send some to everybody.
    void discardEvents();

private:
    X11Connection(XcbPointer<xcb_connection_t> connection, int screenNumber);

    XcbPointer<xcb_connection_t> m_connection;
    mutable xcb_ewmh_connection_t m_hints = {};
    int m_screenNumber;
    const xcb_screen_t *m_screen = nullptr; // part of the connection
    xcb_window_t m_clockWindow = XCB_NONE;  // never shown; its property changes tell the time
};

} // namespace zt

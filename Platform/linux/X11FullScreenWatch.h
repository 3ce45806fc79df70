#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Watches whether the front window fills the screen.

#include <QSocketNotifier>

#include <functional>
#include <memory>

#include <xcb/xcb.h>

namespace zt {

class X11Connection;

// Has a connection of its own, whose events nobody else takes. Thread: main.
class X11FullScreenWatch {
public:
    using Listener = std::function<void(bool isFullScreen)>;

    // Calls the listener for each change from now on. Null when there is nobody who would tell: no
    // X server that serves the whole session, no window manager.
    static std::unique_ptr<X11FullScreenWatch> start(Listener changed);

    ~X11FullScreenWatch();
    X11FullScreenWatch(const X11FullScreenWatch &) = delete;
    X11FullScreenWatch &operator=(const X11FullScreenWatch &) = delete;

private:
    X11FullScreenWatch(std::unique_ptr<X11Connection> connection, Listener changed);
    void takeEvents();
    bool haveEventsOfInterest();
    bool look();
    void watchWindow(xcb_window_t window);

    std::unique_ptr<X11Connection> m_connection;
    Listener m_changed;
    xcb_window_t m_frontWindow = XCB_NONE;
    bool m_isFullScreen = false;
    QSocketNotifier m_notifier;
};

} // namespace zt

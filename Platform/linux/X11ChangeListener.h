#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Listens to what the window manager announces on the root window.

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace zt {

class X11Connection;

// Has a connection of its own, on which nothing is ever asked: so no answer that another thread
// waits for can take an event off the socket unseen. Thread: main.
class X11ChangeListener {
public:
    struct Listeners {
        std::function<void()> activeWindowChanged;
        std::function<void()> windowListChanged;
    };

    // Null when there is no X server.
    static std::unique_ptr<X11ChangeListener> start(Listeners listeners);

    ~X11ChangeListener();
    X11ChangeListener(const X11ChangeListener &) = delete;
    X11ChangeListener &operator=(const X11ChangeListener &) = delete;

private:
    // A listener may end the listening, and with it a notifier that is just notifying.
    struct LaterDeleter {
        void operator()(QSocketNotifier *notifier) const;
    };

    X11ChangeListener(std::unique_ptr<X11Connection> connection, Listeners listeners);
    void takeEvents();

    std::unique_ptr<X11Connection> m_connection;
    Listeners m_listeners;
    std::unique_ptr<QSocketNotifier, LaterDeleter> m_notifier;
};

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/X11WindowSystem.h"

#include "Platform/linux/X11ChangeListener.h"
#include "Platform/linux/X11ClientWindows.h"
#include "Platform/linux/X11Connection.h"

#include <QThread>

#include <algorithm>
#include <array>
#include <utility>

#include <xcb/xcb_icccm.h>

namespace zt {

namespace {

// Says that a request comes from a program that manages windows for the user, as a task bar does;
// such requests are granted where a program's request for itself might be taken for a theft of the
// keyboard.
constexpr std::uint32_t sourceIsPager = 2;

void sendToWindowManager(const X11Connection &connection, xcb_window_t window, xcb_atom_t type,
                         const std::array<std::uint32_t, 5> &values) {
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = type;
    std::copy(values.begin(), values.end(), message.data.data32);
    xcb_send_event(connection.get(), 0, connection.root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char *>(&message));
}

void raise(const X11Connection &connection, const X11ClientWindow &window) {
    sendToWindowManager(connection, window.window, connection.hints()->_NET_RESTACK_WINDOW,
                        {sourceIsPager, XCB_NONE, XCB_STACK_MODE_ABOVE});
}

// Brings a minimised window back. The window manager gets to see the request to show the window,
// and takes it as one to restore it.
void restore(const X11Connection &connection, const X11ClientWindow &window) {
    xcb_map_window(connection.get(), window.window);
}

void minimize(const X11Connection &connection, const X11ClientWindow &window, xcb_atom_t message) {
    sendToWindowManager(connection, window.window, message, {XCB_ICCCM_WM_STATE_ICONIC});
}

void activate(X11Connection &connection, const X11ClientWindow &window) {
    sendToWindowManager(connection, window.window, connection.hints()->_NET_ACTIVE_WINDOW,
                        {sourceIsPager, connection.serverTime(), XCB_NONE});
}

xcb_atom_t internAtom(const X11Connection &connection, std::string_view name) {
    const XcbPointer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        connection.get(),
        xcb_intern_atom_unchecked(connection.get(), 0, static_cast<std::uint16_t>(name.size()),
                                  name.data()),
        nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

// Whether the window has the property, whatever it says.
bool hasProperty(const X11Connection &connection, xcb_window_t window, xcb_atom_t property) {
    const XcbPointer<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        connection.get(),
        xcb_get_property_unchecked(connection.get(), 0, window, property, XCB_ATOM_ANY, 0, 0),
        nullptr));
    return reply && reply->type != XCB_ATOM_NONE;
}

} // namespace

X11WindowSystem::X11WindowSystem() = default;

X11WindowSystem::~X11WindowSystem() = default;

// The caller holds the lock.
X11Connection *X11WindowSystem::connection() const {
    if (!m_connection) {
        m_connection.emplace(X11Connection::open());
        if (*m_connection)
            m_clientWindows = std::make_unique<X11ClientWindows>(**m_connection);
    }
    return m_connection->get();
}

QList<std::int32_t> X11WindowSystem::processesWithWindows() const {
    const std::scoped_lock lock(m_mutex);
    QList<std::int32_t> pids;
    if (!connection())
        return pids;
    for (const X11ClientWindow &window : m_clientWindows->windowsFromBottomToTop()) {
        if (!pids.contains(window.pid))
            pids.append(window.pid);
    }
    return pids;
}

std::optional<std::int32_t> X11WindowSystem::frontProcess() const {
    const std::scoped_lock lock(m_mutex);
    return connection() ? m_clientWindows->processOfActiveWindow() : std::nullopt;
}

// The caller holds the lock, also in the functions that follow.
std::vector<X11ClientWindow> X11WindowSystem::windowsOf(std::int32_t pid) const {
    X11Connection *const server = connection();
    if (!server)
        return {};
    server->discardEvents();
    std::vector<X11ClientWindow> windows = m_clientWindows->windowsFromBottomToTop();
    std::erase_if(windows, [pid](const X11ClientWindow &window) { return window.pid != pid; });
    return windows;
}

void X11WindowSystem::bringToFront(std::int32_t pid, Windows which) {
    const std::scoped_lock lock(m_mutex);
    const std::vector<X11ClientWindow> windows = windowsOf(pid);
    if (windows.empty())
        return;
    X11Connection &server = *connection();
    // Only when nothing of the program can be seen does a minimised window count as its foremost.
    auto foremost = std::find_if(windows.rbegin(), windows.rend(),
                                 [](const X11ClientWindow &window) { return !window.isHidden; });
    if (foremost == windows.rend())
        foremost = windows.rbegin();
    // From the bottom up, so that they keep their order among themselves.
    for (const X11ClientWindow &window : windows) {
        if (which == Windows::FrontOnly || window.window == foremost->window)
            continue;
        if (window.isHidden)
            restore(server, window);
        raise(server, window);
    }
    activate(server, *foremost);
    xcb_flush(server.get());
}

void X11WindowSystem::setHidden(std::int32_t pid, bool hidden) {
    const std::scoped_lock lock(m_mutex);
    std::vector<X11ClientWindow> windows = windowsOf(pid);
    std::erase_if(windows,
                  [&](const X11ClientWindow &window) { return window.isHidden == hidden; });
    if (windows.empty())
        return;
    const X11Connection &server = *connection();
    const xcb_atom_t changeState = internAtom(server, "WM_CHANGE_STATE");
    for (const X11ClientWindow &window : windows) {
        if (hidden) {
            minimize(server, window, changeState);
        } else {
            restore(server, window);
        }
    }
    xcb_flush(server.get());
}

int X11WindowSystem::requestClose(std::int32_t pid) {
    const std::scoped_lock lock(m_mutex);
    const std::vector<X11ClientWindow> windows = windowsOf(pid);
    if (windows.empty())
        return 0;
    X11Connection &server = *connection();
    const xcb_timestamp_t now = server.serverTime();
    // The foremost first: a dialog in front of a document is asked before the document is.
    std::for_each(windows.rbegin(), windows.rend(), [&](const X11ClientWindow &window) {
        sendToWindowManager(server, window.window, server.hints()->_NET_CLOSE_WINDOW,
                            {now, sourceIsPager});
    });
    xcb_flush(server.get());
    return server.isOpen() ? static_cast<int>(windows.size()) : 0;
}

bool X11WindowSystem::blurBehind(std::uint64_t window, const QList<QRect> &parts) {
    const std::scoped_lock lock(m_mutex);
    const X11Connection *const server = connection();
    if (!server)
        return false;
    xcb_connection_t *const xcb = server->get();
    const xcb_atom_t region = internAtom(*server, "_KDE_NET_WM_BLUR_BEHIND_REGION");
    // Compositors that know the hint have it on the root window, too.
    if (region == XCB_ATOM_NONE || !hasProperty(*server, server->root(), region))
        return false;
    const auto target = static_cast<xcb_window_t>(window);
    std::vector<std::uint32_t> numbers;
    for (const QRect &part : parts) {
        for (const int number : {part.x(), part.y(), part.width(), part.height()})
            numbers.push_back(static_cast<std::uint32_t>(number));
    }
    if (numbers.empty()) {
        xcb_delete_property(xcb, target, region);
    } else {
        xcb_change_property(xcb, XCB_PROP_MODE_REPLACE, target, region, XCB_ATOM_CARDINAL, 32,
                            static_cast<std::uint32_t>(numbers.size()), numbers.data());
    }
    xcb_flush(xcb);
    return true;
}

void X11WindowSystem::setChangeListeners(std::function<void()> frontChanged,
                                         std::function<void()> windowsChanged) {
    m_changeListener.reset();
    if (!frontChanged && !windowsChanged)
        return;
    m_frontProcess = frontProcess();
    m_changeListener = X11ChangeListener::start({
        .activeWindowChanged =
            [this, notify = std::move(frontChanged)] {
                const std::optional<std::int32_t> process = frontProcess();
                // While one window goes and the next one comes there may be none.
                if (!process || process == m_frontProcess)
                    return;
                m_frontProcess = process;
                if (notify)
                    notify();
            },
        .windowListChanged =
            [notify = std::move(windowsChanged)] {
                if (notify)
                    notify();
            },
    });
}

} // namespace zt

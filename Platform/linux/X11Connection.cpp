// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/X11Connection.h"

#include <optional>
#include <utility>

namespace zt {

namespace {

// The window that the window manager says is its own, from a window's property.
std::optional<xcb_window_t> supportingWindow(xcb_ewmh_connection_t *hints, xcb_window_t window) {
    xcb_window_t answer = XCB_NONE;
    if (!xcb_ewmh_get_supporting_wm_check_reply(
            hints, xcb_ewmh_get_supporting_wm_check(hints, window), &answer, nullptr))
        return std::nullopt;
    return answer;
}

} // namespace

std::unique_ptr<X11Connection> X11Connection::open() {
    int screenNumber = 0;
    XcbPointer<xcb_connection_t> connection(xcb_connect(nullptr, &screenNumber));
    if (xcb_connection_has_error(connection.get()) != 0)
        return nullptr;
    std::unique_ptr<X11Connection> opened(new X11Connection(std::move(connection), screenNumber));
    return opened->m_screen && opened->isOpen() ? std::move(opened) : nullptr;
}

std::unique_ptr<X11Connection> X11Connection::openForWholeSession() {
    const char *const compositor = std::getenv("WAYLAND_DISPLAY");
    return compositor && *compositor != '\0' ? nullptr : open();
}

X11Connection::X11Connection(XcbPointer<xcb_connection_t> connection, int screenNumber)
    : m_connection(std::move(connection))
    , m_screenNumber(screenNumber) {
    xcb_intern_atom_cookie_t *const atoms = xcb_ewmh_init_atoms(m_connection.get(), &m_hints);
    if (!xcb_ewmh_init_atoms_replies(&m_hints, atoms, nullptr))
        return;
    m_screen = m_hints.screens[screenNumber];
    m_clockWindow = xcb_generate_id(m_connection.get());
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(m_connection.get(), XCB_COPY_FROM_PARENT, m_clockWindow, root(), -1, -1, 1, 1,
                      0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
                      &events);
}

X11Connection::~X11Connection() {
    xcb_ewmh_connection_wipe(&m_hints);
}

bool X11Connection::hasWindowManager() const {
    // The root window's property may be left over from one that has ended, but its window is gone
    // then, or, where the id was used again, does not name itself.
    const std::optional<xcb_window_t> claimed = supportingWindow(&m_hints, root());
    return claimed && supportingWindow(&m_hints, *claimed) == claimed;
}

xcb_timestamp_t X11Connection::serverTime() {
    discardEvents();
    xcb_change_property(m_connection.get(), XCB_PROP_MODE_APPEND, m_clockWindow, XCB_ATOM_WM_NAME,
                        XCB_ATOM_STRING, 8, 0, nullptr);
    xcb_flush(m_connection.get());
    while (const XcbPointer<xcb_generic_event_t> event{xcb_wait_for_event(m_connection.get())}) {
        if ((event->response_type & 0x7F) != XCB_PROPERTY_NOTIFY)
            continue;
        const auto *change = reinterpret_cast<const xcb_property_notify_event_t *>(event.get());
        if (change->window == m_clockWindow)
            return change->time;
    }
    return XCB_CURRENT_TIME;
}

void X11Connection::discardEvents() {
    while (const XcbPointer<xcb_generic_event_t> event{xcb_poll_for_event(m_connection.get())}) {
    }
}

} // namespace zt

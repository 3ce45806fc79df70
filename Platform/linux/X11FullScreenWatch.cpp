// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/X11FullScreenWatch.h"

#include "Platform/linux/X11Connection.h"

#include <algorithm>
#include <utility>

namespace zt {

namespace {

void selectPropertyChanges(const X11Connection &connection, xcb_window_t window, bool wanted) {
    const std::uint32_t events =
        wanted ? std::uint32_t{XCB_EVENT_MASK_PROPERTY_CHANGE} : std::uint32_t{0};
    xcb_change_window_attributes(connection.get(), window, XCB_CW_EVENT_MASK, &events);
}

xcb_window_t activeWindow(const X11Connection &connection) {
    xcb_window_t window = XCB_NONE;
    if (!connection.hasWindowManager())
        return XCB_NONE;
    xcb_ewmh_connection_t *const hints = connection.hints();
    const auto question = xcb_ewmh_get_active_window_unchecked(hints, connection.screenNumber());
    xcb_ewmh_get_active_window_reply(hints, question, &window, nullptr);
    return window;
}

bool fillsScreen(const X11Connection &connection, xcb_window_t window) {
    xcb_ewmh_connection_t *const hints = connection.hints();
    xcb_ewmh_get_atoms_reply_t states = {};
    const auto question = xcb_ewmh_get_wm_state_unchecked(hints, window);
    if (!xcb_ewmh_get_wm_state_reply(hints, question, &states, nullptr))
        return false;
    const xcb_atom_t *const begin = states.atoms;
    const xcb_atom_t *const end = begin + states.atoms_len;
    const bool isFullScreen = std::find(begin, end, hints->_NET_WM_STATE_FULLSCREEN) != end;
    xcb_ewmh_get_atoms_reply_wipe(&states);
    return isFullScreen;
}

} // namespace

std::unique_ptr<X11FullScreenWatch> X11FullScreenWatch::start(Listener changed) {
    std::unique_ptr<X11Connection> connection = X11Connection::openForWholeSession();
    if (!connection || !connection->hasWindowManager())
        return nullptr;
    return std::unique_ptr<X11FullScreenWatch>(
        new X11FullScreenWatch(std::move(connection), std::move(changed)));
}

X11FullScreenWatch::X11FullScreenWatch(std::unique_ptr<X11Connection> connection, Listener changed)
    : m_connection(std::move(connection))
    , m_changed(std::move(changed))
    , m_notifier(xcb_get_file_descriptor(m_connection->get()), QSocketNotifier::Read) {
    selectPropertyChanges(*m_connection, m_connection->root(), true);
    m_isFullScreen = look();
    QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier,
                     [this] { takeEvents(); });
    // Whatever came with the answers is off the socket, which would not tell of it any more.
    QMetaObject::invokeMethod(
        &m_notifier, [this] { takeEvents(); }, Qt::QueuedConnection);
}

X11FullScreenWatch::~X11FullScreenWatch() = default;

void X11FullScreenWatch::takeEvents() {
    bool isFullScreen = m_isFullScreen;
    // Each look asks the server, and events may come with its answers.
    while (haveEventsOfInterest())
        isFullScreen = look();
    // A socket without a server at its other end is readable for ever.
    if (!m_connection->isOpen())
        m_notifier.setEnabled(false);
    if (std::exchange(m_isFullScreen, isFullScreen) != isFullScreen)
        m_changed(isFullScreen);
}

// Whether something happened since the last time that may have changed the answer.
bool X11FullScreenWatch::haveEventsOfInterest() {
    bool found = false;
    const xcb_ewmh_connection_t *const hints = m_connection->hints();
    while (const XcbPointer<xcb_generic_event_t> event{xcb_poll_for_event(m_connection->get())}) {
        if ((event->response_type & 0x7F) != XCB_PROPERTY_NOTIFY)
            continue;
        const auto *change = reinterpret_cast<const xcb_property_notify_event_t *>(event.get());
        // A window manager may go on calling a window active that has gone, but its list is right.
        found |=
            change->atom == hints->_NET_ACTIVE_WINDOW || change->atom == hints->_NET_CLIENT_LIST ||
            change->atom == hints->_NET_SUPPORTING_WM_CHECK || change->atom == hints->_NET_WM_STATE;
    }
    return found;
}

// Whether the front window fills the screen now.
bool X11FullScreenWatch::look() {
    watchWindow(activeWindow(*m_connection));
    return m_frontWindow != XCB_NONE && fillsScreen(*m_connection, m_frontWindow);
}

// Done before the window's state is read, so that no change of it is missed.
void X11FullScreenWatch::watchWindow(xcb_window_t window) {
    if (window == m_frontWindow)
        return;
    // It may have gone; the server's complaint about that is passed over with other events.
    if (m_frontWindow != XCB_NONE)
        selectPropertyChanges(*m_connection, m_frontWindow, false);
    m_frontWindow = window;
    if (m_frontWindow != XCB_NONE)
        selectPropertyChanges(*m_connection, m_frontWindow, true);
}

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/X11ChangeListener.h"

#include "Platform/linux/X11Connection.h"

#include <utility>

namespace zt {

void X11ChangeListener::LaterDeleter::operator()(QSocketNotifier *notifier) const {
    notifier->setEnabled(false);
    notifier->deleteLater();
}

std::unique_ptr<X11ChangeListener> X11ChangeListener::start(Listeners listeners) {
    std::unique_ptr<X11Connection> connection = X11Connection::open();
    if (!connection)
        return nullptr;
    return std::unique_ptr<X11ChangeListener>(
        new X11ChangeListener(std::move(connection), std::move(listeners)));
}

X11ChangeListener::X11ChangeListener(std::unique_ptr<X11Connection> connection, Listeners listeners)
    : m_connection(std::move(connection))
    , m_listeners(std::move(listeners))
    , m_notifier(new QSocketNotifier(xcb_get_file_descriptor(m_connection->get()),
                                     QSocketNotifier::Read)) {
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(m_connection->get(), m_connection->root(), XCB_CW_EVENT_MASK,
                                 &events);
    xcb_flush(m_connection->get());
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                     [this] { takeEvents(); });
}

X11ChangeListener::~X11ChangeListener() = default;

void X11ChangeListener::takeEvents() {
    bool activeWindowChanged = false;
    bool windowListChanged = false;
    const xcb_ewmh_connection_t *const hints = m_connection->hints();
    while (const XcbPointer<xcb_generic_event_t> event{xcb_poll_for_event(m_connection->get())}) {
        if ((event->response_type & 0x7F) != XCB_PROPERTY_NOTIFY)
            continue;
        const auto *change = reinterpret_cast<const xcb_property_notify_event_t *>(event.get());
        activeWindowChanged |= change->atom == hints->_NET_ACTIVE_WINDOW;
        windowListChanged |= change->atom == hints->_NET_CLIENT_LIST;
    }
    // A socket without a server at its other end is readable for ever.
    if (!m_connection->isOpen())
        m_notifier->setEnabled(false);
    // A listener may end the listening, so nothing of this object is touched from here on.
    const Listeners listeners = m_listeners;
    if (windowListChanged)
        listeners.windowListChanged();
    if (activeWindowChanged)
        listeners.activeWindowChanged();
}

} // namespace zt

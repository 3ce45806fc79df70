// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/X11UserInput.h"

#include "Platform/linux/X11Connection.h"

#include <xcb/screensaver.h>

namespace zt {

namespace {

bool knowsIdleTime(const X11Connection &connection) {
    const xcb_query_extension_reply_t *const extension =
        xcb_get_extension_data(connection.get(), &xcb_screensaver_id);
    return extension && extension->present;
}

} // namespace

X11UserInput::X11UserInput() = default;

X11UserInput::~X11UserInput() = default;

std::optional<std::chrono::nanoseconds> X11UserInput::idleTime() {
    const std::scoped_lock lock(m_mutex);
    if (!m_connection || !m_connection->isOpen())
        m_connection = X11Connection::openForWholeSession();
    // A request of an extension that the server does not have would end the connection.
    if (!m_connection || !knowsIdleTime(*m_connection))
        return std::nullopt;
    m_connection->discardEvents();
    const XcbPointer<xcb_screensaver_query_info_reply_t> reply(xcb_screensaver_query_info_reply(
        m_connection->get(),
        xcb_screensaver_query_info_unchecked(m_connection->get(), m_connection->root()), nullptr));
    if (!reply)
        return std::nullopt;
    return std::chrono::milliseconds(reply->ms_since_user_input);
}

} // namespace zt

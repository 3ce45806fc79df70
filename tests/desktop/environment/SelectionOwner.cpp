// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/desktop/environment/SelectionOwner.h"

#include <cstdlib>

SelectionOwner::SelectionOwner() : m_connection(zt::X11Connection::open()) {
    if (!m_connection)
        std::abort();
    m_window = xcb_generate_id(m_connection->get());
    xcb_create_window(m_connection->get(), XCB_COPY_FROM_PARENT, m_window, m_connection->root(), -1,
                      -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
}

void SelectionOwner::own(std::string_view selection) {
    setOwner(selection, m_window);
}

void SelectionOwner::disown(std::string_view selection) {
    setOwner(selection, XCB_NONE);
}

void SelectionOwner::setOwner(std::string_view selection, xcb_window_t owner) {
    xcb_connection_t *const connection = m_connection->get();
    const zt::XcbPointer<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(
        connection,
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(selection.size()),
                        selection.data()),
        nullptr));
    xcb_set_selection_owner(connection, owner, atom->atom, XCB_CURRENT_TIME);
    const zt::XcbPointer<xcb_get_selection_owner_reply_t> known(xcb_get_selection_owner_reply(
        connection, xcb_get_selection_owner(connection, atom->atom), nullptr));
    if (!known || known->owner != owner)
        std::abort();
}

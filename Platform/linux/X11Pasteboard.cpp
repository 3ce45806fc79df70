// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/X11Pasteboard.h"

#include "Platform/linux/X11Connection.h"

#include <xcb/xfixes.h>

#include <string_view>

namespace zt {

namespace {

// Since this version of the extension selections can be watched.
constexpr std::uint32_t extensionVersion = 1;

xcb_atom_t atomNamed(const X11Connection &connection, std::string_view name) {
    const XcbPointer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        connection.get(),
        xcb_intern_atom_unchecked(connection.get(), 0, static_cast<std::uint16_t>(name.size()),
                                  name.data()),
        nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

} // namespace

// The server's owner of the clipboard is the program that last put something onto it, which hands
// its content out to those who ask. When such a program ends, a clipboard manager may take the
// content over and become the owner.
class X11Pasteboard::Counter {
public:
    // Null when there is no server that serves the whole session, or none that tells of owners.
    static std::unique_ptr<Counter> start() {
        std::unique_ptr<X11Connection> connection = X11Connection::openForWholeSession();
        if (!connection)
            return nullptr;
        const xcb_query_extension_reply_t *const extension =
            xcb_get_extension_data(connection->get(), &xcb_xfixes_id);
        if (!extension || !extension->present)
            return nullptr;
        // The server insists on being asked for this first.
        const XcbPointer<xcb_xfixes_query_version_reply_t> version(xcb_xfixes_query_version_reply(
            connection->get(),
            xcb_xfixes_query_version_unchecked(connection->get(), extensionVersion, 0), nullptr));
        if (!version || version->major_version < extensionVersion)
            return nullptr;
        return std::unique_ptr<Counter>(new Counter(std::move(connection), extension->first_event));
    }

    bool isConnected() const { return m_connection->isOpen(); }

    // Exact for everything that the server has been asked for before this call.
    std::optional<std::int32_t> count() {
        // Whatever has happened so far comes before the answer to any question.
        const XcbPointer<xcb_get_input_focus_reply_t> answer(xcb_get_input_focus_reply(
            m_connection->get(), xcb_get_input_focus_unchecked(m_connection->get()), nullptr));
        if (!answer)
            return std::nullopt;
        takeEvents();
        return m_count;
    }

private:
    Counter(std::unique_ptr<X11Connection> connection, std::uint8_t firstEvent)
        : m_connection(std::move(connection))
        , m_ownerEvent(static_cast<std::uint8_t>(firstEvent + XCB_XFIXES_SELECTION_NOTIFY))
        , m_clipboard(atomNamed(*m_connection, "CLIPBOARD"))
        , m_managers(atomNamed(*m_connection, "CLIPBOARD_MANAGER"))
        , m_clientBits(~xcb_get_setup(m_connection->get())->resource_id_mask) {
        constexpr std::uint32_t owned = XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER;
        constexpr std::uint32_t left = XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                       XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE;
        // A program that ends takes its content with it, but puts nothing in its place.
        xcb_xfixes_select_selection_input(m_connection->get(), m_connection->root(), m_clipboard,
                                          owned);
        xcb_xfixes_select_selection_input(m_connection->get(), m_connection->root(), m_managers,
                                          owned | left);
        const XcbPointer<xcb_get_selection_owner_reply_t> manager(xcb_get_selection_owner_reply(
            m_connection->get(), xcb_get_selection_owner_unchecked(m_connection->get(), m_managers),
            nullptr));
        m_manager = manager ? manager->owner : xcb_window_t{XCB_NONE};
    }

    void takeEvents() {
        while (
            const XcbPointer<xcb_generic_event_t> event{xcb_poll_for_event(m_connection->get())}) {
            if ((event->response_type & 0x7F) != m_ownerEvent)
                continue;
            const auto *change =
                reinterpret_cast<const xcb_xfixes_selection_notify_event_t *>(event.get());
            if (change->selection == m_managers) {
                m_manager = change->owner;
            } else if (change->selection == m_clipboard && !belongsToManager(change->owner)) {
                ++m_count;
            }
        }
    }

    // The server gives each client a range of ids for its windows.
    bool belongsToManager(xcb_window_t window) const {
        return m_manager != XCB_NONE && window != XCB_NONE &&
               (window & m_clientBits) == (m_manager & m_clientBits);
    }

    std::unique_ptr<X11Connection> m_connection;
    std::uint8_t m_ownerEvent;
    xcb_atom_t m_clipboard;
    xcb_atom_t m_managers;
    std::uint32_t m_clientBits;
    xcb_window_t m_manager = XCB_NONE;
    std::int32_t m_count = 0;
};

X11Pasteboard::X11Pasteboard() = default;

X11Pasteboard::~X11Pasteboard() = default;

std::optional<std::int32_t> X11Pasteboard::changeCount() {
    if (!m_counter)
        m_counter = Counter::start();
    // What a server knew that has gone can never be asked again.
    return m_counter && m_counter->isConnected() ? m_counter->count() : std::nullopt;
}

} // namespace zt

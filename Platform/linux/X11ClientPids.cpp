// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/X11ClientPids.h"

#include "Platform/linux/X11Connection.h"

#include <limits>

#include <unistd.h>
#include <xcb/res.h>

namespace zt {

std::optional<std::int32_t> X11ClientPids::Answer::pidOf(xcb_window_t window) const {
    const auto found = m_pids.find(window & m_clientBits);
    return found == m_pids.end() ? std::nullopt : std::optional(found->second);
}

X11ClientPids::X11ClientPids(X11Connection &connection)
    : m_connection(connection)
    , m_isReliable(knowsOurOwnPid()) {}

X11ClientPids::Answer X11ClientPids::pidsOf(const std::vector<xcb_window_t> &windows) const {
    return m_isReliable && !windows.empty() ? ask(windows) : Answer();
}

X11ClientPids::Answer X11ClientPids::ask(const std::vector<xcb_window_t> &windows) const {
    std::vector<xcb_res_client_id_spec_t> wanted;
    wanted.reserve(windows.size());
    for (const xcb_window_t window : windows)
        wanted.push_back({.client = window, .mask = XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID});
    xcb_connection_t *const connection = m_connection.get();
    const auto question = xcb_res_query_client_ids_unchecked(
        connection, static_cast<std::uint32_t>(wanted.size()), wanted.data());
    const XcbPointer<xcb_res_query_client_ids_reply_t> reply(
        xcb_res_query_client_ids_reply(connection, question, nullptr));

    Answer answer;
    // The server gives each client a range of ids of its own.
    answer.m_clientBits = ~xcb_get_setup(connection)->resource_id_mask;
    if (!reply)
        return answer;
    for (auto id = xcb_res_query_client_ids_ids_iterator(reply.get()); id.rem > 0;
         xcb_res_client_id_value_next(&id)) {
        if (id.data->spec.mask != XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID ||
            xcb_res_client_id_value_value_length(id.data) < 1)
            continue;
        const std::uint32_t pid = *xcb_res_client_id_value_value(id.data);
        // Zero stands for a process that the server cannot see.
        if (pid > 0 && pid <= std::numeric_limits<std::int32_t>::max())
            answer.m_pids.insert_or_assign(id.data->spec.client & answer.m_clientBits,
                                           static_cast<std::int32_t>(pid));
    }
    return answer;
}

bool X11ClientPids::knowsOurOwnPid() const {
    xcb_connection_t *const connection = m_connection.get();
    const xcb_query_extension_reply_t *extension = xcb_get_extension_data(connection, &xcb_res_id);
    if (!extension || !extension->present)
        return false;
    const XcbPointer<xcb_res_query_version_reply_t> version(xcb_res_query_version_reply(
        connection, xcb_res_query_version_unchecked(connection, 1, 2), nullptr));
    if (!version || version->server_major != 1 || version->server_minor < 2)
        return false;
    const xcb_window_t ownId = xcb_get_setup(connection)->resource_id_base;
    return ask({ownId}).pidOf(ownId) == ::getpid();
}

} // namespace zt

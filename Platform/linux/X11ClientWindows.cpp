// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/X11ClientWindows.h"

#include "Platform/linux/X11Connection.h"

#include <algorithm>
#include <array>
#include <limits>

#include <limits.h> // HOST_NAME_MAX
#include <unistd.h>
#include <xcb/xcb_icccm.h>

namespace zt {

namespace {

std::string nameOfThisHost() {
    std::array<char, HOST_NAME_MAX + 1> name = {};
    if (::gethostname(name.data(), name.size() - 1) != 0)
        return {};
    return name.data();
}

bool contains(const xcb_ewmh_get_atoms_reply_t &list, xcb_atom_t atom) {
    return std::find(list.atoms, list.atoms + list.atoms_len, atom) != list.atoms + list.atoms_len;
}

std::optional<std::string> takeText(xcb_connection_t *connection,
                                    xcb_get_property_cookie_t question) {
    xcb_icccm_get_text_property_reply_t text = {};
    if (!xcb_icccm_get_text_property_reply(connection, question, &text, nullptr))
        return std::nullopt;
    std::string answer(text.name, text.name_len);
    xcb_icccm_get_text_property_reply_wipe(&text);
    // Some programs count the closing zero.
    if (answer.ends_with('\0'))
        answer.pop_back();
    return answer;
}

std::vector<xcb_window_t> takeWindows(xcb_ewmh_connection_t *hints,
                                      xcb_get_property_cookie_t question) {
    xcb_ewmh_get_windows_reply_t list = {};
    // Both lists are read by the same function: they have the same form.
    if (!xcb_ewmh_get_client_list_reply(hints, question, &list, nullptr))
        return {};
    std::vector<xcb_window_t> windows(list.windows, list.windows + list.windows_len);
    xcb_ewmh_get_windows_reply_wipe(&list);
    return windows;
}

} // namespace

// What is asked about one window; all windows are asked about before the first answer is awaited.
struct X11ClientWindows::Questions {
    xcb_window_t window;
    xcb_get_geometry_cookie_t geometry;
    xcb_get_property_cookie_t state;
    xcb_get_property_cookie_t type;
    xcb_get_property_cookie_t pid;
    xcb_get_property_cookie_t host;
};

X11ClientWindows::X11ClientWindows(X11Connection &connection)
    : m_connection(connection)
    , m_clientPids(connection)
    , m_hostName(nameOfThisHost()) {}

X11ClientWindows::Questions X11ClientWindows::ask(xcb_window_t window) const {
    xcb_ewmh_connection_t *const hints = m_connection.hints();
    return {.window = window,
            .geometry = xcb_get_geometry_unchecked(m_connection.get(), window),
            .state = xcb_ewmh_get_wm_state_unchecked(hints, window),
            .type = xcb_ewmh_get_wm_window_type_unchecked(hints, window),
            .pid = xcb_ewmh_get_wm_pid_unchecked(hints, window),
            .host = xcb_icccm_get_wm_client_machine_unchecked(m_connection.get(), window)};
}

std::vector<X11ClientWindow> X11ClientWindows::windowsFromBottomToTop() const {
    if (!m_connection.hasWindowManager())
        return {};
    xcb_ewmh_connection_t *const hints = m_connection.hints();
    const int screen = m_connection.screenNumber();
    const auto stackingQuestion = xcb_ewmh_get_client_list_stacking_unchecked(hints, screen);
    const auto listQuestion = xcb_ewmh_get_client_list_unchecked(hints, screen);
    std::vector<xcb_window_t> windows = takeWindows(hints, stackingQuestion);
    const std::vector<xcb_window_t> unordered = takeWindows(hints, listQuestion);
    // Not every window manager tells the order.
    if (windows.empty())
        windows = unordered;

    const X11ClientPids::Answer pids = m_clientPids.pidsOf(windows);
    std::vector<Questions> questions;
    questions.reserve(windows.size());
    for (const xcb_window_t window : windows)
        questions.push_back(ask(window));

    std::vector<X11ClientWindow> answer;
    for (const Questions &asked : questions) {
        // Every answer is taken, needed or not: one that is not taken would stay in memory.
        const bool isHidden = takeIsHidden(asked);
        const bool isPartOfDesktop = takeIsPartOfDesktop(asked);
        const std::optional<std::int32_t> pid = takePid(asked, pids);
        if (pid && !isPartOfDesktop)
            answer.push_back({.window = asked.window, .pid = *pid, .isHidden = isHidden});
    }
    return answer;
}

std::optional<std::int32_t> X11ClientWindows::processOfActiveWindow() const {
    if (!m_connection.hasWindowManager())
        return std::nullopt;
    xcb_ewmh_connection_t *const hints = m_connection.hints();
    const int screen = m_connection.screenNumber();
    const auto activeQuestion = xcb_ewmh_get_active_window_unchecked(hints, screen);
    const auto listQuestion = xcb_ewmh_get_client_list_unchecked(hints, screen);
    xcb_window_t active = XCB_NONE;
    xcb_ewmh_get_active_window_reply(hints, activeQuestion, &active, nullptr);
    const std::vector<xcb_window_t> windows = takeWindows(hints, listQuestion);
    // A window manager may go on calling a window active that has gone, while the next program
    // makes one with the same id. Its list is up to date.
    if (std::find(windows.begin(), windows.end(), active) == windows.end())
        return std::nullopt;
    const X11ClientPids::Answer pids = m_clientPids.pidsOf({active});
    const Questions asked = ask(active);
    (void)takeIsHidden(asked);
    (void)takeIsPartOfDesktop(asked);
    return takePid(asked, pids);
}

bool X11ClientWindows::takeIsHidden(const Questions &questions) const {
    xcb_ewmh_connection_t *const hints = m_connection.hints();
    xcb_ewmh_get_atoms_reply_t states = {};
    if (!xcb_ewmh_get_wm_state_reply(hints, questions.state, &states, nullptr))
        return false;
    const bool isHidden = contains(states, hints->_NET_WM_STATE_HIDDEN);
    xcb_ewmh_get_atoms_reply_wipe(&states);
    return isHidden;
}

bool X11ClientWindows::takeIsPartOfDesktop(const Questions &questions) const {
    xcb_ewmh_connection_t *const hints = m_connection.hints();
    xcb_ewmh_get_atoms_reply_t types = {};
    if (!xcb_ewmh_get_wm_window_type_reply(hints, questions.type, &types, nullptr))
        return false;
    const bool isPart = contains(types, hints->_NET_WM_WINDOW_TYPE_DESKTOP) ||
                        contains(types, hints->_NET_WM_WINDOW_TYPE_DOCK);
    xcb_ewmh_get_atoms_reply_wipe(&types);
    return isPart;
}

std::optional<std::int32_t> X11ClientWindows::takePid(const Questions &questions,
                                                      const X11ClientPids::Answer &pids) const {
    std::uint32_t claimed = 0;
    const bool claims =
        xcb_ewmh_get_wm_pid_reply(m_connection.hints(), questions.pid, &claimed, nullptr) != 0;
    const std::optional<std::string> host = takeText(m_connection.get(), questions.host);
    const XcbPointer<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(m_connection.get(), questions.geometry, nullptr));
    // Window managers go on naming a window for a while after it has gone, and another program may
    // have been given its range of ids. So a window counts when it is seen after its owner was.
    if (!geometry)
        return std::nullopt;
    // The window of a program on another machine comes through a tunnel, and the server knows only
    // the near end of that.
    if (host && *host != m_hostName)
        return std::nullopt;
    if (m_clientPids.isReliable())
        return pids.pidOf(questions.window);
    // Else what a program says of itself has to do, where it is certain which machine it means.
    if (!claims || !host || claimed == 0 || claimed > std::numeric_limits<std::int32_t>::max())
        return std::nullopt;
    return static_cast<std::int32_t>(claimed);
}

} // namespace zt

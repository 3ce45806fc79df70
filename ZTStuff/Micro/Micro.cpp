// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Comes to the front with a window that nobody sees, and ends as soon as another program is in
// front again, or after a second.

#include <poll.h>
#include <unistd.h>
#include <xcb/xcb.h>
#include <xcb/xcb_ewmh.h>
#include <xcb/xcb_icccm.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr auto lifetime = 1s;

struct Disconnect {
    void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
};
using Connection = std::unique_ptr<xcb_connection_t, Disconnect>;

// The atoms of the window manager's hints.
class Hints {
public:
    explicit Hints(xcb_connection_t *connection) {
        m_isThere = xcb_ewmh_init_atoms_replies(&m_hints, xcb_ewmh_init_atoms(connection, &m_hints),
                                                nullptr) != 0;
    }
    ~Hints() { xcb_ewmh_connection_wipe(&m_hints); }
    Hints(const Hints &) = delete;
    Hints &operator=(const Hints &) = delete;

    bool isThere() const { return m_isThere; }
    xcb_ewmh_connection_t *get() { return &m_hints; }

private:
    xcb_ewmh_connection_t m_hints = {};
    bool m_isThere = false;
};

// What the desktop said when it started this program: a token, with the time of the user's wish.
std::string_view startupToken() {
    const char *const token = std::getenv("DESKTOP_STARTUP_ID");
    return token ? token : "";
}

std::uint32_t timeIn(std::string_view token) {
    const std::string_view mark = "_TIME";
    const std::size_t place = token.rfind(mark);
    if (place == std::string_view::npos)
        return 0;
    return static_cast<std::uint32_t>(
        std::strtoul(token.data() + place + mark.size(), nullptr, 10));
}

void setText(xcb_connection_t *connection, xcb_window_t window, xcb_atom_t property,
             xcb_atom_t type, std::string_view text) {
    constexpr std::uint8_t bitsOfUnit = 8;
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, property, type, bitsOfUnit,
                        static_cast<std::uint32_t>(text.size()), text.data());
}

xcb_atom_t atom(xcb_connection_t *connection, std::string_view name) {
    const auto question =
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(connection, question, nullptr), std::free);
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

// Without a frame, but in the lists of windows: not all window managers give the keyboard to
// windows that are in none.
void describe(xcb_connection_t *connection, xcb_window_t window, Hints &hints) {
    xcb_ewmh_connection_t *const names = hints.get();
    static constexpr char classNames[] = "micro\0Micro"; // two, each with its end
    std::array<char, 256> host = {};
    ::gethostname(host.data(), host.size() - 1);
    setText(connection, window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, "Micro");
    setText(connection, window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING,
            std::string_view(classNames, sizeof classNames));
    setText(connection, window, XCB_ATOM_WM_CLIENT_MACHINE, XCB_ATOM_STRING, host.data());
    xcb_ewmh_set_wm_pid(names, window, static_cast<std::uint32_t>(::getpid()));
    constexpr std::array<std::uint32_t, 5> noDecorations = {2, 0, 0, 0, 0};
    const xcb_atom_t decorations = atom(connection, "_MOTIF_WM_HINTS");
    constexpr std::uint8_t bitsOfNumber = 32;
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, decorations, decorations,
                        bitsOfNumber, noDecorations.size(), noDecorations.data());
    xcb_icccm_wm_hints_t hintsOfWindow = {};
    xcb_icccm_wm_hints_set_input(&hintsOfWindow, 1);
    xcb_icccm_set_wm_hints(connection, window, &hintsOfWindow);
    if (const std::string_view token = startupToken(); !token.empty()) {
        setText(connection, window, atom(connection, "_NET_STARTUP_ID"), names->UTF8_STRING, token);
        if (const std::uint32_t time = timeIn(token); time != 0)
            xcb_ewmh_set_wm_user_time(names, window, time);
    }
}

xcb_window_t showWindow(xcb_connection_t *connection, Hints &hints) {
    const xcb_screen_t *const screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const xcb_window_t window = xcb_generate_id(connection);
    const std::uint32_t events = XCB_EVENT_MASK_FOCUS_CHANGE;
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, XCB_CW_EVENT_MASK,
                      &events);
    describe(connection, window, hints);
    xcb_map_window(connection, window);
    xcb_flush(connection);
    return window;
}

// Menus and key presses take the keyboard for a while without another program's coming to the
// front.
bool isLossOfFocus(const xcb_generic_event_t &event) {
    constexpr std::uint8_t sentByServer = 0x7F;
    if ((event.response_type & sentByServer) != XCB_FOCUS_OUT)
        return false;
    xcb_focus_out_event_t loss = {};
    std::memcpy(&loss, &event, sizeof loss);
    return loss.mode == XCB_NOTIFY_MODE_NORMAL || loss.mode == XCB_NOTIFY_MODE_WHILE_GRABBED;
}

void waitForLossOfFocus(xcb_connection_t *connection) {
    const auto deadline = Clock::now() + lifetime;
    while (xcb_connection_has_error(connection) == 0) {
        while (xcb_generic_event_t *const next = xcb_poll_for_event(connection)) {
            const std::unique_ptr<xcb_generic_event_t, decltype(&std::free)> event(next, std::free);
            if (isLossOfFocus(*event))
                return;
        }
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
        if (left <= 0)
            return;
        pollfd question = {
            .fd = xcb_get_file_descriptor(connection), .events = POLLIN, .revents = 0};
        ::poll(&question, 1, static_cast<int>(left));
    }
}

} // namespace

int main() {
    const Connection connection(xcb_connect(nullptr, nullptr));
    if (xcb_connection_has_error(connection.get()) != 0)
        return EXIT_FAILURE;
    Hints hints(connection.get());
    if (!hints.isThere())
        return EXIT_FAILURE;
    showWindow(connection.get(), hints);
    waitForLossOfFocus(connection.get());
    return EXIT_SUCCESS;
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "benchmarks/startup/PaintWatch.h"

#include <algorithm>
#include <csignal> // kill
#include <cstdlib>

#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h> // environ

namespace zt {

namespace {

using namespace std::chrono_literals;

constexpr auto patience = 30s;
constexpr auto silence = 250ms;
// Smaller windows belong to the framework: nobody sees them.
constexpr int smallestWindow = 100;

constexpr std::uint8_t typeOf(std::uint8_t responseType) {
    return responseType & 0x7f; // the highest bit only says that another client sent it
}

pid_t start(const std::string &program, const std::vector<std::string> &arguments) {
    std::vector<char *> vector = {const_cast<char *>(program.c_str())};
    for (const std::string &argument : arguments)
        vector.push_back(const_cast<char *>(argument.c_str()));
    vector.push_back(nullptr);
    pid_t process = -1;
    const int error =
        posix_spawn(&process, program.c_str(), nullptr, nullptr, vector.data(), environ);
    return error == 0 ? process : -1;
}

bool hasEnded(pid_t process) {
    siginfo_t information{};
    // It stays there to be waited for.
    waitid(P_PID, id_t(process), &information, WEXITED | WNOHANG | WNOWAIT);
    return information.si_pid == process;
}

} // namespace

std::optional<PaintWatch> PaintWatch::connect() {
    int screenNumber = 0;
    PaintWatch result;
    result.m_connection.reset(xcb_connect(nullptr, &screenNumber));
    xcb_connection_t *connection = result.m_connection.get();
    if (xcb_connection_has_error(connection) != 0)
        return std::nullopt;
    const xcb_query_extension_reply_t *damage = xcb_get_extension_data(connection, &xcb_damage_id);
    if (damage == nullptr || damage->present == 0)
        return std::nullopt;
    result.m_drawingEvent = std::uint8_t(damage->first_event + XCB_DAMAGE_NOTIFY);
    std::free(xcb_damage_query_version_reply(connection, xcb_damage_query_version(connection, 1, 1),
                                             nullptr));

    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    while (screenNumber-- > 0)
        xcb_screen_next(&screens);
    const xcb_window_t root = screens.data->root;
    const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection, root, XCB_CW_EVENT_MASK, &mask);

    const std::unique_ptr<xcb_query_tree_reply_t, Free> tree(
        xcb_query_tree_reply(connection, xcb_query_tree(connection, root), nullptr));
    if (!tree)
        return std::nullopt;
    const xcb_window_t *windows = xcb_query_tree_children(tree.get());
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i)
        result.m_earlierClients.insert(result.clientOf(windows[i]));
    return result;
}

std::uint32_t PaintWatch::clientOf(xcb_window_t window) const {
    return window & ~xcb_get_setup(m_connection.get())->resource_id_mask;
}

std::optional<PaintWatch::Moments> PaintWatch::measure(const std::string &program,
                                                       const std::vector<std::string> &arguments) {
    while (Event(xcb_poll_for_event(m_connection.get()))) {
    }
    const auto started = Clock::now();
    const pid_t process = start(program, arguments);
    if (process < 0)
        return std::nullopt;
    const auto window = awaitDrawing(process, started + patience);
    const auto first = Clock::now();
    const auto last = window ? awaitSilence(*window) : first;
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
    if (!window)
        return std::nullopt;
    awaitDestruction(*window, Clock::now() + patience);
    return Moments{first - started, std::max(first, last) - started};
}

PaintWatch::Event PaintWatch::nextEvent(Clock::time_point deadline) {
    for (;;) {
        Event event(xcb_poll_for_event(m_connection.get()));
        if (event || xcb_connection_has_error(m_connection.get()) != 0)
            return event;
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
        if (left <= 0ms)
            return nullptr;
        pollfd connection{xcb_get_file_descriptor(m_connection.get()), POLLIN, 0};
        poll(&connection, 1, int(left.count()));
    }
}

std::optional<xcb_window_t> PaintWatch::awaitDrawing(pid_t process, Clock::time_point deadline) {
    while (Clock::now() < deadline && !hasEnded(process)) {
        const Event event = nextEvent(Clock::now() + 100ms);
        if (!event)
            continue;
        const std::uint8_t type = typeOf(event->response_type);
        if (type == XCB_CREATE_NOTIFY) {
            const auto *created = reinterpret_cast<xcb_create_notify_event_t *>(event.get());
            if (!m_earlierClients.contains(clientOf(created->window)))
                watchDrawing(created->window);
        } else if (const auto window = drawnWindow(*event)) {
            return window;
        }
    }
    return std::nullopt;
}

std::optional<xcb_window_t> PaintWatch::drawnWindow(const xcb_generic_event_t &event) {
    if (typeOf(event.response_type) != m_drawingEvent)
        return std::nullopt;
    const auto &drawn = reinterpret_cast<const xcb_damage_notify_event_t &>(event);
    xcb_damage_subtract(m_connection.get(), drawn.damage, XCB_NONE, XCB_NONE);
    xcb_flush(m_connection.get());
    if (drawn.geometry.width < smallestWindow || drawn.geometry.height < smallestWindow)
        return std::nullopt;
    return drawn.drawable;
}

PaintWatch::Clock::time_point PaintWatch::awaitSilence(xcb_window_t window) {
    auto last = Clock::time_point::min();
    for (auto end = Clock::now() + silence; Clock::now() < end;) {
        const Event event = nextEvent(end);
        if (event && drawnWindow(*event) == window) {
            last = Clock::now();
            end = last + silence;
        }
    }
    return last;
}

void PaintWatch::watchDrawing(xcb_window_t window) {
    // It goes with the window; a window that is gone already makes an error event, which is no
    // drawing.
    xcb_damage_create(m_connection.get(), xcb_generate_id(m_connection.get()), window,
                      XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);
    xcb_flush(m_connection.get());
}

void PaintWatch::awaitDestruction(xcb_window_t window, Clock::time_point deadline) {
    // While the window is in a frame of the window manager, the root window does not tell of its
    // end; asking does.
    while (Clock::now() < deadline) {
        const std::unique_ptr<void, Free> reply(xcb_get_window_attributes_reply(
            m_connection.get(), xcb_get_window_attributes(m_connection.get(), window), nullptr));
        if (!reply)
            return;
        poll(nullptr, 0, 5);
    }
}

} // namespace zt

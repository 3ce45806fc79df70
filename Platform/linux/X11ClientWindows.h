#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the X server and the window manager know of programs' windows.

#include "Platform/linux/X11ClientPids.h"

#include <xcb/xcb.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zt {

class X11Connection;

struct X11ClientWindow {
    xcb_window_t window = XCB_NONE;
    std::int32_t pid = 0;
    bool isHidden = false; // minimised, or put away by a "show the desktop"
};

// Answers questions about windows. Thread: one at a time.
class X11ClientWindows {
public:
    // `connection` must outlive this.
    explicit X11ClientWindows(X11Connection &connection);

    // The windows of programs on this machine, the lowest first. Panels and the desktop's
    // background are left out: nobody closes, hides or brings forward those. Empty without a window
    // manager.
    std::vector<X11ClientWindow> windowsFromBottomToTop() const;

    // The process that owns the window with the keyboard.
    std::optional<std::int32_t> processOfActiveWindow() const;

private:
    struct Questions;
    Questions ask(xcb_window_t window) const;
    std::optional<std::int32_t> takePid(const Questions &questions,
                                        const X11ClientPids::Answer &pids) const;
    bool takeIsHidden(const Questions &questions) const;
    bool takeIsPartOfDesktop(const Questions &questions) const;

    X11Connection &m_connection;
    X11ClientPids m_clientPids;
    std::string m_hostName;
};

} // namespace zt

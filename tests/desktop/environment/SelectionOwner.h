#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A program that owns the clipboard, as far as the X server can see.

#include "Platform/linux/X11Connection.h"

#include <memory>
#include <string_view>

// Each object is another program to the server. Thread: one at a time.
class SelectionOwner {
public:
    SelectionOwner();

    // Takes the selection over: "CLIPBOARD", or "CLIPBOARD_MANAGER" as clipboard managers do. When
    // this returns, the server knows.
    void own(std::string_view selection);

    // Leaves it to nobody.
    void disown(std::string_view selection);

private:
    void setOwner(std::string_view selection, xcb_window_t owner);

    std::unique_ptr<zt::X11Connection> m_connection;
    xcb_window_t m_window = XCB_NONE;
};

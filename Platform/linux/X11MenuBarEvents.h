#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The menu bar, or what else stands at the edge of the screen: a full-screen window hides it.

#include "Platform/MenuBarEvents.h"

#include <memory>
#include <vector>

namespace zt {

class X11FullScreenWatch;

// Watches windows from the first handler on.
class X11MenuBarEvents final : public MenuBarEvents {
public:
    X11MenuBarEvents();
    ~X11MenuBarEvents() override;
    X11MenuBarEvents(const X11MenuBarEvents &) = delete;
    X11MenuBarEvents &operator=(const X11MenuBarEvents &) = delete;

    bool installHandler(std::span<const Type> wanted, Handler handler) override;

private:
    struct Installed {
        std::vector<Type> wanted;
        Handler handler;
    };

    void tell(Type event) const;

    std::vector<Installed> m_handlers; // the newest first
    std::unique_ptr<X11FullScreenWatch> m_watch;
};

} // namespace zt

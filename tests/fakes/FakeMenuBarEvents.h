#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A menu bar for unit tests.

#include "Platform/MenuBarEvents.h"

#include <algorithm>
#include <vector>

// Tells what the test sends.
class FakeMenuBarEvents final : public zt::MenuBarEvents {
public:
    bool installHandler(std::span<const Type> wanted, Handler handler) override {
        ++installations;
        if (isUnavailable)
            return false;
        m_handlers.insert(m_handlers.begin(), {{wanted.begin(), wanted.end()}, std::move(handler)});
        return true;
    }

    // What the last handler that was called answered; handled when there was none.
    std::int32_t send(Type event) {
        std::int32_t answer = handled;
        const std::vector<Installed> handlers = m_handlers;
        for (const Installed &entry : handlers) {
            if (std::ranges::find(entry.wanted, event) == entry.wanted.end())
                continue;
            answer = entry.handler(event);
            if (answer != notHandled)
                break;
        }
        return answer;
    }

    bool isUnavailable = false;
    int installations = 0; // tried

private:
    struct Installed {
        std::vector<Type> wanted;
        Handler handler;
    };

    std::vector<Installed> m_handlers; // the newest first
};

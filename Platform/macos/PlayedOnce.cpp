// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/PlayedOnce.h"

#include <utility>

namespace zt {

bool PlayedOnce::isOver() const {
    const std::scoped_lock lock(m_mutex);
    return m_isOver;
}

// Told without the lock: whoever hears of the end may ask for it.
bool PlayedOnce::end(bool completely) {
    std::function<void(bool)> ended;
    {
        const std::scoped_lock lock(m_mutex);
        if (std::exchange(m_isOver, true))
            return false;
        ended = std::exchange(m_ended, nullptr);
    }
    if (ended)
        ended(completely);
    return true;
}

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/RecentLines.h"

#include <algorithm>

namespace zt {

void RecentLines::add(std::string_view text) {
    const std::scoped_lock lock(m_mutex);
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        m_lines.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (m_lines.size() > m_limit)
            m_lines.pop_front();
    }
}

std::vector<std::string> RecentLines::lines() const {
    const std::scoped_lock lock(m_mutex);
    return {m_lines.begin(), m_lines.end()};
}

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The last lines of a log, kept to be shown.

#include <cstddef>
#include <deque>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace zt {

// Thread: any.
class RecentLines {
public:
    explicit RecentLines(std::size_t limit) : m_limit(limit) {}

    // Adds the lines of the text; a line end at the end begins no further one. Drops the oldest
    // lines of those that are too many.
    void add(std::string_view text);

    // Oldest first, without their ends.
    std::vector<std::string> lines() const;

private:
    const std::size_t m_limit;
    mutable std::mutex m_mutex;
    std::deque<std::string> m_lines;
};

} // namespace zt

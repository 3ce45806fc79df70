#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The log on Linux: the standard error stream.

#include "Platform/Log.h"
#include "Platform/posix/RecentLines.h"

namespace zt {

class StandardErrorLog final : public Log {
public:
    void writeLine(std::string_view message) override;
    void passOn(std::string_view lines) override;
    std::vector<std::string> recentLines() const override { return m_lines.lines(); }

private:
    static constexpr std::size_t keptLines = 1000;

    RecentLines m_lines{keptLines};
};

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The log on macOS: the system's log call, which writes to the standard error stream too.

#include "Platform/Log.h"
#include "Platform/posix/RecentLines.h"

namespace zt {

class FoundationLog final : public Log {
public:
    void writeLine(std::string_view message) override;
    void passOn(std::string_view lines) override;
    std::vector<std::string> recentLines() const override { return m_lines.lines(); }

private:
    RecentLines m_lines{1000};
};

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The log on macOS: the system's log call, which writes to the standard error stream too.

#include "Platform/Log.h"

namespace zt {

class FoundationLog final : public Log {
public:
    void writeLine(std::string_view message) override;
};

} // namespace zt

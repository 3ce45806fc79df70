#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The log on Linux: the standard error stream.

#include "Platform/Log.h"

namespace zt {

class StandardErrorLog final : public Log {
public:
    void writeLine(std::string_view message) override;
};

} // namespace zt

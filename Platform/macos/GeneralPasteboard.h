#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The general pasteboard.

#include "Platform/Pasteboard.h"

namespace zt {

class GeneralPasteboard final : public Pasteboard {
public:
    std::optional<std::int32_t> changeCount() override;
};

} // namespace zt

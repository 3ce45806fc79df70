#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The menu bar's own events, from the Carbon Event Manager.

#include "Platform/MenuBarEvents.h"
#include "Platform/macos/CarbonEventHandler.h"

#include <memory>
#include <vector>

namespace zt {

// Handlers go when this goes.
class CarbonMenuBarEvents final : public MenuBarEvents {
public:
    bool installHandler(std::span<const Type> wanted, Handler handler) override;

private:
    std::vector<std::unique_ptr<CarbonEventHandler>> m_handlers;
};

} // namespace zt

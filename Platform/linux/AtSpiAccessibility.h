#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The desktop's accessibility bus.

#include "Platform/Accessibility.h"

namespace zt {

// Connects to the bus when it is first needed. Events come through the main thread's event loop,
// which has to be the one that GLib shares.
class AtSpiAccessibility final : public Accessibility {
public:
    Result<void> checkApplication(std::int32_t pid) override;
    Result<std::unique_ptr<AccessibilityObserver>>
    observeApplication(std::int32_t pid, AccessibilityObserver::Handler handler) override;
};

} // namespace zt

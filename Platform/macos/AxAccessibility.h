#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The user interface of other programs, from the accessibility services.

#include "Platform/Accessibility.h"

namespace zt {

class AxAccessibility final : public Accessibility {
public:
    Result<void> checkApplication(std::int32_t pid) override;
    Result<std::unique_ptr<AccessibilityObserver>>
    observeApplication(std::int32_t pid, AccessibilityObserver::Handler handler) override;
};

} // namespace zt

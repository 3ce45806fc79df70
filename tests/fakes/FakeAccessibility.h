#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Accessibility of other programs for unit tests.

#include "Platform/Accessibility.h"

// No process shows its user interface.
class FakeAccessibility final : public zt::Accessibility {
public:
    zt::Result<void> checkApplication(std::int32_t pid) override { return refusal(pid); }
    zt::Result<std::unique_ptr<zt::AccessibilityObserver>>
    observeApplication(std::int32_t pid, zt::AccessibilityObserver::Handler /*handler*/) override {
        return refusal(pid);
    }

private:
    static zt::Error refusal(std::int32_t pid) {
        return {.operation = "observe", .object = std::to_string(pid), .cause = "not shown"};
    }
};

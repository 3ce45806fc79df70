#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Holds on processes for unit tests.

#include "Platform/RunningApplications.h"

// Knows no processes.
class FakeRunningApplications final : public zt::RunningApplications {
public:
    std::unique_ptr<zt::RunningApplication> applicationWithPid(std::int32_t /*pid*/) override {
        return nullptr;
    }
    bool isAvailable() const override { return true; }
};

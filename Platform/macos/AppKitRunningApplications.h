#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Ending applications, by the running-application objects of AppKit.

#include "Platform/RunningApplications.h"

namespace zt {

class AppKitRunningApplications final : public RunningApplications {
public:
    std::unique_ptr<RunningApplication> applicationWithPid(std::int32_t pid) override;
    bool isAvailable() const override;
};

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/AppKitRunningApplications.h"

#import <AppKit/AppKit.h>

namespace zt {

namespace {

// The native object stands for one run of one process; the system itself asks an application to
// quit as its menu would.
class AppKitRunningApplication final : public RunningApplication {
public:
    explicit AppKitRunningApplication(NSRunningApplication *application)
        : m_application(application) {}

    bool terminate() override {
        @autoreleasepool {
            return [m_application terminate] != NO;
        }
    }

    bool forceTerminate() override {
        @autoreleasepool {
            return [m_application forceTerminate] != NO;
        }
    }

    bool isTerminated() override { return m_application.terminated != NO; }

private:
    NSRunningApplication *const m_application;
};

} // namespace

std::unique_ptr<RunningApplication>
AppKitRunningApplications::applicationWithPid(std::int32_t pid) {
    @autoreleasepool {
        NSRunningApplication *const application =
            [NSRunningApplication runningApplicationWithProcessIdentifier:pid];
        return application ? std::make_unique<AppKitRunningApplication>(application) : nullptr;
    }
}

bool AppKitRunningApplications::isAvailable() const {
    return NSClassFromString(@"NSRunningApplication") != nil;
}

} // namespace zt

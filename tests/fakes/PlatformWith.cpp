// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/fakes/PlatformWith.h"

#include <type_traits>

namespace {

template <typename Service>
Service &realOr(Service *real, std::type_identity_t<Service> &fake) {
    return real ? *real : fake;
}

} // namespace

zt::Platform platformWith(FakePlatform &fakes, const RealServices &real) {
    return {.log = fakes.log,
            .clock = realOr(real.clock, fakes.clock),
            .childProcesses = realOr(real.childProcesses, fakes.childProcesses),
            .bundles = realOr(real.bundles, fakes.bundles),
            .userDefaults = fakes.userDefaults,
            .systemVersion = fakes.systemVersion,
            .loginItems = fakes.loginItems,
            .workspace = realOr(real.workspace, fakes.workspace),
            .appearance = fakes.appearance,
            .trash = fakes.trash,
            .windowSystem = realOr(real.windowSystem, fakes.windowSystem),
            .processManager = realOr(real.processManager, fakes.processManager),
            .runningApplications = realOr(real.runningApplications, fakes.runningApplications),
            .applicationEvents = realOr(real.applicationEvents, fakes.applicationEvents),
            .accessibility = fakes.accessibility,
            .authorization = fakes.authorization,
            .keyboardLayout = fakes.keyboardLayout,
            .sounds = realOr(real.sounds, fakes.sounds),
            .menuBarEvents = fakes.menuBarEvents,
            .pasteboard = fakes.pasteboard,
            .userInput = fakes.userInput,
            .fileSystems = fakes.fileSystems,
            .interruptions = fakes.interruptions};
}

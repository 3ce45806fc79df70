#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A platform of fakes in which some services are real.

#include "tests/fakes/FakePlatform.h"

// The services that tests have real ones for; null for the fake.
struct RealServices {
    zt::Clock *clock = nullptr;
    zt::ChildProcesses *childProcesses = nullptr;
    zt::Bundles *bundles = nullptr;
    zt::Workspace *workspace = nullptr;
    zt::WindowSystem *windowSystem = nullptr;
    zt::ProcessManager *processManager = nullptr;
    zt::RunningApplications *runningApplications = nullptr;
    zt::ApplicationEvents *applicationEvents = nullptr;
    zt::Sounds *sounds = nullptr;
};

// All of them outlive the answer.
zt::Platform platformWith(FakePlatform &fakes, const RealServices &real);

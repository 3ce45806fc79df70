// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The contracts of services, kept by those of macOS against stand-ins for the native functions.

#include "Platform/macos/CarbonMenuBarEvents.h"
#include "Platform/macos/CarbonProcessManager.h"
#include "Platform/macos/HidUserInput.h"
#include "Platform/macos/VolumeFileSystems.h"

#include "tests/desktop/environment/MenuBarEventsContract.h"
#include "tests/desktop/environment/UserInputContract.h"
#include "tests/fakes/FakeChildProcesses.h"
#include "tests/fakes/FakePlatform.h"
#include "tests/unit/macos/StandInTest.h"
#include "tests/unit/platform/FileSystemsContract.h"
#include "tests/unit/process/ProcessManagerContract.h"

namespace {

// Members are made in their order: the stand-ins are there before the service, and look for what
// is left when it has gone.
struct ProcessManagerCase {
    ProcessManagerCase() {
        standin::session.start({.pid = 1, .name = "tests"});
        standin::session.current = 1;
    }
    std::int32_t start() {
        standin::session.start({.pid = ++lastPid,
                                .name = contractName.toStdString(),
                                .signature = contractSignature,
                                .displayName = contractName,
                                .location = QStringLiteral("/Applications/Sample.app"),
                                .information = {{QStringLiteral("pid"), lastPid}}});
        return lastPid;
    }
    static void end(std::int32_t pid) { standin::session.end(pid); }
    static void bringToFront(std::int32_t pid) { standin::session.bringToFront(pid); }
    static std::int32_t ownPid() { return 1; }

    StandIns standIns;
    FakeChildProcesses childProcesses;
    FakeBundles bundles;
    zt::CarbonProcessManager manager{childProcesses, bundles};
    std::int32_t lastPid = 1;
};
INSTANTIATE_TYPED_TEST_SUITE_P(MacOS, ProcessManagerContractTest, ProcessManagerCase);

struct MenuBarEventsCase {
    static void hide() { standin::eventHandlers.send(kEventClassMenu, kEventMenuBarHidden); }
    static void show() { standin::eventHandlers.send(kEventClassMenu, kEventMenuBarShown); }

    StandIns standIns;
    zt::CarbonMenuBarEvents events;
};
INSTANTIATE_TYPED_TEST_SUITE_P(MacOS, MenuBarEventsContractTest, MenuBarEventsCase);

struct UserInputCase {
    static void idleFor(std::chrono::nanoseconds time) {
        standin::hid.services = {{{QStringLiteral("HIDIdleTime"), qlonglong(time.count())}}};
    }
    static void pressKey() { idleFor(std::chrono::nanoseconds(0)); }

    StandIns standIns;
    zt::HidUserInput input;
};
INSTANTIATE_TYPED_TEST_SUITE_P(MacOS, UserInputContractTest, UserInputCase);

struct FileSystemsCase {
    FileSystemsCase() {
        standin::volumes.typeNames[path.toStdString()] = typeName.toStdString();
        standin::volumes.availableBlocks = 3;
    }

    StandIns standIns;
    QString path = QStringLiteral("/Applications");
    QString typeName = QStringLiteral("apfs");
    std::uint64_t availableBytes = 12'288;
    zt::VolumeFileSystems fileSystems;
};
INSTANTIATE_TYPED_TEST_SUITE_P(MacOS, FileSystemsContractTest, FileSystemsCase);

} // namespace

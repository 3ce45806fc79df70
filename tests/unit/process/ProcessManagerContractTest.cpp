// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What every process manager does, shown by that of this system and by the fake.

#include "Platform/linux/LinuxBundles.h"
#include "Platform/linux/ProcProcessManager.h"

#include "tests/fakes/FakeProcessManager.h"
#include "tests/fakes/FakeWindowSystem.h"
#include "tests/unit/process/ChildProcess.h"
#include "tests/unit/process/ProcessManagerContract.h"
#include "tests/unit/process/TestBundles.h"

#include <algorithm>
#include <list>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

struct RealCase {
    std::int32_t start() {
        children.emplace_back(std::vector<std::string>{TestBundles::program(bundle), "600"});
        return children.back().pid();
    }
    void end(std::int32_t pid) {
        const auto child = std::ranges::find(children, pid, &ChildProcess::pid);
        children.erase(child);
    }
    void bringToFront(std::int32_t pid) {
        windows.front = pid;
        if (windows.tellFrontChanged)
            windows.tellFrontChanged();
    }
    static std::int32_t ownPid() { return ::getpid(); }

    TestBundles bundles;
    QString bundle = bundles.add(
        contractName, {{u"CFBundleName"_s, contractName}, {u"CFBundleSignature"_s, u"smPL"_s}});
    FakeWindowSystem windows;
    zt::LinuxBundles reader{u"/usr/bin/none"_s};
    zt::ProcProcessManager manager{reader, windows};
    std::list<ChildProcess> children;
};

struct FakeCase {
    FakeCase() {
        manager.start(1, {.name = u"tests"_s, .isApplication = false});
        manager.setCurrent(1);
    }
    std::int32_t start() {
        manager.start(++lastPid, {.name = contractName, .signature = contractSignature});
        return lastPid;
    }
    void end(std::int32_t pid) { manager.end(pid); }
    void bringToFront(std::int32_t pid) { manager.bringToFront(pid); }
    static std::int32_t ownPid() { return 1; }

    FakeProcessManager manager;
    std::int32_t lastPid = 1;
};

using ProcessManagers = testing::Types<RealCase, FakeCase>;
INSTANTIATE_TYPED_TEST_SUITE_P(Services, ProcessManagerContractTest, ProcessManagers);

} // namespace

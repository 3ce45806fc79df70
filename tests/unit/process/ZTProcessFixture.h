#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the tests of the process object share.

#include "ZTStuff/ZTClasses/ZTProcess.h"

#include "tests/fakes/FakePlatform.h"

#include <gtest/gtest.h>

// Nothing is known to the class when a test begins.
class ZTProcessFixture : public testing::Test {
protected:
    ZTProcessFixture() { ZTProcess::platformChanged(); }
    ~ZTProcessFixture() override { ZTProcess::platformChanged(); }

    // Starts a process; the object for it.
    ZTProcess::Pointer start(std::int32_t pid, const FakeProcess &process) {
        return ZTProcess::processWithSerialNumber(manager.start(pid, process));
    }

    FakePlatform platform;
    FakeProcessManager &manager = platform.processManager;
};

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A made-up application that tests quit, bring forward and observe.

#include "ZTStuff/ZTClasses/ZTProcess.h"

#include "tests/fakes/FakePlatform.h"

#include <gtest/gtest.h>

class QuitFixture : public testing::Test {
protected:
    static constexpr std::int32_t pid = 42;

    QuitFixture() {
        ZTProcess::platformChanged();
        process = ZTProcess::processWithSerialNumber(
            platform.processManager.start(pid, named("Editor", fourCharCode("EdIt"))));
        script().whenEnded = [this] { platform.processManager.end(pid); };
    }

    ~QuitFixture() override {
        process.reset();
        ZTProcess::platformChanged();
    }

    static FakeProcess named(const char *name, FourCharCode signature = FourCharCodeNone) {
        FakeProcess made;
        made.name = QString::fromUtf8(name);
        made.signature = signature;
        return made;
    }

    FakeRunningApplicationScript &script() {
        return platform.runningApplications.applications[pid];
    }
    QStringList log() const { return platform.log.lines(); }

    FakePlatform platform;
    ZTProcess::Pointer process;
};

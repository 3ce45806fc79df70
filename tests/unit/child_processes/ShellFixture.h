#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Real scripts on a clock of the test's own.

#include "Platform/linux/SpawnedChildProcesses.h"

#include "ZTStuff/ZTClasses/ZTUtilities.h"
#include "tests/Waiting.h"

#include "tests/fakes/PlatformWith.h"
#include "tests/unit/copy/ScopedEnvironment.h"
#include "tests/unit/copy/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include <sys/types.h>

// Its time passes only in sleeps, and not before the condition holds.
class ConditionalClock final : public zt::Clock {
public:
    std::chrono::system_clock::time_point now() const override { return {}; }
    std::chrono::steady_clock::time_point steadyNow() const override;
    void sleepFor(std::chrono::microseconds duration) override;
    void sleepFor(std::chrono::microseconds duration, const Wait & /*wait*/) override {
        sleepFor(duration);
    }
    void callAfter(std::chrono::milliseconds /*delay*/, std::function<void()> /*action*/) override {
    }

    std::function<bool()> condition; // none: it holds; called on any thread

private:
    std::atomic<std::chrono::microseconds> m_elapsed{};
};

// Whether the process has ended, noticed by its parent or not.
bool isGone(pid_t pid);

// Whether this process has no child, not even one that has ended.
bool hasNoChildren();

std::size_t openDescriptors();

// In a world of its own: home folder, folder for temporary files, log, clock.
class ShellFixture : public testing::Test {
protected:
    // How long programs that were asked to end have for it.
    explicit ShellFixture(std::chrono::milliseconds patience = std::chrono::milliseconds(20));

    // An executable script of the shell with these lines, by its path.
    QString script(const std::string &lines, const std::string &name = "tool") const;

    // The names of the files that are there for temporary content.
    std::vector<std::string> temporaryFiles() const;

    // The clock stands still until the file has a whole line.
    void holdClockUntil(const std::string &file);

    // The number in the first line of the file.
    static pid_t processIn(const std::string &file);

    static constexpr double endless = 1e9; // seconds

    zt::testing::TemporaryFolder folder;
    zt::testing::ScopedEnvironment home{"HOME", folder.makeFolder("home")};
    zt::testing::ScopedEnvironment temporary{"TMPDIR", folder.makeFolder("temporary")};
    FakePlatform fakes;
    ConditionalClock clock;
    zt::SpawnedChildProcesses childProcesses;
    zt::Platform services =
        platformWith(fakes, {.clock = &clock, .childProcesses = &childProcesses});
    zt::ScopedPlatform current{services};
};

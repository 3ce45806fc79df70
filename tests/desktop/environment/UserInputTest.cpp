// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The user's idle time, by a real X server and by the fake.

#include "Platform/linux/X11UserInput.h"

#include "tests/Waiting.h"
#include "tests/desktop/environment/UserInputContract.h"
#include "tests/desktop/environment/XServer.h"
#include "tests/fakes/FakeUserInput.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

struct X11Case {
    void idleFor(std::chrono::milliseconds time) {
        EXPECT_TRUE(eventually([&] { return input.idleTime() >= time; }));
    }
    static void pressKey() {
        RunningProgram program({"xdotool", "key", "shift"});
        EXPECT_EQ(program.waitForEnd(), 0);
    }

    zt::X11UserInput input;
};

struct FakeCase {
    void idleFor(std::chrono::milliseconds time) { input.idle = time; }
    void pressKey() { input.idle = 0ns; }

    FakeUserInput input;
};

using UserInputs = testing::Types<X11Case, FakeCase>;
INSTANTIATE_TYPED_TEST_SUITE_P(Services, UserInputContractTest, UserInputs);

} // namespace

TEST(X11UserInputTest, theMouseEndsItToo) {
    zt::X11UserInput input;
    ASSERT_TRUE(eventually([&] { return input.idleTime() >= 200ms; }));
    const auto before = std::chrono::steady_clock::now();
    RunningProgram program({"xdotool", "mousemove", "10", "20"});
    ASSERT_EQ(program.waitForEnd(), 0);
    const auto idle = input.idleTime();
    EXPECT_LE(idle, std::chrono::steady_clock::now() - before + 2ms);
}

TEST(X11UserInputTest, withoutTheExtensionNothingIsKnown) {
    const XServer server("MIT-SCREEN-SAVER");
    zt::X11UserInput input;
    EXPECT_EQ(input.idleTime(), std::nullopt);
    EXPECT_EQ(input.idleTime(), std::nullopt);
}

TEST(X11UserInputTest, withoutAServerNothingIsKnownUntilOneComes) {
    zt::X11UserInput input;
    {
        const zt::testing::ScopedEnvironment display("DISPLAY", std::nullopt);
        EXPECT_EQ(input.idleTime(), std::nullopt);
    }
    EXPECT_NE(input.idleTime(), std::nullopt);
}

TEST(X11UserInputTest, inAWaylandSessionTheServerSeesTooLittle) {
    const zt::testing::ScopedEnvironment compositor("WAYLAND_DISPLAY", "wayland-0");
    zt::X11UserInput input;
    EXPECT_EQ(input.idleTime(), std::nullopt);
}

TEST(X11UserInputTest, anotherServerIsAskedWhenTheFirstHasEnded) {
    zt::X11UserInput input;
    {
        const XServer server("MIT-SHM");
        ASSERT_NE(input.idleTime(), std::nullopt);
    }
    EXPECT_TRUE(eventually([&] { return input.idleTime() != std::nullopt; }));
}

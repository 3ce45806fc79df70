// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Windows that fill the screen, under a real window manager and with the fake.

#include "Platform/linux/X11MenuBarEvents.h"
#include "tests/Waiting.h"

#include "tests/desktop/environment/MenuBarEventsContract.h"
#include "tests/desktop/environment/XServer.h"
#include "tests/desktop/process/WindowStack.h"
#include "tests/fakes/FakeMenuBarEvents.h"

#include <memory>

using testing::ElementsAre;
using testing::IsEmpty;
using zt::MenuBarEvents;

namespace {

using Types = MenuBarEventTypes;

constexpr auto both = bothMenuBarEvents;

bool isInFront(const std::string &title) {
    RunningProgram program({"xdotool", "getactivewindow", "getwindowname"});
    return program.waitForLine(title);
}

// To the window in front.
void pressF11() {
    RunningProgram program({"xdotool", "key", "F11"});
    ASSERT_EQ(program.waitForEnd(), 0);
}

// A program that hides the menu bar and shows it again.
struct X11Case {
    X11Case() {
        EXPECT_TRUE(program.waitForLine("ready"));
        EXPECT_TRUE(eventually([] { return isInFront("first"); }));
    }
    static void hide() { pressF11(); }
    static void show() { pressF11(); }

    RunningProgram program{{WINDOWED_PROGRAM, "closes"}};
    zt::X11MenuBarEvents events;
};

struct FakeCase {
    void hide() { events.send(MenuBarEvents::hidden); }
    void show() { events.send(MenuBarEvents::shown); }

    FakeMenuBarEvents events;
};

using Implementations = testing::Types<X11Case, FakeCase>;
INSTANTIATE_TYPED_TEST_SUITE_P(Services, MenuBarEventsContractTest, Implementations);

class X11MenuBarEventsTest : public testing::Test {
protected:
    void listen() { ASSERT_TRUE(events.installHandler(both, keepIn(heard))); }
    bool comesToBeHeard(const Types &types) {
        return eventually([&] { return heard == types; });
    }

    zt::X11MenuBarEvents events;
    Types heard;
};

} // namespace

TEST_F(X11MenuBarEventsTest, anotherProgramInFrontShowsTheMenuBar) {
    RunningProgram program({WINDOWED_PROGRAM, "closes"});
    ASSERT_TRUE(eventually([] { return isInFront("first"); }));
    listen();
    pressF11();
    ASSERT_TRUE(comesToBeHeard({MenuBarEvents::hidden}));
    RunningProgram other({"xmessage", "-title", "message", "Hello"});
    ASSERT_TRUE(eventually([] { return windowTitlesFromBottomToTop().size() == 2; }));
    activateWindow("message");
    EXPECT_TRUE(comesToBeHeard({MenuBarEvents::hidden, MenuBarEvents::shown}));
    activateWindow("first");
    EXPECT_TRUE(
        comesToBeHeard({MenuBarEvents::hidden, MenuBarEvents::shown, MenuBarEvents::hidden}));
}

TEST_F(X11MenuBarEventsTest, theEndOfTheProgramShowsTheMenuBar) {
    auto program =
        std::make_unique<RunningProgram>(std::vector<std::string>{WINDOWED_PROGRAM, "closes"});
    ASSERT_TRUE(eventually([] { return isInFront("first"); }));
    listen();
    pressF11();
    ASSERT_TRUE(comesToBeHeard({MenuBarEvents::hidden}));
    program.reset();
    EXPECT_TRUE(comesToBeHeard({MenuBarEvents::hidden, MenuBarEvents::shown}));
}

TEST_F(X11MenuBarEventsTest, whatIsHiddenAlreadyIsNoEvent) {
    RunningProgram program({WINDOWED_PROGRAM, "closes"});
    ASSERT_TRUE(eventually([] { return isInFront("first"); }));
    zt::X11MenuBarEvents earlier;
    Types heardEarlier;
    ASSERT_TRUE(earlier.installHandler(both, keepIn(heardEarlier)));
    pressF11();
    ASSERT_TRUE(eventually([&] { return heardEarlier.size() == 1; }));
    listen();
    pressF11();
    EXPECT_TRUE(comesToBeHeard({MenuBarEvents::shown}));
}

TEST_F(X11MenuBarEventsTest, aHandlerMayInstallAnother) {
    RunningProgram program({WINDOWED_PROGRAM, "closes"});
    ASSERT_TRUE(eventually([] { return isInFront("first"); }));
    int calls = 0;
    ASSERT_TRUE(events.installHandler(both, [&](MenuBarEvents::Type) {
        if (++calls == 1)
            events.installHandler(both, keepIn(heard));
        return MenuBarEvents::notHandled;
    }));
    pressF11();
    ASSERT_TRUE(eventually([&] { return calls == 1; }));
    EXPECT_THAT(heard, IsEmpty());
    pressF11();
    EXPECT_TRUE(eventually([&] { return calls == 2; }));
    EXPECT_THAT(heard, ElementsAre(MenuBarEvents::shown));
}

TEST_F(X11MenuBarEventsTest, withoutAServerThereAreNoEvents) {
    const zt::testing::ScopedEnvironment display("DISPLAY", std::nullopt);
    EXPECT_FALSE(events.installHandler(both, keepIn(heard)));
}

TEST_F(X11MenuBarEventsTest, withoutAWindowManagerThereAreNoEvents) {
    const XServer server("MIT-SHM");
    EXPECT_FALSE(events.installHandler(both, keepIn(heard)));
}

TEST_F(X11MenuBarEventsTest, inAWaylandSessionTheServerSeesTooLittle) {
    const zt::testing::ScopedEnvironment compositor("WAYLAND_DISPLAY", "wayland-0");
    EXPECT_FALSE(events.installHandler(both, keepIn(heard)));
}

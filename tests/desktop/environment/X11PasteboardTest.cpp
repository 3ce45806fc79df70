// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The clipboard of a real X server.

#include "Platform/linux/X11Pasteboard.h"

#include "tests/Waiting.h"
#include "tests/desktop/environment/SelectionOwner.h"
#include "tests/desktop/environment/XServer.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

class X11PasteboardTest : public testing::Test {
protected:
    // How much further the count is than at the last call.
    std::int32_t changes() {
        const std::int32_t count = pasteboard.changeCount().value_or(0);
        return count - std::exchange(m_count, count);
    }

    zt::X11Pasteboard pasteboard;

private:
    std::int32_t m_count = pasteboard.changeCount().value_or(0);
};

} // namespace

TEST_F(X11PasteboardTest, aRealProgramsCopyingIsCounted) {
    RunningProgram program({"sh", "-c", "echo text | xclip -selection clipboard"});
    EXPECT_EQ(program.waitForEnd(), 0);
    EXPECT_TRUE(eventually([this] { return changes() == 1; }));
}

TEST_F(X11PasteboardTest, theSameProgramMayCopyAgain) {
    SelectionOwner program;
    program.own("CLIPBOARD");
    program.own("CLIPBOARD");
    EXPECT_EQ(changes(), 2);
}

TEST_F(X11PasteboardTest, clearingIsAChange) {
    SelectionOwner program;
    program.own("CLIPBOARD");
    EXPECT_EQ(changes(), 1);
    program.disown("CLIPBOARD");
    EXPECT_EQ(changes(), 1);
}

TEST_F(X11PasteboardTest, choosingTextsIsNoCopying) {
    SelectionOwner program;
    program.own("PRIMARY");
    EXPECT_EQ(changes(), 0);
}

TEST_F(X11PasteboardTest, aProgramThatEndsTakesItsContentAwayAndChangesNothing) {
    std::optional<SelectionOwner> program(std::in_place);
    program->own("CLIPBOARD");
    EXPECT_EQ(changes(), 1);
    program.reset();
    SelectionOwner another;
    another.own("CLIPBOARD"); // after which the end of the first is known
    EXPECT_EQ(changes(), 1);
}

TEST_F(X11PasteboardTest, aManagerThatTakesTheContentOverChangesNothing) {
    SelectionOwner manager;
    manager.own("CLIPBOARD_MANAGER");
    {
        SelectionOwner program;
        program.own("CLIPBOARD");
        EXPECT_EQ(changes(), 1);
        manager.own("CLIPBOARD"); // which the program asks for before it ends
    }
    EXPECT_EQ(changes(), 0);
    SelectionOwner next;
    next.own("CLIPBOARD");
    EXPECT_EQ(changes(), 1);
}

TEST_F(X11PasteboardTest, aManagerThatWasThereBeforeTheFirstQuestionIsKnown) {
    SelectionOwner manager;
    manager.own("CLIPBOARD_MANAGER");
    zt::X11Pasteboard late;
    const auto count = late.changeCount();
    manager.own("CLIPBOARD");
    EXPECT_EQ(late.changeCount(), count);
}

TEST_F(X11PasteboardTest, whoIsNoManagerAnyMoreCopiesLikeOthers) {
    SelectionOwner former;
    former.own("CLIPBOARD_MANAGER");
    SelectionOwner manager;
    manager.own("CLIPBOARD_MANAGER");
    former.own("CLIPBOARD");
    EXPECT_EQ(changes(), 1);
    manager.own("CLIPBOARD");
    EXPECT_EQ(changes(), 0);
}

TEST_F(X11PasteboardTest, theOrderOfChangesCountsAndNotWhenTheyAreAskedFor) {
    SelectionOwner program;
    program.own("CLIPBOARD");
    program.own("CLIPBOARD_MANAGER"); // it copied before it was a manager
    EXPECT_EQ(changes(), 1);
}

TEST(X11PasteboardFaultTest, withoutTheExtensionNothingIsKnown) {
    const XServer server("XFIXES");
    zt::X11Pasteboard pasteboard;
    EXPECT_EQ(pasteboard.changeCount(), std::nullopt);
    EXPECT_EQ(pasteboard.changeCount(), std::nullopt);
}

TEST(X11PasteboardFaultTest, withoutAServerNothingIsKnown) {
    const zt::testing::ScopedEnvironment display("DISPLAY", std::nullopt);
    zt::X11Pasteboard pasteboard;
    EXPECT_EQ(pasteboard.changeCount(), std::nullopt);
}

TEST(X11PasteboardFaultTest, inAWaylandSessionTheServerSeesTooLittle) {
    const zt::testing::ScopedEnvironment compositor("WAYLAND_DISPLAY", "wayland-0");
    zt::X11Pasteboard pasteboard;
    EXPECT_EQ(pasteboard.changeCount(), std::nullopt);
}

TEST(X11PasteboardFaultTest, whenTheServerEndsNothingIsKnownAnyMore) {
    zt::X11Pasteboard pasteboard;
    {
        const XServer server("MIT-SHM");
        EXPECT_NE(pasteboard.changeCount(), std::nullopt);
    }
    EXPECT_TRUE(eventually([&] { return pasteboard.changeCount() == std::nullopt; }));
    EXPECT_EQ(pasteboard.changeCount(), std::nullopt) << "no matter that there is another server";
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/NotificationCenter.h"
#include "ZTStuff/ZTClasses/ZTProcess.h"

#include "tests/fakes/FakePlatform.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr std::int32_t editor = 10;
constexpr std::int32_t browser = 11;
constexpr std::int32_t terminal = 12;

class ZTUtilitiesClipboardTest : public testing::Test {
protected:
    ZTUtilitiesClipboardTest() {
        forget();
        manager.start(editor, {.name = u"Editor"_s});
        manager.start(browser, {.name = u"Browser"_s});
        manager.start(terminal, {.name = u"Terminal"_s});
    }

    ~ZTUtilitiesClipboardTest() override {
        runEvents(); // nothing is left over for the next test
        forget();
    }

    static void forget() {
        ZTUtilities::platformChanged();
        ZTProcess::platformChanged();
    }

    static void runEvents() { QCoreApplication::processEvents(); }

    // The watcher runs from here on, with the process in front.
    void watchWithInFront(std::int32_t pid) {
        ZTUtilities::initialize();
        platform.clock.advance(1s);
        switchTo(pid);
    }

    void switchTo(std::int32_t pid) {
        manager.bringToFront(pid);
        runEvents();
    }

    void copy() { platform.pasteboard.change(); }

    static QString publisher() {
        const ZTProcess::Pointer process = ZTUtilities::clipboardPublisherProcess();
        return process ? process->name().value_or(u"ended"_s) : u"nobody"_s;
    }

    FakePlatform platform;
    FakeProcessManager &manager = platform.processManager;
};

} // namespace

TEST_F(ZTUtilitiesClipboardTest, theWatcherIsInstalledOnceASecondLater) {
    ZTUtilities::initialize();
    ZTUtilities::initialize();
    platform.clock.advance(999ms);
    EXPECT_EQ(manager.listenerChanges(), 0);
    platform.clock.advance(1ms);
    EXPECT_EQ(manager.listenerChanges(), 1);
    platform.clock.advance(10s);
    EXPECT_EQ(manager.listenerChanges(), 1);
}

TEST_F(ZTUtilitiesClipboardTest, whoCopiedBeforeTheWatchBeganIsUnknown) {
    copy();
    switchTo(editor);
    EXPECT_EQ(publisher(), u"nobody"_s);
}

TEST_F(ZTUtilitiesClipboardTest, theFirstQuestionBeginsTheWatch) {
    manager.bringToFront(editor);
    EXPECT_EQ(publisher(), u"nobody"_s);
    platform.clock.advance(1s);
    copy();
    switchTo(browser);
    switchTo(terminal);
    EXPECT_EQ(publisher(), u"Editor"_s);
}

TEST_F(ZTUtilitiesClipboardTest, itIsTheProcessInFrontWhoseTurnTheChangeFellInto) {
    watchWithInFront(editor);
    copy();
    switchTo(browser);
    EXPECT_EQ(publisher(), u"Editor"_s);
    copy();
    EXPECT_EQ(publisher(), u"Browser"_s) << "at once, before any further switch";
    switchTo(terminal);
    EXPECT_EQ(publisher(), u"Browser"_s);
    switchTo(editor);
    switchTo(browser);
    EXPECT_EQ(publisher(), u"Browser"_s) << "whatever is in front, as long as nothing is copied";
}

TEST_F(ZTUtilitiesClipboardTest, theQuestionCatchesUpWithASwitchThatTheWatcherHasNotSeen) {
    watchWithInFront(editor);
    copy();
    manager.bringToFront(browser); // and no event is handled
    EXPECT_EQ(publisher(), u"Editor"_s);
    copy();
    EXPECT_EQ(publisher(), u"Browser"_s);
}

TEST_F(ZTUtilitiesClipboardTest, otherChangesOfProcessesAreNoSwitch) {
    watchWithInFront(editor);
    copy();
    manager.start(13, {.name = u"Another"_s});
    runEvents();
    manager.end(13);
    runEvents();
    EXPECT_EQ(publisher(), u"Editor"_s);
}

TEST_F(ZTUtilitiesClipboardTest, aPublisherThatHasEndedIsStillNamed) {
    watchWithInFront(editor);
    const ZTProcess::Pointer kept = ZTProcess::frontProcess();
    ASSERT_EQ(kept->name(), u"Editor"_s); // which it goes on answering
    copy();
    switchTo(browser);
    manager.end(editor);
    runEvents();
    EXPECT_EQ(publisher(), u"Editor"_s);
    EXPECT_EQ(ZTUtilities::clipboardPublisherProcess(), kept) << "the same object";
}

TEST_F(ZTUtilitiesClipboardTest, aChangeWithNobodyInFrontIsNobodys) {
    watchWithInFront(editor);
    manager.end(editor);
    ASSERT_EQ(ZTProcess::frontProcess(), nullptr);
    EXPECT_EQ(publisher(), u"nobody"_s);
    copy();
    EXPECT_EQ(publisher(), u"nobody"_s);
    switchTo(browser);
    EXPECT_EQ(publisher(), u"nobody"_s) << "and not the next one's either";
}

TEST_F(ZTUtilitiesClipboardTest, aClipboardThatTellsNothingIsNotedOnce) {
    platform.pasteboard.count.reset();
    watchWithInFront(editor);
    switchTo(browser);
    EXPECT_EQ(publisher(), u"nobody"_s);
    EXPECT_EQ(publisher(), u"nobody"_s);
    EXPECT_EQ(platform.log.lines(),
              QStringList{u"The desktop does not tell who changes the clipboard."_s});
}

TEST_F(ZTUtilitiesClipboardTest, aCountThatBeginsLateAccusesNobody) {
    platform.pasteboard.count.reset();
    watchWithInFront(editor);
    platform.pasteboard.count = 7;
    EXPECT_EQ(publisher(), u"nobody"_s);
    switchTo(browser);
    EXPECT_EQ(publisher(), u"nobody"_s);
    copy();
    EXPECT_EQ(publisher(), u"Browser"_s);
}

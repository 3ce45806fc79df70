// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What real programs of two toolkits tell assistive technology.

#include "Platform/linux/AtSpiAccessibility.h"

#include "tests/Waiting.h"
#include "tests/desktop/process/WindowStack.h"
#include "tests/programs/RunningProgram.h"

#include <QProcess>
#include <QStringList>

#include <gtest/gtest.h>

#include <algorithm>

#include <signal.h> // kill

using namespace Qt::StringLiterals;

namespace {

const std::vector<std::string> gtkEntry = {"zenity", "--entry", "--title=first",
                                           "--text=What is your name?"};

void press(const QString &key) {
    QProcess::execute(u"xdotool"_s, {u"key"_s, key});
}

class AtSpiAccessibilityTest : public testing::Test {
protected:
    struct Heard {
        QString element;
        QString notification;
    };

    static void SetUpTestSuite() { qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1"_ba); }

    bool isShown(const RunningProgram &program) {
        return eventually([&] { return bool(accessibility.checkApplication(program.pid())); });
    }

    std::unique_ptr<zt::AccessibilityObserver> observe(const RunningProgram &program) {
        auto observer = accessibility.observeApplication(
            program.pid(), [this](const QString &element, const QString &notification) {
                heard.push_back({element, notification});
            });
        EXPECT_TRUE(observer);
        return observer ? std::move(*observer) : nullptr;
    }

    bool hears(const QString &notification) {
        return eventually([&] {
            return std::any_of(heard.begin(), heard.end(),
                               [&](const Heard &one) { return one.notification == notification; });
        });
    }

    zt::AtSpiAccessibility accessibility;
    std::vector<Heard> heard;
};

} // namespace

TEST_F(AtSpiAccessibilityTest, theFocusIsFollowedInBothToolkits) {
    for (const std::vector<std::string> &commandLine :
         {std::vector<std::string>{WINDOWED_PROGRAM, "closes"}, gtkEntry}) {
        SCOPED_TRACE(commandLine[0]);
        heard.clear();
        const RunningProgram program(commandLine);
        ASSERT_TRUE(isShown(program));
        ASSERT_TRUE(eventually([] { return !windowTitlesFromBottomToTop().empty(); }));
        const auto observer = observe(program);
        ASSERT_TRUE(observer);
        ASSERT_TRUE(observer->addNotification(u"AXFocusedUIElementChanged"_s));
        EXPECT_TRUE(eventually([&] {
            press(u"Tab"_s);
            return !heard.empty();
        }));
        ASSERT_FALSE(heard.empty());
        EXPECT_EQ(heard[0].notification, u"AXFocusedUIElementChanged");
        EXPECT_FALSE(heard[0].element.isEmpty());
    }
}

TEST_F(AtSpiAccessibilityTest, anElementIsDescribedByItsRoleAndName) {
    const RunningProgram program({WINDOWED_PROGRAM, "closes"});
    ASSERT_TRUE(isShown(program));
    ASSERT_TRUE(eventually([] { return !windowTitlesFromBottomToTop().empty(); }));
    const auto observer = observe(program);
    ASSERT_TRUE(observer->addNotification(u"object:state-changed:focused"_s));
    EXPECT_TRUE(eventually([&] {
        press(u"Tab"_s);
        return std::any_of(heard.begin(), heard.end(),
                           [](const Heard &one) { return one.element == u"text \"Place\""; });
    })) << (heard.empty() ? "nothing heard" : qPrintable(heard.back().element));
}

TEST_F(AtSpiAccessibilityTest, theNameOnTheBusServesToo) {
    const RunningProgram program({WINDOWED_PROGRAM, "two-windows"});
    ASSERT_TRUE(isShown(program));
    ASSERT_TRUE(eventually([] { return windowTitlesFromBottomToTop().size() == 2; }));
    const auto observer = observe(program);
    ASSERT_TRUE(observer->addNotification(u"window:activate"_s));
    ASSERT_TRUE(observer->addNotification(u"AXFocusedWindowChanged"_s));
    EXPECT_TRUE(eventually([&] {
        activateWindow("first");
        activateWindow("second");
        return heard.size() >= 2;
    }));
    EXPECT_TRUE(hears(u"window:activate"_s));
    EXPECT_TRUE(hears(u"AXFocusedWindowChanged"_s));
}

TEST_F(AtSpiAccessibilityTest, whatWasRemovedIsNotHeardAndWhatStaysIs) {
    const RunningProgram program({WINDOWED_PROGRAM, "two-windows"});
    ASSERT_TRUE(isShown(program));
    ASSERT_TRUE(eventually([] { return windowTitlesFromBottomToTop().size() == 2; }));
    const auto observer = observe(program);
    ASSERT_TRUE(observer->addNotification(u"window:activate"_s));
    ASSERT_TRUE(observer->addNotification(u"window:deactivate"_s));
    observer->removeNotification(u"window:deactivate"_s);
    EXPECT_TRUE(eventually([&] {
        activateWindow("first");
        activateWindow("second");
        return heard.size() >= 4;
    }));
    for (const Heard &one : heard)
        EXPECT_EQ(one.notification, u"window:activate");
}

TEST_F(AtSpiAccessibilityTest, otherProgramsAreNotHeard) {
    const RunningProgram program({WINDOWED_PROGRAM, "closes"});
    ASSERT_TRUE(isShown(program));
    const auto observer = observe(program);
    ASSERT_TRUE(observer->addNotification(u"window:activate"_s));
    // Somebody who does hear the other program tells when there would have been something to hear.
    const RunningProgram other({WINDOWED_PROGRAM, "two-windows"});
    ASSERT_TRUE(isShown(other));
    ASSERT_TRUE(eventually([] { return windowTitlesFromBottomToTop().size() == 3; }));
    int heardFromOther = 0;
    auto otherObserver = accessibility.observeApplication(
        other.pid(), [&](const QString &, const QString &) { ++heardFromOther; });
    ASSERT_TRUE(otherObserver);
    ASSERT_TRUE((*otherObserver)->addNotification(u"window:activate"_s));
    ASSERT_TRUE((*otherObserver)->addNotification(u"window:activate"_s)) << "twice is once";
    heard.clear();
    EXPECT_TRUE(eventually([&] {
        activateWindow("second");
        press(u"Tab"_s);
        if (heardFromOther == 0)
            QProcess::execute(u"xdotool"_s, {u"getactivewindow"_s, u"windowminimize"_s});
        return heardFromOther > 0;
    }));
}

TEST_F(AtSpiAccessibilityTest, theHandlerMayEndTheObservation) {
    const RunningProgram program({WINDOWED_PROGRAM, "two-windows"});
    ASSERT_TRUE(isShown(program));
    ASSERT_TRUE(eventually([] { return windowTitlesFromBottomToTop().size() == 2; }));
    std::unique_ptr<zt::AccessibilityObserver> observer;
    int calls = 0;
    auto made =
        accessibility.observeApplication(program.pid(), [&](const QString &, const QString &) {
            ++calls;
            observer.reset();
        });
    ASSERT_TRUE(made);
    observer = std::move(*made);
    ASSERT_TRUE(observer->addNotification(u"window:activate"_s));
    EXPECT_TRUE(eventually([&] {
        activateWindow("first");
        activateWindow("second");
        return calls > 0;
    }));
    EXPECT_EQ(calls, 1);
    EXPECT_FALSE(observer);
}

TEST_F(AtSpiAccessibilityTest, aProgramThatEndsIsNotShownAnyMore) {
    RunningProgram program({WINDOWED_PROGRAM, "closes"});
    ASSERT_TRUE(isShown(program));
    const auto observer = observe(program);
    ASSERT_TRUE(observer->addNotification(u"window:activate"_s));
    ASSERT_EQ(::kill(program.pid(), SIGKILL), 0);
    program.waitForEnd();
    EXPECT_TRUE(eventually([&] { return !accessibility.checkApplication(program.pid()); }));
    observer->removeNotification(u"window:activate"_s);
}

TEST_F(AtSpiAccessibilityTest, aProgramWithoutAUserInterfaceIsRefused) {
    RunningProgram program({PLAIN_PROGRAM, "quits"});
    const zt::Result<void> checked = accessibility.checkApplication(program.pid());
    ASSERT_FALSE(checked);
    EXPECT_EQ(checked.error().cause, "it shows none");
    EXPECT_FALSE(accessibility.checkApplication(0));
    EXPECT_FALSE(accessibility.observeApplication(program.pid(), {}));
}

TEST_F(AtSpiAccessibilityTest, anUnknownNotificationIsRefused) {
    const RunningProgram program({WINDOWED_PROGRAM, "closes"});
    ASSERT_TRUE(isShown(program));
    const auto observer = observe(program);
    EXPECT_FALSE(observer->addNotification(u"AXNonsense"_s));
}

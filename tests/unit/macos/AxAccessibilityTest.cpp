// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/AxAccessibility.h"

#include "tests/unit/macos/StandInTest.h"

using namespace Qt::StringLiterals;

class AxAccessibilityTest : public StandInTest {
protected:
    std::unique_ptr<zt::AccessibilityObserver> observe(std::int32_t pid) {
        auto observer = accessibility.observeApplication(
            pid, [this](const QString &element, const QString &notification) {
                heard << element + u'|' + notification;
            });
        EXPECT_TRUE(observer);
        return observer ? *std::move(observer) : nullptr;
    }

    QStringList heard;
    zt::AxAccessibility accessibility;
};

TEST_F(AxAccessibilityTest, notificationsAreHeardUntilTheyAreRemoved) {
    const auto observer = observe(5);
    ASSERT_TRUE(observer->addNotification(u"AXMoved"_s));
    standin::userInterfaces.notify(5, u"AXMoved"_s, u"window"_s, u"Notes"_s);
    standin::userInterfaces.notify(5, u"AXResized"_s, u"window"_s, u"Notes"_s);
    standin::userInterfaces.notify(6, u"AXMoved"_s, u"window"_s, u"Other"_s);
    observer->removeNotification(u"AXMoved"_s);
    standin::userInterfaces.notify(5, u"AXMoved"_s, u"window"_s, u"Notes"_s);
    EXPECT_EQ(heard, QStringList{u"window \"Notes\"|AXMoved"_s});
}

TEST_F(AxAccessibilityTest, anElementIsDescribedByWhatItShows) {
    const auto observer = observe(5);
    ASSERT_TRUE(observer->addNotification(u"n"_s));
    standin::userInterfaces.notify(5, u"n"_s, u"button"_s, QString());
    standin::userInterfaces.notify(5, u"n"_s, QString(), u"OK"_s);
    standin::userInterfaces.notify(5, u"n"_s, QString(), QString());
    EXPECT_EQ(heard, (QStringList{u"button|n"_s, u"\"OK\"|n"_s, u"|n"_s}));
}

TEST_F(AxAccessibilityTest, anObserverHearsThroughTheMainLoopAsLongAsItLives) {
    auto observer = observe(5);
    EXPECT_EQ(standin::runLoopSources, 1);
    observer.reset();
    EXPECT_EQ(standin::runLoopSources, 0);
}

TEST_F(AxAccessibilityTest, theHandlerMayDestroyTheObserver) {
    std::unique_ptr<zt::AccessibilityObserver> observer;
    auto made =
        accessibility.observeApplication(5, [&](const QString &, const QString &notification) {
            observer.reset();
            heard << notification;
        });
    ASSERT_TRUE(made);
    observer = *std::move(made);
    ASSERT_TRUE(observer->addNotification(u"n"_s));
    standin::userInterfaces.notify(5, u"n"_s, u"button"_s, u"OK"_s);
    EXPECT_EQ(heard, QStringList{u"n"_s});
}

TEST_F(AxAccessibilityTest, refusalsAreErrors) {
    EXPECT_TRUE(accessibility.checkApplication(5));
    const auto observer = observe(5);
    standin::userInterfaces.answer = kAXErrorCannotComplete;
    const auto added = observer->addNotification(u"AXMoved"_s);
    ASSERT_FALSE(added);
    EXPECT_EQ(added.error().code, kAXErrorCannotComplete);
    EXPECT_FALSE(accessibility.observeApplication(6, {}));
    standin::userInterfaces.hasApplications = false;
    EXPECT_FALSE(accessibility.checkApplication(5));
    EXPECT_FALSE(accessibility.observeApplication(5, {}));
}

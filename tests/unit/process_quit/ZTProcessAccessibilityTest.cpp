// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/process_quit/QuitFixture.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/NotificationCenter.h"

#include <QCoreApplication>

#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QString focusChanged = u"AXFocusedUIElementChanged"_s;
const QString valueChanged = u"AXValueChanged"_s;

class ZTProcessAccessibilityTest : public QuitFixture {
protected:
    ZTProcessAccessibilityTest() {
        accessibility.shownProcesses = {pid};
        accessibility.knownNotifications = {focusChanged, valueChanged};
    }

    static void runLoopOnce() {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

    FakeAccessibility &accessibility = platform.accessibility;
    std::vector<Notification> received;
    NotificationCenter::Observation observation = NotificationCenter::defaultCenter().addObserver(
        ZTProcessUINotification,
        [this](const Notification &notification) { received.push_back(notification); });
};

} // namespace

TEST_F(ZTProcessAccessibilityTest, aNotificationNamesTheProcessTheElementAndTheEvent) {
    process->addAXNotification(focusChanged);
    accessibility.notify(pid, u"text \"Name\""_s, focusChanged);
    EXPECT_TRUE(received.empty()) << "it is posted when the event loop comes round";
    runLoopOnce();
    ASSERT_EQ(received.size(), 1U);
    EXPECT_EQ(received[0].object, process);
    EXPECT_EQ(received[0].userInfo, (QVariantMap{{u"element"_s, u"text \"Name\""_s},
                                                 {u"event"_s, u"AXFocusedUIElementChanged"_s}}));
    EXPECT_TRUE(log().isEmpty());
}

TEST_F(ZTProcessAccessibilityTest, anElementThatIsNotKnownIsEmptyText) {
    process->addAXNotification(focusChanged);
    accessibility.notify(pid, {}, focusChanged);
    runLoopOnce();
    ASSERT_EQ(received.size(), 1U);
    EXPECT_EQ(received[0].userInfo.value(u"element"_s), QVariant(QString()));
}

TEST_F(ZTProcessAccessibilityTest, severalInOnePassOfTheEventLoopAreOneWithTheFirstOnesFacts) {
    process->addAXNotification(focusChanged);
    process->addAXNotification(valueChanged);
    accessibility.notify(pid, u"first"_s, focusChanged);
    accessibility.notify(pid, u"second"_s, valueChanged);
    runLoopOnce();
    ASSERT_EQ(received.size(), 1U);
    EXPECT_EQ(received[0].userInfo.value(u"element"_s), QVariant(u"first"_s));
}

TEST_F(ZTProcessAccessibilityTest, whatWasRemovedIsNotDelivered) {
    process->addAXNotification(focusChanged);
    process->removeAXNotification(focusChanged);
    accessibility.notify(pid, {}, focusChanged);
    runLoopOnce();
    EXPECT_TRUE(received.empty());
}

TEST_F(ZTProcessAccessibilityTest, removingWithoutAddingDoesNothing) {
    process->removeAXNotification(focusChanged);
    EXPECT_EQ(accessibility.checks, 0);
    EXPECT_TRUE(log().isEmpty());
}

TEST_F(ZTProcessAccessibilityTest, oneObserverServesAllNotifications) {
    process->addAXNotification(focusChanged);
    process->addAXNotification(valueChanged);
    EXPECT_EQ(accessibility.observerCount(), 1U);
    EXPECT_EQ(accessibility.checks, 1);
}

TEST_F(ZTProcessAccessibilityTest, aProcessThatShowsNothingIsLoggedAndAskedAgainLater) {
    accessibility.shownProcesses.clear();
    process->installAXObserver();
    const QString failure =
        u"AX Notifications: Could not create application object for Process \"Editor\" (EdIt) 1.0"_s;
    EXPECT_EQ(log(), QStringList{failure});
    accessibility.shownProcesses = {pid};
    process->installAXObserver();
    EXPECT_EQ(log(), QStringList{failure});
    EXPECT_EQ(accessibility.observerCount(), 1U);
}

TEST_F(ZTProcessAccessibilityTest, anObserverThatCannotBeMadeIsLoggedAndNotTriedAgain) {
    accessibility.refusesObservers = true;
    process->installAXObserver();
    EXPECT_EQ(log(),
              QStringList{u"AX Notifications: Could not create observer for Process \"Editor\" "
                          "(EdIt) 1.0"_s});
    platform.log.clear();
    accessibility.refusesObservers = false;
    process->installAXObserver();
    EXPECT_EQ(accessibility.observerCount(), 0U);
    EXPECT_EQ(accessibility.checks, 1);
    EXPECT_TRUE(log().isEmpty());
}

TEST_F(ZTProcessAccessibilityTest, aNotificationThatIsNotKnownIsLogged) {
    process->addAXNotification(u"AXNonsense"_s);
    EXPECT_EQ(log(), QStringList{u"AX Notifications: Could not add notification AXNonsense for "
                                 "Process \"Editor\" (EdIt) 1.0"_s});
}

TEST_F(ZTProcessAccessibilityTest, addingWithoutAnObserverLogsBothFailures) {
    accessibility.shownProcesses.clear();
    process->addAXNotification(focusChanged);
    EXPECT_EQ(log(),
              (QStringList{u"AX Notifications: Could not create application object for Process "
                           "\"Editor\" (EdIt) 1.0"_s,
                           u"AX Notifications: Could not add notification "
                           "AXFocusedUIElementChanged for Process \"Editor\" (EdIt) 1.0"_s}));
}

TEST_F(ZTProcessAccessibilityTest, afterUnregisteringItCanBeInstalledAnew) {
    process->addAXNotification(focusChanged);
    process->unregisterAXNotifications();
    EXPECT_EQ(accessibility.observerCount(), 0U);
    process->addAXNotification(focusChanged);
    accessibility.notify(pid, {}, focusChanged);
    runLoopOnce();
    EXPECT_EQ(received.size(), 1U);
}

TEST_F(ZTProcessAccessibilityTest, theObserverGoesWithTheProcessObject) {
    process->addAXNotification(focusChanged);
    platform.processManager.end(pid);
    ZTProcess::cleanupCache();
    EXPECT_EQ(accessibility.observerCount(), 1U) << "the test still owns the object";
    process.reset();
    EXPECT_EQ(accessibility.observerCount(), 0U);
}

TEST_F(ZTProcessAccessibilityTest, theObserverIsEndedOnTheMainThreadWhoeverLetsGoLast) {
    process->addAXNotification(focusChanged);
    platform.processManager.end(pid);
    ZTProcess::cleanupCache();
    std::thread([last = std::move(process)]() mutable { last.reset(); }).join();
    EXPECT_EQ(accessibility.observerCount(), 1U);
    runLoopOnce();
    EXPECT_EQ(accessibility.observerCount(), 0U);
}

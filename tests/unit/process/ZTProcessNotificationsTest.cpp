// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/unit/process/ZTProcessFixture.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/NotificationCenter.h"

#include "tests/Waiting.h"

#include <thread>

using namespace Qt::StringLiterals;
using Event = zt::ProcessManager::Event;

namespace {

class ZTProcessNotificationsTest : public ZTProcessFixture {
protected:
    ZTProcessNotificationsTest() {
        m_observation = NotificationCenter::defaultCenter().addObserver(
            ZTProcessChangeNotification, [this](const Notification &notification) {
                EXPECT_EQ(notification.object, ZTProcess::classObject());
                m_changes << notification.userInfo.value(u"change"_s).toString();
            });
    }
    ~ZTProcessNotificationsTest() override {
        m_observation = {};
        QCoreApplication::processEvents(); // nothing is left over for the next test
    }

    NotificationCenter::Observation m_observation;
    QStringList m_changes;
};

TEST_F(ZTProcessNotificationsTest, theFirstLookUpListensOnce) {
    EXPECT_FALSE(manager.hasListener());
    ZTProcess::allProcesses();
    EXPECT_TRUE(manager.hasListener());
    ZTProcess::currentProcess();
    ZTProcess::processWithSignature(FourCharCodeNone);
    ZTProcess::installNotifications();
    EXPECT_EQ(manager.listenerChanges(), 1);
}

TEST_F(ZTProcessNotificationsTest, everyKindOfLookUpListens) {
    const std::function<void()> lookUps[] = {
        [] { ZTProcess::allProcesses(); }, [] { ZTProcess::currentProcess(); },
        [] { ZTProcess::processWithSignature(1); },
        [] { ZTProcess::processWithIdentifier(u"x"_s); },
        [] { ZTProcess::processWithSerialNumber({.high = 1, .low = 1}); }};
    int changes = 0;
    for (const auto &lookUp : lookUps) {
        ZTProcess::platformChanged();
        lookUp();
        EXPECT_EQ(manager.listenerChanges(), ++changes);
    }
}

TEST_F(ZTProcessNotificationsTest, aLookUpOnAnotherThreadListensOnTheMainThread) {
    std::thread([] { ZTProcess::allProcesses(); }).join();
    EXPECT_FALSE(manager.hasListener());
    EXPECT_TRUE(eventually([this] { return manager.hasListener(); }));
}

TEST_F(ZTProcessNotificationsTest, eachKindOfChangeIsNamed) {
    ZTProcess::installNotifications();
    manager.start(10, {.name = u"A"_s});
    QCoreApplication::processEvents();
    manager.bringToFront(10);
    QCoreApplication::processEvents();
    manager.end(10);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_changes, (QStringList{u"started"_s, u"front"_s, u"ended"_s}));
}

TEST_F(ZTProcessNotificationsTest, anUnknownChangeHasNoName) {
    ZTProcess::installNotifications();
    manager.tell(static_cast<Event>(99));
    QCoreApplication::processEvents();
    EXPECT_EQ(m_changes, QStringList{QString()});
    EXPECT_EQ(ZTProcess::applicationLaunchEndCount(), 0);
}

TEST_F(ZTProcessNotificationsTest, severalChangesInOneRoundAreOneNotificationOfTheFirst) {
    ZTProcess::installNotifications();
    manager.bringToFront(10);
    manager.bringToFront(11);
    manager.start(12, {.name = u"A"_s});
    EXPECT_TRUE(m_changes.isEmpty());
    QCoreApplication::processEvents();
    EXPECT_EQ(m_changes, QStringList{u"front"_s});
    EXPECT_EQ(ZTProcess::applicationLaunchEndCount(), 1);
}

TEST_F(ZTProcessNotificationsTest, launchesAndEndsAreCounted) {
    ZTProcess::installNotifications();
    const std::int32_t before = ZTProcess::applicationLaunchEndCount();
    manager.start(10, {.name = u"A"_s});
    EXPECT_EQ(ZTProcess::applicationLaunchEndCount(), before + 1);
    manager.bringToFront(10);
    EXPECT_EQ(ZTProcess::applicationLaunchEndCount(), before + 1);
    manager.end(10);
    EXPECT_EQ(ZTProcess::applicationLaunchEndCount(), before + 2);
}

TEST_F(ZTProcessNotificationsTest, anEndedProcessIsGoneFromTheCacheWhenObserversHear) {
    manager.start(10, {.name = u"A"_s});
    const auto serialNumber = ZTProcess::processWithPID(10)->serialNumber();
    manager.end(10);
    EXPECT_FALSE(ZTProcess::cachedProcessWithSerialNumber(serialNumber));
    EXPECT_EQ(ZTProcess::applicationLaunchEndCount(), 1);
}

} // namespace

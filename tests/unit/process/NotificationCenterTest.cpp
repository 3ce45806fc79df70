// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/NotificationCenter.h"

#include "tests/Waiting.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class NotificationCenterTest : public testing::Test {
protected:
    // An observer that writes down the notification's "value".
    NotificationCenter::Observation observe(const QString &name) {
        return m_center.addObserver(name, [this](const Notification &notification) {
            m_seen << notification.userInfo.value(u"value"_s).toString();
        });
    }

    static Notification notification(const QString &name, const QString &value,
                                     std::shared_ptr<const void> object = {}) {
        return {.name = name, .object = std::move(object), .userInfo = {{u"value"_s, value}}};
    }

    NotificationCenter m_center;
    NotificationQueue m_queue{m_center};
    QStringList m_seen;
};

TEST_F(NotificationCenterTest, observersHearOfTheirNameAlone) {
    const auto observation = observe(u"wanted"_s);
    m_center.post(notification(u"wanted"_s, u"a"_s));
    m_center.post(notification(u"other"_s, u"b"_s));
    EXPECT_EQ(m_seen, QStringList{u"a"_s});
}

TEST_F(NotificationCenterTest, anObserverThatWentHearsNothing) {
    auto observation = observe(u"name"_s);
    observation = {};
    m_center.post(notification(u"name"_s, u"a"_s));
    EXPECT_TRUE(m_seen.isEmpty());
}

TEST_F(NotificationCenterTest, anObserverMayTakeAwayTheNextOne) {
    NotificationCenter::Observation second;
    const auto first = m_center.addObserver(
        u"name"_s, [&](const Notification & /*notification*/) { second = {}; });
    second = observe(u"name"_s);
    m_center.post(notification(u"name"_s, u"a"_s));
    EXPECT_TRUE(m_seen.isEmpty());
}

TEST_F(NotificationCenterTest, anObserverThatIsAddedMeanwhileHearsTheNextOne) {
    std::vector<NotificationCenter::Observation> added;
    const auto adding = m_center.addObserver(u"name"_s, [&](const Notification & /*notification*/) {
        if (added.empty())
            added.push_back(observe(u"name"_s));
    });
    m_center.post(notification(u"name"_s, u"a"_s));
    EXPECT_TRUE(m_seen.isEmpty());
    m_center.post(notification(u"name"_s, u"b"_s));
    EXPECT_EQ(m_seen, QStringList{u"b"_s});
}

TEST_F(NotificationCenterTest, aQueuedNotificationWaitsForTheEventLoop) {
    const auto observation = observe(u"name"_s);
    m_queue.enqueue(notification(u"name"_s, u"a"_s));
    EXPECT_TRUE(m_seen.isEmpty());
    QCoreApplication::processEvents();
    EXPECT_EQ(m_seen, QStringList{u"a"_s});
}

TEST_F(NotificationCenterTest, ofSeveralWithOneNameAndSenderTheFirstIsPosted) {
    const auto observation = observe(u"name"_s);
    m_queue.enqueue(notification(u"name"_s, u"a"_s));
    m_queue.enqueue(notification(u"name"_s, u"b"_s));
    QCoreApplication::processEvents();
    EXPECT_EQ(m_seen, QStringList{u"a"_s});
}

TEST_F(NotificationCenterTest, anotherSenderOrNameIsPostedToo) {
    const auto observation = observe(u"name"_s);
    const auto otherObservation = observe(u"other"_s);
    m_queue.enqueue(notification(u"name"_s, u"a"_s));
    m_queue.enqueue(notification(u"name"_s, u"b"_s, std::make_shared<int>(1)));
    m_queue.enqueue(notification(u"other"_s, u"c"_s));
    QCoreApplication::processEvents();
    EXPECT_EQ(m_seen, (QStringList{u"a"_s, u"b"_s, u"c"_s}));
}

TEST_F(NotificationCenterTest, theNextRoundPostsAgain) {
    const auto observation = observe(u"name"_s);
    for (const QString &value : {u"a"_s, u"b"_s}) {
        m_queue.enqueue(notification(u"name"_s, value));
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(m_seen, (QStringList{u"a"_s, u"b"_s}));
}

TEST_F(NotificationCenterTest, whatAnObserverEnqueuesIsNotLost) {
    const auto observation = observe(u"name"_s);
    const auto asking = m_center.addObserver(
        u"name"_s, [this, isFirst = true](const Notification & /*notification*/) mutable {
            if (std::exchange(isFirst, false))
                m_queue.enqueue(notification(u"name"_s, u"b"_s));
        });
    m_queue.enqueue(notification(u"name"_s, u"a"_s));
    EXPECT_TRUE(eventually([this] { return m_seen.size() == 2; }));
    EXPECT_EQ(m_seen, (QStringList{u"a"_s, u"b"_s}));
}

TEST_F(NotificationCenterTest, aSenderLivesUntilItsNotificationWasPosted) {
    std::weak_ptr<const void> sender;
    {
        const auto object = std::make_shared<int>(1);
        sender = object;
        m_queue.enqueue(notification(u"name"_s, u"a"_s, object));
    }
    EXPECT_FALSE(sender.expired());
    QCoreApplication::processEvents();
    EXPECT_TRUE(sender.expired());
}

} // namespace

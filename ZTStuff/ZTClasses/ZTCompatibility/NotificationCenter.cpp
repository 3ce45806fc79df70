// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/NotificationCenter.h"

#include <QThread>

#include <algorithm>

NotificationCenter &NotificationCenter::defaultCenter() {
    // Never destroyed: objects that live as long may still observe or post at the end.
    static auto &center = *new NotificationCenter;
    return center;
}

NotificationCenter::Observation NotificationCenter::addObserver(const QString &name,
                                                                Handler handler) {
    std::erase_if(m_observers, [](const Observer &old) { return old.handler.expired(); });
    auto kept = std::make_shared<const Handler>(std::move(handler));
    m_observers.push_back({name, kept});
    return Observation(std::move(kept));
}

void NotificationCenter::post(const Notification &notification) {
    // The handlers may add observers and take some away, also themselves.
    const std::vector<Observer> observers = m_observers;
    for (const Observer &observer : observers) {
        if (observer.name != notification.name)
            continue;
        if (const std::shared_ptr<const Handler> handler = observer.handler.lock())
            (*handler)(notification);
    }
}

NotificationQueue &NotificationQueue::defaultQueue() {
    static auto &queue = *new NotificationQueue(NotificationCenter::defaultCenter());
    return queue;
}

void NotificationQueue::enqueue(Notification notification) {
    Q_ASSERT(QThread::currentThread() == m_mainThread.thread());
    const bool isKnown = std::ranges::any_of(m_waiting, [&](const Notification &waiting) {
        return waiting.name == notification.name && waiting.object == notification.object;
    });
    if (isKnown)
        return;
    m_waiting.push_back(std::move(notification));
    if (m_waiting.size() == 1)
        QMetaObject::invokeMethod(
            &m_mainThread, [this] { postAll(); }, Qt::QueuedConnection);
}

void NotificationQueue::postAll() {
    // What the observers enqueue waits for the next round.
    for (const Notification &notification : std::exchange(m_waiting, {}))
        m_center.post(notification);
}

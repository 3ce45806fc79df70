#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Notifications inside this application: whoever has something to tell posts one, and everybody who
// observes its name is called.

#include <QObject>
#include <QString>
#include <QVariantMap>

#include <functional>
#include <list>
#include <memory>
#include <vector>

struct Notification {
    QString name;
    std::shared_ptr<const void> object; // the sender; may be null
    QVariantMap userInfo;
};

// Brings notifications to their observers. Thread: main, for all operations.
class NotificationCenter {
public:
    using Handler = std::function<void(const Notification &)>;

    // Observes as long as it lives. Does no harm when it outlives the center.
    class [[nodiscard]] Observation {
    public:
        Observation() = default;

    private:
        friend class NotificationCenter;
        explicit Observation(std::shared_ptr<const Handler> handler)
            : m_handler(std::move(handler)) {}

        std::shared_ptr<const Handler> m_handler;
    };

    // The one that the whole application shares. It lives until the program has ended.
    static NotificationCenter &defaultCenter();

    // Calls the handler for each notification of that name from now on, after those that observe
    // already.
    Observation addObserver(const QString &name, Handler handler);

    // Calls the observers at once. One that is added meanwhile is not called yet; one that is taken
    // away meanwhile is not called any more.
    void post(const Notification &notification);

private:
    struct Observer {
        QString name;
        std::weak_ptr<const Handler> handler;
    };

    std::vector<Observer> m_observers;
};

// Collects notifications and posts them as soon as possible: when the event loop has finished what
// it is doing now. Of several that have the same name and the same sender by then, only the first
// is posted. Thread: main, for all operations.
class NotificationQueue {
public:
    // The queue of the default center. It lives until the program has ended.
    static NotificationQueue &defaultQueue();

    explicit NotificationQueue(NotificationCenter &center) : m_center(center) {}

    void enqueue(Notification notification);

private:
    void postAll();

    NotificationCenter &m_center;
    std::list<Notification> m_waiting;
    QObject m_mainThread; // its thread is the one that notifications are posted on
};

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Programs that show what a test wants of their user interface.

#include "Platform/Accessibility.h"

#include <QSet>

#include <map>
#include <set>

// Thread: main.
class FakeAccessibility final : public zt::Accessibility {
public:
    zt::Result<void> checkApplication(std::int32_t pid) override {
        ++checks;
        return shownProcesses.contains(pid) ? zt::Result<void>() : refusal("find", pid);
    }

    zt::Result<std::unique_ptr<zt::AccessibilityObserver>>
    observeApplication(std::int32_t pid, zt::AccessibilityObserver::Handler handler) override {
        if (refusesObservers)
            return refusal("observe", pid);
        return std::unique_ptr<zt::AccessibilityObserver>(
            std::make_unique<Observer>(*this, pid, std::move(handler)));
    }

    // The process's user interface has something to tell.
    void notify(std::int32_t pid, const QString &element, const QString &notification) {
        const std::set<Observer *> observers = m_observers;
        for (Observer *observer : observers)
            observer->notify(pid, element, notification);
    }

    std::size_t observerCount() const { return m_observers.size(); }

    std::set<std::int32_t> shownProcesses;
    QSet<QString> knownNotifications; // others are refused
    bool refusesObservers = false;
    int checks = 0;

private:
    class Observer final : public zt::AccessibilityObserver {
    public:
        Observer(FakeAccessibility &accessibility, std::int32_t pid, Handler handler)
            : m_accessibility(accessibility)
            , m_pid(pid)
            , m_handler(std::move(handler)) {
            m_accessibility.m_observers.insert(this);
        }

        Observer(const Observer &) = delete;
        Observer &operator=(const Observer &) = delete;
        ~Observer() override { m_accessibility.m_observers.erase(this); }

        zt::Result<void> addNotification(const QString &notification) override {
            if (!m_accessibility.knownNotifications.contains(notification))
                return refusal("register", m_pid);
            m_notifications.insert(notification);
            return {};
        }

        void removeNotification(const QString &notification) override {
            m_notifications.remove(notification);
        }

        void notify(std::int32_t pid, const QString &element, const QString &notification) {
            if (pid == m_pid && m_notifications.contains(notification))
                m_handler(element, notification);
        }

    private:
        FakeAccessibility &m_accessibility;
        std::int32_t m_pid;
        Handler m_handler;
        QSet<QString> m_notifications;
    };

    static zt::Error refusal(const char *operation, std::int32_t pid) {
        return {.operation = operation, .object = std::to_string(pid), .cause = "refused by test"};
    }

    std::set<Observer *> m_observers;
};

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTProcess.h"

#include "Platform/Accessibility.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/NotificationCenter.h"
#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"

#include <QCoreApplication>
#include <QThread>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Observers belong to the main thread; a process may lose its last owner on another one.
void endOnMainThread(std::unique_ptr<zt::AccessibilityObserver> observer) {
    QCoreApplication *const application = QCoreApplication::instance();
    if (!application || QThread::currentThread() == application->thread())
        return;
    QMetaObject::invokeMethod(
        application, [kept = std::shared_ptr(std::move(observer))]() mutable { kept.reset(); },
        Qt::QueuedConnection);
}

} // namespace

void ZTProcess::installAXObserver() {
    if (m_axAppElem)
        return;
    const std::int32_t pid = unixPID();
    if (!m_platform.accessibility.checkApplication(pid)) {
        ZTLog("AX Notifications: Could not create application object for %@", description());
        return;
    }
    m_axAppElem = true;
    auto observer = m_platform.accessibility.observeApplication(
        pid, [process = weak_from_this()](const QString &element, const QString &notification) {
            // The observer goes with the process object, but a notification may be on its way.
            const Pointer sender = process.lock();
            if (!sender)
                return;
            NotificationQueue::defaultQueue().enqueue(
                {.name = ZTProcessUINotification,
                 .object = sender,
                 .userInfo = {{u"element"_s, element}, {u"event"_s, notification}}});
        });
    if (!observer) {
        ZTLog("AX Notifications: Could not create observer for %@", description());
        return;
    }
    m_axObserver = std::move(*observer);
}

void ZTProcess::addAXNotification(const QString &name) {
    installAXObserver();
    if (!m_axObserver || !m_axObserver->addNotification(name))
        ZTLog("AX Notifications: Could not add notification %@ for %@", name, description());
}

void ZTProcess::removeAXNotification(const QString &name) {
    if (m_axObserver)
        m_axObserver->removeNotification(name);
}

void ZTProcess::unregisterAXNotifications() {
    m_axAppElem = false;
    if (m_axObserver)
        endOnMainThread(std::move(m_axObserver));
}

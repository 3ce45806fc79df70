// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTProcess.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/NotificationCenter.h"
#include "ZTStuff/ZTClasses/ZTProcessCache.h"

#include <QCoreApplication>
#include <QThread>

#include <atomic>

using namespace Qt::StringLiterals;

namespace {

std::atomic<std::int32_t> appLaunchEndCount = 0;
std::atomic<bool> notificationsInstalled = false;

QString changeFor(zt::ProcessManager::Event event) {
    switch (event) {
    case zt::ProcessManager::Event::FrontSwitched:
        return u"front"_s;
    case zt::ProcessManager::Event::Terminated:
        ZTProcess::applicationEnded();
        return u"ended"_s;
    case zt::ProcessManager::Event::Launched:
        ZTProcess::applicationStarted();
        return u"started"_s;
    }
    return {};
}

void applicationEventArrived(zt::ProcessManager::Event event) {
    NotificationQueue::defaultQueue().enqueue({.name = ZTProcessChangeNotification,
                                               .object = ZTProcess::classObject(),
                                               .userInfo = {{u"change"_s, changeFor(event)}}});
}

} // namespace

void ZTProcess::installNotifications() {
    QCoreApplication *const application = QCoreApplication::instance();
    // Without an event loop nothing could be delivered. A later call may find one.
    if (!application || notificationsInstalled.exchange(true))
        return;
    const auto install = [] {
        zt::currentPlatform().processManager.setEventListener(applicationEventArrived);
    };
    if (QThread::currentThread() == application->thread())
        install();
    else
        QMetaObject::invokeMethod(application, install, Qt::QueuedConnection);
}

void ZTProcess::applicationStarted() {
    ++appLaunchEndCount;
}

void ZTProcess::applicationEnded() {
    cleanupCache();
    ++appLaunchEndCount;
}

std::int32_t ZTProcess::applicationLaunchEndCount() {
    return appLaunchEndCount;
}

std::shared_ptr<const void> ZTProcess::classObject() {
    // Nobody owns it: only its address counts.
    static const char object = 0;
    return {std::shared_ptr<const void>(), &object};
}

void ZTProcess::platformChanged() {
    ZTProcessCache::shared().clear();
    notificationsInstalled = false;
    appLaunchEndCount = 0;
}

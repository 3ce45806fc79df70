// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/AxAccessibility.h"

#include "Platform/macos/CFText.h"

#include <ApplicationServices/ApplicationServices.h>

#include <string>

using namespace Qt::StringLiterals;

namespace zt {

namespace {

Error observerError(std::int32_t pid, AXError status) {
    return {"observe", "process " + std::to_string(pid), "error " + std::to_string(status), status};
}

QString attributeOf(AXUIElementRef element, CFStringRef attribute) {
    CFOwner<CFTypeRef> value;
    if (AXUIElementCopyAttributeValue(element, attribute, value.receive()) != kAXErrorSuccess ||
        !value || CFGetTypeID(value.get()) != CFStringGetTypeID())
        return {};
    return textOf(static_cast<CFStringRef>(value.get()));
}

// The element in words: role and name.
QString describe(AXUIElementRef element) {
    if (!element)
        return {};
    QString role = attributeOf(element, kAXRoleDescriptionAttribute);
    const QString name = attributeOf(element, kAXTitleAttribute);
    if (name.isEmpty())
        return role;
    return role + (role.isEmpty() ? u"\""_s : u" \""_s) + name + u'"';
}

class AxObserver final : public AccessibilityObserver {
public:
    AxObserver(CFOwner<AXUIElementRef> application, Handler handler)
        : m_application(std::move(application))
        , m_handler(std::move(handler)) {}
    AxObserver(const AxObserver &) = delete;
    AxObserver &operator=(const AxObserver &) = delete;

    ~AxObserver() override {
        if (m_observer) {
            CFRunLoopRemoveSource(CFRunLoopGetMain(), AXObserverGetRunLoopSource(m_observer.get()),
                                  kCFRunLoopCommonModes);
        }
    }

    AXError begin(std::int32_t pid) {
        const AXError status = AXObserverCreate(pid, &AxObserver::hear, m_observer.receive());
        if (status == kAXErrorSuccess) {
            CFRunLoopAddSource(CFRunLoopGetMain(), AXObserverGetRunLoopSource(m_observer.get()),
                               kCFRunLoopCommonModes);
        }
        return status;
    }

    Result<void> addNotification(const QString &notification) override {
        const CFOwner<CFStringRef> name = makeCFText(notification);
        const AXError status =
            AXObserverAddNotification(m_observer.get(), m_application.get(), name.get(), this);
        if (status == kAXErrorSuccess)
            return {};
        return Error{"add notification", notification.toStdString(),
                     "error " + std::to_string(status), status};
    }

    void removeNotification(const QString &notification) override {
        const CFOwner<CFStringRef> name = makeCFText(notification);
        AXObserverRemoveNotification(m_observer.get(), m_application.get(), name.get());
    }

private:
    // The copy lives on when the handler destroys the observer.
    static void hear(AXObserverRef /*observer*/, AXUIElementRef element, CFStringRef notification,
                     void *context) noexcept {
        const Handler handler = static_cast<AxObserver *>(context)->m_handler;
        handler(describe(element), textOf(notification));
    }

    CFOwner<AXUIElementRef> m_application;
    CFOwner<AXObserverRef> m_observer;
    Handler m_handler;
};

} // namespace

Result<void> AxAccessibility::checkApplication(std::int32_t pid) {
    if (CFOwner(AXUIElementCreateApplication(pid)))
        return {};
    return observerError(pid, kAXErrorCannotComplete);
}

Result<std::unique_ptr<AccessibilityObserver>>
AxAccessibility::observeApplication(std::int32_t pid, AccessibilityObserver::Handler handler) {
    CFOwner application(AXUIElementCreateApplication(pid));
    if (!application)
        return observerError(pid, kAXErrorCannotComplete);
    auto observer = std::make_unique<AxObserver>(std::move(application), std::move(handler));
    if (const AXError status = observer->begin(pid); status != kAXErrorSuccess)
        return observerError(pid, status);
    return std::unique_ptr<AccessibilityObserver>(std::move(observer));
}

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Notifications from the user interface of another process, as assistive technology gets them.

#include "Platform/Result.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <memory>

namespace zt {

// Watches one process. Destroy it to stop. Thread: main, for all operations.
class AccessibilityObserver {
public:
    // `element` describes the element that the notification is about; empty when there is none.
    using Handler = std::function<void(const QString &element, const QString &notification)>;

    virtual ~AccessibilityObserver() = default;

    // Starts and stops the delivery of the notification of that name.
    virtual Result<void> addNotification(const QString &notification) = 0;
    virtual void removeNotification(const QString &notification) = 0;

    AccessibilityObserver(const AccessibilityObserver &) = delete;
    AccessibilityObserver &operator=(const AccessibilityObserver &) = delete;

protected:
    AccessibilityObserver() = default;
};

// Thread: main, for all operations.
class Accessibility {
public:
    virtual ~Accessibility() = default;

    // Whether the process shows its user interface to assistive technology.
    virtual Result<void> checkApplication(std::int32_t pid) = 0;

    // An observer for the process, without notifications yet.
    virtual Result<std::unique_ptr<AccessibilityObserver>>
    observeApplication(std::int32_t pid, AccessibilityObserver::Handler handler) = 0;

protected:
    Accessibility() = default;
    Accessibility(const Accessibility &) = default;
    Accessibility &operator=(const Accessibility &) = default;
};

} // namespace zt

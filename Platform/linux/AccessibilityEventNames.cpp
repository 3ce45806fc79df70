// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/AccessibilityEventNames.h"

#include <QRegularExpression>

namespace zt {

namespace {

struct Counterpart {
    const char *notification;
    const char *type;
    std::optional<int> onlyWhen = std::nullopt;
};

constexpr Counterpart counterparts[] = {
    {"AXApplicationActivated", "window:activate"},
    {"AXApplicationDeactivated", "window:deactivate"},
    {"AXFocusedUIElementChanged", "object:state-changed:focused", 1},
    {"AXFocusedWindowChanged", "window:activate"},
    {"AXMainWindowChanged", "window:activate"},
    {"AXSelectedChildrenChanged", "object:selection-changed"},
    {"AXSelectedTextChanged", "object:text-selection-changed"},
    {"AXTitleChanged", "object:property-change:accessible-name"},
    {"AXUIElementDestroyed", "object:state-changed:defunct", 1},
    {"AXValueChanged", "object:property-change:accessible-value"},
    {"AXWindowCreated", "window:create"},
    {"AXWindowDeminiaturized", "window:restore"},
    {"AXWindowMiniaturized", "window:minimize"},
    {"AXWindowMoved", "window:move"},
    {"AXWindowResized", "window:resize"},
};

// Class, name and detail. Other classes of events belong to devices, not to programs.
bool isEventName(const QString &name) {
    static const QRegularExpression form(QRegularExpression::anchoredPattern(
        QStringLiteral("(object|window|document|focus)(:[a-z][a-z-]*){0,2}:?")));
    return form.match(name).hasMatch();
}

} // namespace

std::optional<AccessibilityEvent> accessibilityEventFor(const QString &notification) {
    for (const Counterpart &counterpart : counterparts) {
        if (notification == QLatin1StringView(counterpart.notification))
            return AccessibilityEvent{.type = counterpart.type, .onlyWhen = counterpart.onlyWhen};
    }
    if (isEventName(notification))
        return AccessibilityEvent{.type = notification.toLatin1(), .onlyWhen = std::nullopt};
    return std::nullopt;
}

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The names of accessibility notifications and the events that the desktop's accessibility bus has
// for them.

#include <QByteArray>
#include <QString>

#include <optional>

namespace zt {

struct AccessibilityEvent {
    QByteArray type; // as registered: "object:state-changed:focused"
    std::optional<int>
        onlyWhen; // the event's first detail: 1 for a state that begins, 0 for its end

    bool operator==(const AccessibilityEvent &) const = default;
};

// The event behind a notification's name, which is one of the common names ("AXValueChanged") or
// the event's own name on the bus. No value for a name that is neither. Thread: any.
std::optional<AccessibilityEvent> accessibilityEventFor(const QString &notification);

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/HeldKeys.h"

#include <QAbstractButton>
#include <QInputEvent>

void HeldKeys::watch(QAbstractButton &button) {
    button.installEventFilter(this);
}

bool HeldKeys::eventFilter(QObject *watched, QEvent *event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        m_modifiers = static_cast<QInputEvent *>(event)->modifiers();
        break;
    case QEvent::Shortcut:
        m_modifiers = {};
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

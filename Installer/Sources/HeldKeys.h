#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include <QObject>

class QAbstractButton;

// Remembers with which keys held a button was last pressed. A shortcut of the button's own, which
// takes the Option key (Alt) to be typed, counts as pressed without it. Thread: main.
class HeldKeys final : public QObject {
    Q_OBJECT

public:
    // The button must outlive this.
    void watch(QAbstractButton &button);

    bool optionWasHeld() const { return m_modifiers.testFlag(Qt::AltModifier); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Qt::KeyboardModifiers m_modifiers;
};

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/Sources/HeldKeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>
#include <QShortcutEvent>

#include <gtest/gtest.h>

class HeldKeysTest : public testing::Test {
protected:
    HeldKeysTest() { keys.watch(button); }

    void click(Qt::KeyboardModifiers modifiers) {
        QMouseEvent event(QEvent::MouseButtonRelease, QPointF(1, 1), QPointF(1, 1), Qt::LeftButton,
                          Qt::NoButton, modifiers);
        QApplication::sendEvent(&button, &event);
    }

    QPushButton button;
    HeldKeys keys;
};

TEST_F(HeldKeysTest, aClickTellsWhetherOptionWasHeld) {
    EXPECT_FALSE(keys.optionWasHeld());
    click(Qt::AltModifier);
    EXPECT_TRUE(keys.optionWasHeld());
    click(Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_TRUE(keys.optionWasHeld());
    click(Qt::ControlModifier);
    EXPECT_FALSE(keys.optionWasHeld());
}

TEST_F(HeldKeysTest, theKeyboardTellsItToo) {
    QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::AltModifier);
    QApplication::sendEvent(&button, &space);
    EXPECT_TRUE(keys.optionWasHeld());
}

TEST_F(HeldKeysTest, theButtonsOwnShortcutDoesNotCount) {
    click(Qt::AltModifier);
    QShortcutEvent shortcut(QKeySequence(Qt::ALT | Qt::Key_I), 1);
    QApplication::sendEvent(&button, &shortcut);
    EXPECT_FALSE(keys.optionWasHeld());
}

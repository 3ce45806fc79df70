#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What can wait until the user sees the window.

#include <functional>

class QWidget;

// Calls once, from the event loop, after the widget was painted for the first time; never when the
// widget goes before. Thread: main.
void callAfterFirstPaint(QWidget &widget, std::function<void()> operation);

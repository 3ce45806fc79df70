#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The user interface of another program as a screen reader finds it.

#include <QList>
#include <QString>

#include <cstdint>

struct AccessibleElement {
    QString role; // "push button"
    QString name;
    QString description;
    bool isShowing = false;
    bool isFocusable = false;
    bool isFocused = false;
};

// All elements of the program's windows, each before those in it. Empty while it has none.
QList<AccessibleElement> accessibleElementsOf(std::int32_t pid);

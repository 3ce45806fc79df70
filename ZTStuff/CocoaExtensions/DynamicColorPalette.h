#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Palettes of widgets that follow dynamic colours while the program runs.

#include "Platform/Appearance.h"
#include "ZTStuff/ZTClasses/ZTDynamicColor.h"

#include <QPalette>

#include <functional>

class QWidget;

// Makes the role of the widget's palette the colour, and keeps it so when the appearance of the
// widget, of the application or of the desktop changes. In the drawing context of that, the widget
// is what is drawn. The colour of disabled texts stays the palette's own. A later call for the role
// replaces the colour. The current platform has to live as long as the widget, or until it stops
// following. Thread: main, for all operations.
void followDynamicColor(QWidget &widget, QPalette::ColorRole role, const ZTDynamicColor &color);

// The same for a colour that is asked for anew each time, as those of menus are, which change with
// the accent colour: followDynamicColor(bar, QPalette::Highlight,
// ZTDynamicColor::menuHighlightColor)
void followDynamicColor(QWidget &widget, QPalette::ColorRole role,
                        std::function<ZTDynamicColor()> color);

// Leaves the role as it is, from now on.
void stopFollowingDynamicColor(QWidget &widget, QPalette::ColorRole role);

// The appearance in which the widget is drawn: that of its palette, without the roles of it that
// follow dynamic colours, which would otherwise decide upon themselves.
zt::Appearance::Scheme schemeOf(const QWidget &widget);

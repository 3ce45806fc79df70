#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The pages of the gallery. Thread: main; the caller owns what it gets.

class QWidget;

namespace gallery {

// The red of warnings and what is made of it, light and dark beside each other.
QWidget *makeColorPage();

// The backgrounds of menu titles and menu items for each accent colour.
QWidget *makeMenuPage();

// Scrolling, stacking, the light appearance, the visual-effect view and scaling.
QWidget *makeViewPage();

} // namespace gallery

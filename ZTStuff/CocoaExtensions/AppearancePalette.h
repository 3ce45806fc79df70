#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The palettes in which windows are drawn: light and dark, each also with more contrast.

#include "Platform/Appearance.h"

#include <QList>
#include <QPalette>

// A complete palette for the scheme. Text on its background has a contrast of at least 7 to 1,
// disabled text of at least 3 to 1, the red of warnings of at least 4.5 to 1. Thread: main.
QPalette paletteForScheme(zt::Appearance::Scheme scheme);

// The same for users who want more contrast: text of at least 13 to 1, text that is chosen or a
// link of at least 7 to 1, disabled text of at least 4.5 to 1. Thread: main.
QPalette contrastPaletteForScheme(zt::Appearance::Scheme scheme);

// Whether the palette draws light text on a dark background: in windows, fields and buttons, or in
// most of these. What it has in the roles to be passed over says nothing. Thread: any.
bool isDarkPalette(const QPalette &palette,
                   const QList<QPalette::ColorRole> &passingOver = QList<QPalette::ColorRole>());

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The two palettes in which windows are drawn: light and dark.

#include "Platform/Appearance.h"

#include <QPalette>

// A complete palette for the scheme. Text on its background has a contrast of at least 7 to 1,
// disabled text of at least 3 to 1. Thread: main.
QPalette paletteForScheme(zt::Appearance::Scheme scheme);

// Whether the palette draws light text on a dark background.
bool isDarkPalette(const QPalette &palette);

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// How well a text can be read on its background.

#include <QColor>

class ZTDynamicColor;

// The contrast of two opaque colours as the Web Content Accessibility Guidelines have it: from 1
// for two that are alike to 21 for black on white. Texts of usual size should have 4.5. Thread:
// any, as for the next.
double contrastRatio(const QColor &one, const QColor &other);

// White where it can be read on the background, as people are used to on what is highlighted, else
// black. The contrast is never below 4.5.
QColor textColorOn(const QColor &background);

// The same for a background that is dynamic, and choosing between light and dark as that does.
ZTDynamicColor textColorOn(const ZTDynamicColor &background);

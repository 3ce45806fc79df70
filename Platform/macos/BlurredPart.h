#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Where the parts of a window stand that let what is behind it show through blurred.

#include <QRect>

namespace zt {

// In points of a view.
struct PlacedPart {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    bool operator==(const PlacedPart &) const = default;
};

// The view that parts are placed in.
struct PartsView {
    double scale = 1;       // pixels for each point
    double height = 0;      // in points
    bool isFlipped = false; // counted from the top, as pixels are
};

// The part, given in pixels from the window's upper left corner, in points of the view.
// Thread: any.
PlacedPart placedPart(const QRect &pixels, const PartsView &view);

} // namespace zt

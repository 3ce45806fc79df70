// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/BlurredPart.h"

namespace zt {

PlacedPart placedPart(const QRect &pixels, const PartsView &view) {
    const double top = pixels.y() / view.scale;
    const double height = pixels.height() / view.scale;
    return {.x = pixels.x() / view.scale,
            .y = view.isFlipped ? top : view.height - top - height,
            .width = pixels.width() / view.scale,
            .height = height};
}

} // namespace zt

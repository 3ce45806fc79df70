// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTDynamicColor.h"

#include "tests/fuzz/FuzzText.h"

#include <cstddef>
#include <cstdint>

namespace {

// Whatever the archive said, it is a colour that can be drawn with.
void check(const QColor &color) {
    require(color.isValid());
    const QColor rgb = color.toRgb();
    for (const float component : {rgb.redF(), rgb.greenF(), rgb.blueF(), rgb.alphaF()})
        require(component >= 0 && component <= 1);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto color = ZTDynamicColor::unarchivedColor(bytes);
    if (!color)
        return 0;
    check(color->aquaColor());
    if (color->darkAquaColor())
        check(*color->darkAquaColor());
    require(color->globalAppearance() == ZTDynamicColor::GlobalAppearance::Unused);
    // The archive of it is one of ours, and says the same.
    const QByteArray again = color->archivedData();
    require(again.size() <= bytes.size());
    const auto restored = ZTDynamicColor::unarchivedColor(again);
    require(restored && restored->archivedData() == again);
    return 0;
}

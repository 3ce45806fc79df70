// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTCompatibility/FourCharCode.h"

#include "Platform/MacRoman.h"

#include <array>

FourCharCode UTGetOSTypeFromString(const QString &text) {
    return zt::fourCharacterCode(text).value_or(0);
}

QString UTCreateStringForOSType(FourCharCode code) {
    const std::array<char, 4> bytes = {static_cast<char>(code >> 24), static_cast<char>(code >> 16),
                                       static_cast<char>(code >> 8), static_cast<char>(code)};
    return zt::stringFromMacRoman(bytes);
}

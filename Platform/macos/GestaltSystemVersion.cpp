// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/GestaltSystemVersion.h"

#include <CoreServices/CoreServices.h>

namespace zt {

namespace {

std::optional<std::int32_t> answerTo(OSType selector) {
    SInt32 answer = 0;
    if (Gestalt(selector, &answer) != noErr)
        return std::nullopt;
    return answer;
}

} // namespace

std::optional<std::int32_t> GestaltSystemVersion::majorVersion() const {
    return answerTo(gestaltSystemVersionMajor);
}

std::optional<std::int32_t> GestaltSystemVersion::minorVersion() const {
    return answerTo(gestaltSystemVersionMinor);
}

std::optional<std::int32_t> GestaltSystemVersion::bugFixVersion() const {
    return answerTo(gestaltSystemVersionBugFix);
}

std::optional<std::uint32_t> GestaltSystemVersion::packedVersion() const {
    const std::optional<std::int32_t> packed = answerTo(gestaltSystemVersion);
    return packed ? std::optional(std::uint32_t(*packed)) : std::nullopt;
}

double GestaltSystemVersion::frameworkVersion() const {
    return m_frameworkVersion;
}

} // namespace zt

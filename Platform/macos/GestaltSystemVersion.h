#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The version of macOS, from the Gestalt manager.

#include "Platform/SystemVersion.h"

namespace zt {

class GestaltSystemVersion final : public SystemVersion {
public:
    // `frameworkVersion` is the number that the application framework says of itself.
    explicit GestaltSystemVersion(double frameworkVersion) : m_frameworkVersion(frameworkVersion) {}

    std::optional<std::int32_t> majorVersion() const override;
    std::optional<std::int32_t> minorVersion() const override;
    std::optional<std::int32_t> bugFixVersion() const override;
    std::optional<std::uint32_t> packedVersion() const override;
    double frameworkVersion() const override;

private:
    double m_frameworkVersion;
};

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The version of the Linux distribution, from its own version record.

#include "Platform/SystemVersion.h"

#include <array>
#include <string>
#include <string_view>

namespace zt {

// Major, minor and bug-fix number of a distribution.
using VersionNumbers = std::array<std::int32_t, 3>;

// The numbers in the text of an os-release file (os-release(5), the VERSION_ID field). Where that
// names only the major version, `debianVersion` (the text of /etc/debian_version, empty when there
// is none) may tell the point release. No value when there is no number, as on a distribution that
// is never released as a whole.
std::optional<VersionNumbers> parseSystemVersion(std::string_view osRelease,
                                                 std::string_view debianVersion);

class LinuxSystemVersion final : public SystemVersion {
public:
    // Reads etc/os-release, else usr/lib/os-release, below the root folder.
    explicit LinuxSystemVersion(const std::string &root = "/");

    std::optional<std::int32_t> majorVersion() const override;
    std::optional<std::int32_t> minorVersion() const override;
    std::optional<std::int32_t> bugFixVersion() const override;
    std::optional<std::uint32_t> packedVersion() const override;
    double frameworkVersion() const override;

private:
    std::optional<VersionNumbers> m_numbers;
};

} // namespace zt

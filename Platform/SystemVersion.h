#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The version of the operating system.

#include <cstdint>
#include <optional>

namespace zt {

// Each query answers no value when the system does not tell. Thread: any, for all operations.
class SystemVersion {
public:
    virtual ~SystemVersion() = default;

    virtual std::optional<std::int32_t> majorVersion() const = 0;
    virtual std::optional<std::int32_t> minorVersion() const = 0;
    virtual std::optional<std::int32_t> bugFixVersion() const = 0;

    // The packed version word 0xMMmb: two decimal digits of the major version, one digit each of
    // the minor and the bug-fix version (a larger number stands as 9).
    virtual std::optional<std::uint32_t> packedVersion() const = 0;

    // The number of the application framework: what this back end can do, measured on the
    // reference platform's scale (1639 and more: light and dark appearances).
    virtual double frameworkVersion() const = 0;

protected:
    SystemVersion() = default;
    SystemVersion(const SystemVersion &) = default;
    SystemVersion &operator=(const SystemVersion &) = default;
};

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The kernel's list of mounts, taken apart. Nothing here reads a file. Thread: any.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zt {

// The number of the mount that an open file lies on, in /proc/self/fdinfo/DESCRIPTOR.
std::optional<std::int64_t> parseMountNumber(std::string_view descriptorInformation);

// The type of the file system of the mount with that number, in /proc/self/mountinfo. No value when
// the mount is not in the list.
std::optional<std::string> parseMountType(std::string_view mountInformation, std::int64_t number);

} // namespace zt

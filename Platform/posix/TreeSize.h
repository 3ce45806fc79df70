#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Adding up what a copy will have to copy.

#include "Platform/Result.h"
#include "Platform/posix/TreeCopy.h"

#include <cstdint>
#include <stop_token>

namespace zt {

// The sum of the sizes, in bytes, of all files in the item, each name counted. Thread: any.
Result<std::uint64_t> treeSize(const ItemPlace &item, const std::stop_token &stop);

} // namespace zt

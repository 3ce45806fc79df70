#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Reading whole small files.

#include "Platform/Result.h"

#include <cstddef>
#include <string>

namespace zt {

// The content of the file, read until its end whatever size it claims, so that files of /proc can
// be read too. Fails (EFBIG) when there are more than `maximumSize` bytes. Thread: any.
Result<std::string> readSmallFile(const std::string &path, std::size_t maximumSize);

} // namespace zt

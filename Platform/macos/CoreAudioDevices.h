#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Sound devices, from Core Audio.

#include "Platform/Sounds.h"

#include <optional>
#include <vector>

namespace zt {

// All devices that tell their identifier, name and maker, outputs first. What has both directions
// is an output. No value when the list cannot be read. Thread: any, for both.
std::optional<std::vector<SoundDevice>> audioDevices();

// The identifier of the output for sound effects. No value when there is none.
std::optional<QString> systemOutputDevice();

} // namespace zt

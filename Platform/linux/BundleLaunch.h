#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/Bundles.h"

#include <cstdint>
#include <optional>

namespace zt {

// Starts the bundle's program as the desktop would: in a session of its own, with nothing of this
// program but the user's environment, in the given folder, and with a token that lets it come to
// the front. Answers its process id; no value when it could not be started. Thread: any.
std::optional<std::int32_t> launchBundle(const Bundle &bundle, const QString &workingFolder);

} // namespace zt

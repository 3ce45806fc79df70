#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/Bundles.h"

#include <QStringList>

#include <cstdint>
#include <optional>

namespace zt {

// Starts the bundle's program as the desktop would: in a session of its own, with nothing of this
// program but the user's environment, in the given folder, and with a token that lets it come to
// the front. Answers its process id; no value when it could not be started. Thread: any, as for the
// other.
std::optional<std::int32_t> launchBundle(const Bundle &bundle, const QString &workingFolder);

// The same with any program, by its absolute path with its arguments behind it.
std::optional<std::int32_t> launchProgram(const QStringList &commandLine,
                                          const QString &workingFolder);

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Opening what a privileged installation works on, without trusting whoever chose the paths.

#include "Installer/train/InstallPreparation.h"
#include "Platform/Result.h"
#include "Platform/posix/FileSystemIdentity.h"

#include <string>
#include <vector>

namespace zt {

// Opens the source and the wrapper as their reader, no link on the way; the source is a bundle's
// folder, and the wrapper lies on its volume. Opens the destination's folder, or the one in which
// it is to be made, as openTrustedFolder() does; it is none of the system's own folders. The paths
// are canonical. Changes nothing. Thread: any.
Result<InstallPlan> planPrivilegedInstallation(const InstallPaths &paths,
                                               const FileSystemIdentity &reader,
                                               const std::vector<std::string> &guaranteedFolders);

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Folders that nobody but root can change, and whose path nobody but root can turn elsewhere.

#include "Platform/Result.h"
#include "Platform/posix/UniqueFd.h"

#include <sys/stat.h>

#include <string>

namespace zt {

// Why others than root could change what is in the folder: it is somebody else's, or its mode lets
// its group or all write. Empty when nothing speaks against it. Access lists count too, for what
// they allow at most shows in the mode. Thread: any, as for all that follow.
std::string reasonNotToTrust(const struct stat &folder);

// Opens the folder at the canonical path, from the root down. Fails (EPERM) when the folder or one
// on the way to it is not to be trusted, or lies on a volume that a user may have mounted; and when
// a component is a link (ELOOP or ENOTDIR) or missing (ENOENT).
Result<UniqueFd> openTrustedFolder(const std::string &path);

// Whether the folder at the canonical path is one of the system's own, or "/" itself: nothing is
// ever installed there.
bool belongsToTheSystem(const std::string &path);

} // namespace zt

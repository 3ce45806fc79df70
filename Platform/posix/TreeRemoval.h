#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Removing a file or a whole folder.

#include "Platform/Result.h"

namespace zt {

// Removes the item of this name in the open folder: a file, a link itself, or a folder with all
// that is in it. Folders that deny access to their owner are opened up for it. Never follows a
// link and never enters another mounted volume. Works at any depth with few descriptors and little
// memory: what lies very deep is first moved up within the item. An item that does not exist counts
// as removed. On failure part of a folder may be gone. Thread: any.
Result<void> removeTree(int folder, const char *name);

} // namespace zt

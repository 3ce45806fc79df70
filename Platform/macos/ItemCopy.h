#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Copying, moving and removing whole items by the system's own means. No Qt, so that the privileged
// tool can use it. Paths are bytes in the file system's own encoding.

#include "Platform/Result.h"
#include "Platform/posix/TreeCopy.h"

#include <functional>
#include <stop_token>
#include <string>

namespace zt {

struct ItemCopyOrders {
    // Asks the copy to end; it fails then with the code ECANCELED.
    std::stop_token stop = {};

    // Told now and then. When it is empty, the sizes are not added up beforehand.
    std::function<void(const CopyProgress &)> progress = {};
};

// Copies a file, a link itself or a folder with all that is in it, with modes, times, attributes
// and access lists. Nothing may have the target's name. On failure part of the copy may be there.
// Thread: any, as for all that follow.
Result<void> copyItem(const std::string &source, const std::string &target,
                      const ItemCopyOrders &orders);

// The error of a copy that was asked to end.
Error stoppedCopyError(std::string path);

// Removes a file, a link itself or a folder with all that is in it.
Result<void> removeItem(const std::string &path);

// Renames within a volume, unless something has the new name already (EEXIST). Atomic.
Result<void> renameItem(const std::string &from, const std::string &to);

} // namespace zt

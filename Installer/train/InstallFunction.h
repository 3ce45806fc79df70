#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Putting a product in its place. It knows nothing of windows, so that the privileged tool can do
// the very same.

#include "Platform/Trash.h"
#include "Platform/posix/StagedCopy.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

namespace zt {
struct InstallPlan;
}

enum class InstallResult : std::int32_t {
    Success = 0,
    TrashFailed = 1, // an existing copy could not be moved to the Trash
    CopyFailed = 2,  // the wrapper, one of its items or the product could not be copied
};

// Paths are bytes in the file system's own encoding.
struct InstallPaths {
    std::string source;                      // the product
    std::string destination;                 // the full path that it is to have
    std::optional<std::string> wrapper = {}; // a folder whose items belong beside the product
};

// What the installation needs and whom it tells. Empty functions are not called.
struct InstallServices {
    zt::Trash &trash;
    std::function<void(std::string_view)> log = {}; // one line for each event; on any thread
    std::function<void(const std::string &path)> noteFileSystemChanged = {};

    // Until the product appears at its destination it can be stopped; the result is then
    // CopyFailed, and nothing unfinished stays behind.
    std::stop_token stop = {};

    // Of the product's own bytes; see zt::TreeCopyRequest.
    std::function<void(const zt::CopyProgress &)> progress = {};

    zt::CopiedRights rights = zt::CopiedRights::All; // of all that is copied

    zt::Durability durability = zt::Durability::Durable;

    zt::Proof proof = zt::Proof::None; // of all that is copied

    // Folders that count as always there: one of them is made, for all to read, when it is missing
    // and the destination lies directly in it.
    std::vector<std::string> guaranteedFolders = {"/Applications"};
};

// Copies the product to its destination. In this order:
//
// 1. The wrapper's items are put beside the destination, each in place of an item of its name;
//    when the destination's folder does not exist yet, the whole wrapper becomes that folder.
// 2. Whatever exists at the destination is moved to the Trash, a link itself rather than its
//    target. It is never deleted.
// 3. The product appears at the destination once its copy is whole.
//
// Input that cannot lead to a good end (a source that is missing, unreadable or empty, or that
// lies at, in or around the destination; a destination without a folder) is found out before
// anything is changed. Each failure is told by one line with its cause and then the fixed lines.
// Never throws. Thread: any, and any process.
InstallResult InstallApplication(const InstallPaths &paths, const InstallServices &services);

// The same for what is open already, so that no path is looked up again; the destination's path is
// canonical. See InstallPreparation.h.
InstallResult InstallApplication(zt::InstallPlan plan, const InstallServices &services);

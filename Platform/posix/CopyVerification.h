#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Proving that a copy is like its original.

#include "Platform/Result.h"
#include "Platform/posix/TreeCopy.h"

#include <optional>
#include <stop_token>

namespace zt {

struct CopyVerification {
    ItemPlace source;
    ItemPlace copy;
    CopiedRights rights = CopiedRights::All;       // as it was made with
    std::optional<FileSystemIdentity> readAs = {}; // see TreeCopyRequest
    std::stop_token stop = {};                     // see TreeCopyRequest
};

// Compares a copy that copyTree() made with its source: kinds and names of all items, sizes,
// contents, modes, times of modification (as far as the copy's file system can tell them), texts of
// links, which names are one file, and attributes and access lists, those aside which only a
// privileged process sets or which the copy's file system has no room for. What is in memory of
// either is dropped where the system allows, so that the media are read. The first difference is an
// error with the code EBADMSG that names the copy's item. Changes nothing. At most two threads
// work. Thread: any.
Result<void> verifyCopy(const CopyVerification &verification);

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Copying a file or a whole folder, with everything that belongs to it.

#include "Platform/Result.h"
#include "Platform/posix/FileSystemIdentity.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>

namespace zt {

struct CopyProgress {
    std::uint64_t bytesDone = 0; // never less than told before
    std::uint64_t bytesInAll = 0;
};

// An item's place: its name in an open folder, and the path that messages call it. The name "." is
// the open folder itself.
struct ItemPlace {
    int folder = -1;
    std::string name;
    std::string path;
};

// What a copy takes over of the rights that its original has and gives.
enum class CopiedRights {
    // Owner, mode, access lists and attributes, as far as this process may set them.
    All,
    // Only who may read and run it, and its users' own attributes ("user."). The copy belongs to
    // the one who writes it, who can always read and change it; nobody else can change it. No
    // set-user-id or set-group-id bit, capability, access list or other attribute of the system's
    // comes along.
    ReadingAndRunning,
};

struct TreeCopyRequest {
    ItemPlace source;
    ItemPlace target; // its folder is the caller's alone while the copy is made
    CopiedRights rights = CopiedRights::All;

    // As whom the source is read, so that nothing is copied that this user may not read. The target
    // is written as the calling thread. Without a value that is one and the same.
    std::optional<FileSystemIdentity> readAs = {};

    // Asks the copy to end; it fails then with the code ECANCELED.
    std::stop_token stop = {};

    // Told at most 60 times a second, never twice at once, on any thread. When it is empty, the
    // sizes are not added up beforehand.
    std::function<void(const CopyProgress &)> progress = {};

    // Receives one sentence when the target's file system cannot keep something: an attribute, or
    // that two names are one file. On any thread.
    std::function<void(std::string_view)> note = {};
};

// Copies a file, a link itself or a folder with all that is in it. The copy has the same content,
// times to the nanosecond, links and holes, what is one file under several names in the source is
// so in the copy, and with CopiedRights::All it has the same modes, attributes and access lists.
// Owners are kept then as far as this process may set them; where it may not, the file loses its
// set-user-id or set-group-id bit. Attributes for which privileges lack are left out. Fails on
// anything that is not a file, folder or link (pipes, sockets, devices), and when the source
// changes meanwhile. Space on the target that the source shares (clones) is shared in the copy
// where the file system can do it.
//
// On failure part of the copy may be there, and so may a folder named like the target with ".links"
// appended; removing both is up to the caller. At most two threads work, in bounded memory and with
// a bounded number of descriptors. Thread: any.
Result<void> copyTree(const TreeCopyRequest &request);

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A copy that is made out of sight and appears under its name only when it is whole.

#include "Platform/Result.h"
#include "Platform/posix/StagingFolder.h"
#include "Platform/posix/TreeCopy.h"

#include <functional>
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>

namespace zt {

// Whether a step waits until what it did would outlast a power failure.
enum class Durability { Durable, Relaxed };

// Whether a copy is compared with its original before it appears. That reads both once more; it is
// worth it where the original's medium may read differently each time.
enum class Proof { None, Compared };

struct StagedCopySettings {
    Durability durability = Durability::Durable;
    Proof proof = Proof::None;                               // see verifyCopy()
    CopiedRights rights = CopiedRights::All;                 // see TreeCopyRequest
    std::optional<FileSystemIdentity> readAs = {};           // see TreeCopyRequest
    std::stop_token stop = {};                               // see TreeCopyRequest
    std::function<void(const CopyProgress &)> progress = {}; // see TreeCopyRequest
    std::function<void(std::string_view)> note = {};         // see TreeCopyRequest
};

// Whatever has not been put in place goes with its owner. Thread: one at a time.
class StagedCopy {
public:
    // Copies the source into a staging folder in the target's folder, which stays open as long as
    // the copy lives. Messages name the target's path.
    static Result<StagedCopy> make(const ItemPlace &source, const ItemPlace &target,
                                   const StagedCopySettings &settings);

    // Takes an existing item away from the target's name. Where the file system can exchange names,
    // the copy takes its place in the same step, and at no moment is the name free. On failure the
    // item is where it was.
    Result<void> displace(const ItemPlace &target);

    // Lets the copy appear under the target's name, in one step, unless displace() has done so. The
    // target's folder is the one staged in, or another of the same volume. On failure (EEXIST when
    // the name is taken) the copy is not there, and a displaced item is where it was.
    Result<void> place(const ItemPlace &target);

    // Removes the staging folder, and with it an item that was displaced.
    Result<void> cleanUp() { return m_folder.remove(); }

private:
    StagedCopy(StagingFolder folder, const StagedCopySettings &settings)
        : m_folder(std::move(folder))
        , m_durability(settings.durability)
        , m_stop(settings.stop) {}

    bool appear(const ItemPlace &target);

    StagingFolder m_folder;
    Durability m_durability;
    std::stop_token m_stop;
    bool m_isPlaced = false;
    bool m_hasDisplaced = false;
};

} // namespace zt

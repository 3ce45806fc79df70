#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Giving a copy the owner, attributes, access lists, mode and times of its original.

#include "Platform/Result.h"
#include "Platform/posix/FileSystemIdentity.h"
#include "Platform/posix/TreeCopy.h"

#include <sys/stat.h>
#include <sys/types.h>

#include <atomic>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zt {

// What new files of one copy are like before anything is set. Thread: any.
class CopiedMetadata {
public:
    // `newItem` is the status of any file or folder just made for the copy. The copy is written as
    // `writer`, as this thread if there is none. `note` is told once when attributes cannot be
    // kept; it may be empty.
    CopiedMetadata(const struct stat &newItem, CopiedRights rights,
                   const std::optional<FileSystemIdentity> &writer,
                   std::function<void(std::string_view)> note);

    // The mode with which to create a copy so that it can be written to, and so that setting its
    // mode afterwards is seldom needed.
    static mode_t creationMode(const struct stat &original, CopiedRights rights);

    // Whether a copy's mode is one that apply() gives. Bits that lend rights may be missing, since
    // not every process may give them.
    static bool isModeOfCopy(const struct stat &original, const struct stat &copy,
                             CopiedRights rights);

    // The name of an attribute or access list that the open original has and the open copy has with
    // another value; empty when there is none. One that apply() may have left out can be missing.
    static Result<std::string> differingAttribute(int original, int copy, CopiedRights rights,
                                                  const std::optional<FileSystemIdentity> &writer);

    // Sets everything on an open copy that was made with creationMode() and is otherwise complete.
    // The original is read as this thread. On failure the error names the operation, not the
    // object.
    Result<void> apply(int original, int copy, const struct stat &status) const;

    // The same for a link, by its name in the open folder.
    Result<void> applyToLink(int folder, const char *name, const struct stat &status) const;

private:
    struct Ownership {
        bool userIsKept = true;
        bool groupIsKept = true;
        bool wasSet = false;
    };

    Result<Ownership> applyOwner(int copy, const struct stat &status) const;
    Result<Ownership> applyOwnOwner(int copy) const;
    bool mayGive(gid_t group) const;
    mode_t modeOf(const struct stat &status, const Ownership &ownership) const;
    bool needsMode(const struct stat &status, mode_t mode, const Ownership &ownership) const;
    Result<void> applyMode(int copy, const struct stat &status, const Ownership &ownership) const;
    Result<void> copyAttribute(int original, int copy, const std::string &name) const;
    Result<void> copyAttributes(int original, int copy, const std::string &names,
                                bool accessLists) const;

    CopiedRights m_rights;
    std::optional<FileSystemIdentity> m_writer;
    FileSystemIdentity m_owner; // whom the copy belongs to where the original has no say
    uid_t m_newUser;
    gid_t m_newGroup;
    mode_t m_mask; // of new files, see umask
    bool m_isPrivileged;
    std::vector<gid_t> m_groups;
    std::function<void(std::string_view)> m_note;
    mutable std::atomic<bool> m_hasNoted = false;
};

} // namespace zt

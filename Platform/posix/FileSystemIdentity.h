#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Whose rights a thread's operations on files are checked against.

#include <sys/types.h>

#include <optional>

namespace zt {

// A user and a group that own the files made under it. The supplementary groups are those of the
// thread. Thread: any, as for all that follow.
struct FileSystemIdentity {
    uid_t user = 0;
    gid_t group = 0;

    // That of the calling thread.
    static FileSystemIdentity current();

    bool operator==(const FileSystemIdentity &) const = default;
};

// Lets the calling thread, and the threads that it starts meanwhile, use files as someone else for
// a scope; without a value nothing changes. A privileged process loses for that time every power
// over files that the other does not have. Only a privileged process can do it; a process that
// cannot ends, for it must not go on with other rights than it believes to have.
class ActingAs {
public:
    explicit ActingAs(const std::optional<FileSystemIdentity> &identity);
    ActingAs(const ActingAs &) = delete;
    ActingAs &operator=(const ActingAs &) = delete;
    ~ActingAs();

private:
    std::optional<FileSystemIdentity> m_before; // set when there is something to undo
};

} // namespace zt

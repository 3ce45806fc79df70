#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Reading the process file system.

#include "Platform/linux/ProcFsText.h"
#include "Platform/posix/UniqueFd.h"

#include <sys/stat.h>
#include <sys/types.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zt {

// The folder of a process. The kernel gives each process's a number of its own, so two folders with
// the same id and number are those of the same process. It may number the folder of a process anew.
struct ProcFolderEntry {
    std::int32_t pid = 0;
    std::uint64_t number = 0;

    bool operator==(const ProcFolderEntry &) const = default;
};

// Reads below one folder, laid out as /proc. What cannot be read has no value: the process has
// ended, belongs to another user, or is a thread of the kernel. Thread: any.
class ProcFs {
public:
    explicit ProcFs(const std::string &root = "/proc");

    // The folders of all processes. Empty when they cannot be listed.
    std::vector<ProcFolderEntry> processes() const;

    // The id of this very process, as this process file system counts.
    std::optional<std::int32_t> ownProcessId() const;

    // The id that was given to a process or thread last.
    std::optional<std::int32_t> lastProcessId() const;

    std::optional<ProcFolderEntry> entryOf(std::int32_t pid) const;

    std::optional<ProcStat> stat(std::int32_t pid) const;

    // Where the link to the program leads to: the program's path, wherever it was moved to since
    // it was started, with a mark when it was deleted.
    std::optional<std::string> programLink(std::int32_t pid) const;

    // The status of the program file itself, also when it was deleted.
    std::optional<struct stat> programStatus(std::int32_t pid) const;

    std::optional<std::string> workingFolder(std::int32_t pid) const;

    // The arguments; none when they cannot be read, and for a thread of the kernel.
    std::vector<std::string> commandLine(std::int32_t pid) const;

    // The user whose rights the process has, also when it is protected from that user.
    std::optional<uid_t> effectiveUser(std::int32_t pid) const;

    // The text that names the groups in which the process is counted and held.
    std::string controlGroups(std::int32_t pid) const;

    // The process that traces it, as debuggers do; 0 when there is none.
    std::optional<std::int32_t> tracer(std::int32_t pid) const;

private:
    std::optional<struct stat> folderStatus(std::int32_t pid) const;
    std::optional<std::string> link(std::int32_t pid, const char *name) const;

    UniqueFd m_root;
};

} // namespace zt

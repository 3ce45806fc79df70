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

// Reads below one folder, laid out as /proc. What cannot be read has no value: the process has
// ended, belongs to another user, or is a thread of the kernel. Thread: any.
class ProcFs {
public:
    explicit ProcFs(const std::string &root = "/proc");

    // The ids of all processes. Empty when the folder cannot be read.
    std::vector<std::int32_t> processIds() const;

    // The id of this very process, as this process file system counts.
    std::optional<std::int32_t> ownProcessId() const;

    // The id that was given to a process or thread last.
    std::optional<std::int32_t> lastProcessId() const;

    std::optional<ProcStat> stat(std::int32_t pid) const;

    // Where the link to the program leads to: the program's path, wherever it was moved to since
    // it was started, with a mark when it was deleted.
    std::optional<std::string> programLink(std::int32_t pid) const;

    // The status of the program file itself, also when it was deleted.
    std::optional<struct stat> programStatus(std::int32_t pid) const;

    std::optional<std::string> workingFolder(std::int32_t pid) const;

    // The arguments; none when they cannot be read, and for a thread of the kernel.
    std::vector<std::string> commandLine(std::int32_t pid) const;

    // The user whose rights the process has.
    std::optional<uid_t> effectiveUser(std::int32_t pid) const;

private:
    std::optional<std::string> link(std::int32_t pid, const char *name) const;

    UniqueFd m_root;
};

} // namespace zt

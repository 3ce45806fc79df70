#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A hidden folder in which something is made before it appears under its name.

#include "Platform/Result.h"
#include "Platform/posix/UniqueFd.h"

#include <string>
#include <string_view>

namespace zt {

// Lies in the folder in which the finished item is to appear, named ".VelmoraInstaller-", the
// process id, "-" and 16 random hexadecimal digits. Locked as long as the owner lives, so that one
// left behind by a killed process can be told. It goes with its owner, and all that is in it.
// Thread: one at a time.
class StagingFolder {
public:
    // Makes one, for the user alone, in the open folder, which stays open as long as it lives.
    static Result<StagingFolder> make(int parent, const std::string &parentPath);

    // Removes what killed processes of this user have left in the open folder. What cannot be
    // removed stays.
    static void sweep(int parent);

    StagingFolder(StagingFolder &&other) noexcept;
    StagingFolder(const StagingFolder &) = delete;
    StagingFolder &operator=(const StagingFolder &) = delete;
    StagingFolder &operator=(StagingFolder &&) = delete;
    ~StagingFolder();

    int descriptor() const { return m_folder.get(); }

    const std::string &path() const { return m_path; }

    // A further hidden name in the parent folder that is swept with this folder.
    std::string siblingName() const;

    // Removes it now, in order to learn whether that succeeds.
    Result<void> remove();

    // Whether a name has the exact form of a staging folder's.
    static bool isName(std::string_view name);

private:
    StagingFolder(int parent, std::string name, std::string path, UniqueFd folder);

    int m_parent;
    std::string m_name; // empty once removed
    std::string m_path;
    UniqueFd m_folder;
};

} // namespace zt

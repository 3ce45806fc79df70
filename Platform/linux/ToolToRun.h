#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The program that is about to be run with an administrator's rights: kept from being another one
// by the time it starts.

#include "Platform/Result.h"

#include <memory>
#include <string>

namespace zt {

// Whether nobody but root and the user of this process can change the file or turn its path
// elsewhere, and root itself can read it where it lies. Thread: any.
bool isSafeWhereItLies(const std::string &toolPath);

// The file to run in place of the tool: the tool itself when it is safe where it lies, else a copy
// in a folder that belongs to this user alone. The copy is removed with the object.
class ToolToRun {
public:
    // Fails when the tool cannot be read or there is no place for a copy. Thread: any.
    static Result<ToolToRun> prepare(const std::string &toolPath);

    ~ToolToRun();
    ToolToRun(ToolToRun &&other) noexcept;
    ToolToRun &operator=(ToolToRun &&other) noexcept;
    ToolToRun(const ToolToRun &) = delete;
    ToolToRun &operator=(const ToolToRun &) = delete;

    const std::string &path() const { return m_path; }
    bool isCopy() const { return !m_copyFolder.empty(); }

private:
    explicit ToolToRun(std::string path, std::string copyFolder = {});
    void removeCopy();

    std::string m_path;
    std::string m_copyFolder; // empty when there is no copy
};

} // namespace zt

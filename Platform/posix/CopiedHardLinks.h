#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Files that have several names in a tree, and the copies that were made of them.

#include "Platform/Result.h"
#include "Platform/posix/UniqueFd.h"

#include <sys/stat.h>

#include <atomic>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>

namespace zt {

// Remembers each copy by a further name in a folder of its own, so that no number of such files
// needs memory. Thread: any.
class CopiedHardLinks {
public:
    enum class Outcome { Linked, NotCopiedYet, Failed };

    // The folder of names is made in the open folder when it is first needed. `note` is told once
    // when the file system has no hard links; it may be empty.
    CopiedHardLinks(int folder, std::string name, std::function<void(std::string_view)> note)
        : m_folder(folder)
        , m_name(std::move(name))
        , m_note(std::move(note)) {}

    // Gives the copy of the original, if there is one, a further name. Outcome::Failed leaves the
    // reason in errno.
    Outcome linkExistingCopy(const struct stat &original, int folder, const char *name);

    // Remembers the complete copy under the name in the open folder. When another thread has
    // copied the same original meanwhile, its copy takes the name.
    Outcome remember(const struct stat &original, int folder, const char *name);

    // Removes the names that were kept.
    Result<void> removeNames();

private:
    int names();
    void noteUnsupported();

    const int m_folder;
    const std::string m_name;
    const std::function<void(std::string_view)> m_note;
    std::mutex m_mutex;
    UniqueFd m_names;
    std::atomic<bool> m_isSupported = true;
};

} // namespace zt

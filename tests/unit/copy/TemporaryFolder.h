#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A folder that exists for one test, and short ways to fill it and to look into it.

#include <sys/types.h>

#include <string>
#include <string_view>
#include <vector>

namespace zt::testing {

// Made in $TMPDIR, or in the given folder; removed with all that is in it. A failure ends the
// program, for no test makes sense without it.
class TemporaryFolder {
public:
    TemporaryFolder();
    explicit TemporaryFolder(const std::string &parent);
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;
    ~TemporaryFolder();

    // The folder's own path without links, or that of an item in it.
    const std::string &path() const { return m_path; }

    std::string path(const std::string &name) const { return m_path + '/' + name; }

    // Each makes the missing folders on the way, and answers the path.
    std::string makeFolder(const std::string &name) const;
    std::string makeFile(const std::string &name, std::string_view content = {},
                         mode_t mode = 0644) const;
    std::string makeLink(const std::string &name, const std::string &target) const;

private:
    std::string m_path;
};

// A folder in memory, where the machine has one; else the usual one. For tests whose moments would
// otherwise all fall into the waiting for a disk.
std::string fastTemporaryParent();
std::string temporaryParent();

// Whether an item, if only a dangling link, has the path.
bool itemExists(const std::string &path);

// The file's content; "<missing>" when it cannot be read.
std::string contentOf(const std::string &path);

// The names in the folder, sorted; empty when it cannot be read.
std::vector<std::string> namesIn(const std::string &path);

} // namespace zt::testing

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Trees to copy. The same in each run, for their numbers come from a fixed seed.

#include <cstdint>
#include <string>
#include <vector>

namespace zt {

// What is in a tree, by paths relative to it; folders before what is in them.
struct TreeList {
    struct File {
        std::string path;
        std::uint64_t size;
    };

    std::vector<std::string> folders;
    std::vector<File> files;
    std::uint64_t bytes = 0;
};

// Thread: one at a time, as for all that follow.

// 3,000 folders with 20,000 files of 400 MB in all, half of them smaller than 4 KB, and 500 links.
void makeSmallFiles(const std::string &path);

// Six files, from `smallest` bytes up to 8/3 of it.
void makeLargeFiles(const std::string &path, std::uint64_t smallest);

TreeList listTree(const std::string &path);

// The bytes of the listed files of a tree, in the list's order and in memory that nothing else has
// touched lately: a copy does not find them in the caches of a core either.
std::vector<std::string> contentsOf(const std::string &path, const TreeList &list);

// Writes files of these bytes, with two threads and as few calls as that takes. Nothing that makes
// such a tree can be much faster. Whether it succeeded.
bool writeSameBytes(const TreeList &list, const std::vector<std::string> &contents,
                    const std::string &target);

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Moving files to the Trash.

#include "Platform/Result.h"

#include <string>

namespace zt {

// Paths are bytes in the file system's own encoding. Thread: any, for all operations.
class Trash {
public:
    virtual ~Trash() = default;

    // Moves the item at the absolute path (a file, a folder with all that is in it, or a symbolic
    // link itself) to the user's Trash, on the item's own volume, with a record of where it came
    // from, so that the desktop can put it back. Answers the item's path in the Trash, empty
    // where the system does not tell it. On failure the item is where it was.
    virtual Result<std::string> moveToTrash(const std::string &path) = 0;

    // The same for the item of this name in the open folder; `path` is its absolute path, for the
    // record and for messages. Unless a Trash can do better, the item is looked up by the path.
    virtual Result<std::string> moveItemToTrash(int /*folder*/, const std::string & /*name*/,
                                                const std::string &path) {
        return moveToTrash(path);
    }

protected:
    Trash() = default;
    Trash(const Trash &) = default;
    Trash &operator=(const Trash &) = default;
};

} // namespace zt

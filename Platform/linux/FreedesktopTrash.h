#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The Trash that Linux desktops share, as freedesktop.org describes it: a "files" and an "info"
// folder in the user's data folder, and the like on each further volume.

#include "Platform/Trash.h"
#include "Platform/posix/UniqueFd.h"

#include <sys/types.h>

#include <functional>
#include <string>

namespace zt {

struct TrashFolder;

// The top folder of the volume that holds the folder at the absolute path, which exists and
// contains no link. Thread: any.
Result<std::string> volumeTopDirectory(const std::string &folder);

class FreedesktopTrash final : public Trash {
public:
    struct Roots {
        std::string dataHome; // the user's data folder, absolute; it need not exist
        uid_t user = 0;
        std::function<Result<std::string>(const std::string &folder)> topDirectoryOf =
            volumeTopDirectory;
    };

    // The roots of the user that this process acts for: $XDG_DATA_HOME or ~/.local/share.
    static Roots rootsOfThisUser();

    explicit FreedesktopTrash(Roots roots);

    // An item on the volume of the user's data folder goes to the home Trash, any other to the
    // Trash of its own volume. When that volume can have none, the item is copied to the home
    // Trash, and goes once the copy is whole and safe.
    Result<std::string> moveToTrash(const std::string &path) override;

    Result<std::string> moveItemToTrash(int folder, const std::string &name,
                                        const std::string &path) override;

private:
    struct Item;

    Result<Item> findItem(const std::string &path) const;
    Result<Item> itemInFolder(UniqueFd folder, std::string name, std::string folderPath) const;
    Result<std::string> moveItem(const Item &item) const;
    Result<TrashFolder> openTrashOnVolumeOf(const Item &item) const;
    static Result<std::string> moveInto(const TrashFolder &trash, const Item &item);
    Result<std::string> copyToHomeTrash(const Item &item) const;
    bool isOnHomeVolume(const Item &item) const;

    Roots m_roots;
};

} // namespace zt

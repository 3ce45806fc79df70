#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The folders in which trashed items and their records are kept.

#include "Platform/Result.h"
#include "Platform/posix/TreeCopy.h"
#include "Platform/posix/UniqueFd.h"

#include <sys/types.h>

#include <string>

namespace zt {

// An open Trash: its two folders exist and are open.
struct TrashFolder {
    std::string path;         // of the Trash itself, absolute
    std::string topDirectory; // the volume's top folder; empty for the home Trash
    UniqueFd folder;          // the Trash itself
    UniqueFd files;
    UniqueFd records;

    // Makes a record under the first name, counted from the attempt on, that no other record has,
    // and answers the item's name in the Trash. The record is on its medium then, so that no crash
    // leaves an item in the Trash without one. Moves `attempt` to the one that succeeded.
    Result<std::string> writeRecord(const std::string &name, const std::string &originalPath,
                                    unsigned &attempt) const;

    // Takes back the record of an item that did not come.
    void removeRecord(const std::string &nameInTrash) const;

    // Copies the item into the Trash, with a record that tells the given path. The item itself
    // stays; answers the copy's name in the Trash. The copy is whole and on its medium then.
    Result<std::string> addCopy(const ItemPlace &item, const std::string &originalPath) const;

    // Takes back a copy with its record.
    void removeCopy(const std::string &nameInTrash) const;

    std::string pathOf(const std::string &nameInTrash) const {
        return path + "/files/" + nameInTrash;
    }
};

// Each of these makes what is missing, for the user alone, and opens it. Thread: any.

// "Trash" in the user's data folder, which is made with its parents.
Result<TrashFolder> openHomeTrash(const std::string &dataHome);

// The same in the data folder that a user has by default in his home folder. To be called while
// acting as that user: it follows no link within the home folder, and fails when anything on the
// way belongs to somebody else, for somebody else decides then where it leads.
Result<TrashFolder> openOwnHomeTrash(const std::string &homeFolder, uid_t user);

// "$top/.Trash/$user", the place that an administrator has prepared for all users. Fails unless
// .Trash is a real folder with the sticky bit, for anyone could put another there otherwise.
Result<TrashFolder> openSharedVolumeTrash(const std::string &topDirectory, uid_t user);

// "$top/.Trash-$user". Fails when it belongs to someone else.
Result<TrashFolder> openPrivateVolumeTrash(const std::string &topDirectory, uid_t user);

} // namespace zt

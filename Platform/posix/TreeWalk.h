#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Walking through a tree of folders with several threads, in bounded memory and with a bounded
// number of descriptors, whatever the depth of the tree and the size of its folders.

#include "Platform/Result.h"
#include "Platform/posix/FileSystemIdentity.h"
#include "Platform/posix/TreeFolders.h"

#include <optional>
#include <stop_token>
#include <string>

namespace zt {

// What is done at each step of a walk. The folder given is open, and so is its parent in
// enterFolder(). Each operation is called on any of the walk's threads, also several at once, and
// ends the walk by answering an error. `worker` is the number of the calling thread, from 0.
class TreeVisitor {
public:
    virtual ~TreeVisitor() = default;

    // Comes before anything else of the folder. May open or make the folder's target.
    virtual Result<void> enterFolder(TreeFolder &folder) = 0;

    // An item of the folder that is not itself a folder. `type` is one of DT_REG, DT_LNK and so on.
    virtual Result<void> visitItem(TreeFolder &folder, const char *name, unsigned char type,
                                   unsigned worker) = 0;

    // Comes after everything else of the folder, its subfolders included.
    virtual Result<void> leaveFolder(TreeFolder &folder) = 0;

    // As whom targets are opened again that were closed meanwhile; as the walking threads when
    // there is no value.
    virtual std::optional<FileSystemIdentity> writer() const { return std::nullopt; }

protected:
    TreeVisitor() = default;
    TreeVisitor(const TreeVisitor &) = default;
    TreeVisitor &operator=(const TreeVisitor &) = default;
};

// Two threads keep a disk and two cores busy; more gained nothing on any tree measured.
inline constexpr unsigned treeWalkWorkers = 2;

// Walks through the open folder and all below it; links are not followed. `path` is what messages
// call the folder. Answers the first error; that of a stop request has the code ECANCELED, that of
// a folder whose entries changed while it was read the code ESTALE. Thread: any; the calling thread
// takes part.
Result<void> walkTree(UniqueFd folder, std::string path, TreeVisitor &visitor,
                      const std::stop_token &stop);

// The error of an operation that was asked to stop.
Error stoppedError(std::string path);

// The error of a source that does not stay as it is while it is read.
Error changedError(std::string path);

} // namespace zt

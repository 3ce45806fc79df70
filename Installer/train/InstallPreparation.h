#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Looking at what is to be installed, and where, before anything is changed.

#include "Installer/train/InstallFunction.h"
#include "Platform/Result.h"
#include "Platform/posix/TreeCopy.h"
#include "Platform/posix/UniqueFd.h"

#include <optional>
#include <string>
#include <vector>

namespace zt {

// An open folder with its path.
struct OpenFolder {
    std::string path; // as it was given, without slashes at the end
    UniqueFd descriptor;

    ItemPlace item(const std::string &name) const;
};

// What an installation works on. What is open stays the same, whatever happens to its path.
struct InstallPlan {
    OpenFolder source;      // the product itself, or the folder of a product that is a file
    std::string sourceName; // "." or the file's name
    std::string sourcePath;

    // As whom the source and the wrapper are read; see zt::TreeCopyRequest.
    std::optional<FileSystemIdentity> readAs = {};

    std::string destinationFolderPath;
    std::string destinationName;
    // Not open as long as it has to be made, out of the wrapper or as a guaranteed folder.
    OpenFolder destinationFolder;
    OpenFolder folderAbove; // in which it will be made; open as long as the other is not
    bool makesGuaranteedFolder = false;

    std::optional<OpenFolder> wrapper;

    ItemPlace sourcePlace() const;

    ItemPlace destinationPlace() const { return destinationFolder.item(destinationName); }

    std::string destinationPath() const;
};

// Opens the source and the destination's folder, and checks them as checkInstallation() does. Fails
// also when the source is neither a folder nor a file; or when the destination is no path of an
// item, or has no folder and none can be made. Changes nothing. Thread: any, as for all that
// follow.
Result<InstallPlan> planInstallation(const InstallPaths &paths,
                                     const std::vector<std::string> &guaranteedFolders);

// Adds the wrapper to the plan, and checks it as checkWrapper() does. Changes nothing else.
Result<void> planWrapper(InstallPlan &plan, const std::string &wrapper);

// Looks at what is open. Fails when the installation cannot end well: the source is unreadable or
// empty, or lies at, in or around the destination. Changes nothing.
Result<void> checkInstallation(const InstallPlan &plan);

// The same for the wrapper, which the plan has. Fails when it is unreadable, or when putting its
// items in place would touch the wrapper itself or the source. Changes nothing.
Result<void> checkWrapper(const InstallPlan &plan);

// Opens a folder to read it and to put things into it; its path may lead through links.
Result<OpenFolder> openFolder(const std::string &path);

// The names in the plan's wrapper, as the file system lists them.
Result<std::vector<std::string>> namesInWrapper(const InstallPlan &plan);

} // namespace zt

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

    std::string destinationFolderPath;
    std::string destinationName;
    // Not open as long as it has to be made, out of the wrapper or as a guaranteed folder.
    OpenFolder destinationFolder;
    bool makesGuaranteedFolder = false;

    std::optional<OpenFolder> wrapper;

    ItemPlace sourcePlace() const;

    ItemPlace destinationPlace() const { return destinationFolder.item(destinationName); }
};

// Looks at the source and at the destination. Fails when the installation cannot end well: the
// source is missing, unreadable or empty, is neither a folder nor a file, or lies at, in or around
// the destination; or the destination is no path of an item, or has no folder and none can be made.
// Changes nothing. Thread: any, as for all that follow.
Result<InstallPlan> planInstallation(const InstallPaths &paths,
                                     const std::vector<std::string> &guaranteedFolders);

// Adds the wrapper to the plan. Fails when it is no readable folder, or when putting its items in
// place would touch the wrapper itself or the source. Changes nothing else.
Result<void> planWrapper(InstallPlan &plan, const std::string &wrapper);

// Opens a folder to read it and to put things into it; its path may lead through links.
Result<OpenFolder> openFolder(const std::string &path);

// The names in the open folder, as the file system lists them.
Result<std::vector<std::string>> namesInFolder(const OpenFolder &folder);

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Looking at what is to be installed on macOS, and where, before anything is changed.

#include "Installer/train/InstallFunction.h"
#include "Platform/Result.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace zt {

// The paths of an installation, without slashes at the end.
struct PathPlan {
    std::string source; // what a link leads to
    std::string folder; // that the destination is in
    std::string name;
    std::optional<std::string> wrapper;

    // Whether the folder is not there yet: it will be made, or the wrapper will become it.
    bool folderIsMissing = false;

    std::string destination() const { return folder + '/' + name; }
};

// What is wrong, and whether it is the wrapper, in a folder that is still missing.
struct PlanFailure {
    Error cause;
    bool concernsWholeWrapper = false;
};

// Looks at everything that InstallApplication() promises to find out before. Changes nothing.
// Thread: any, as for all that follow.
std::variant<PathPlan, PlanFailure> planByPaths(const InstallPaths &paths,
                                                const std::vector<std::string> &guaranteedFolders);

// The names in a folder, as the file system lists them.
Result<std::vector<std::string>> namesInFolder(const std::string &path);

// Whether there is an item, be it a link that leads nowhere.
bool itemExists(const std::string &path);

} // namespace zt

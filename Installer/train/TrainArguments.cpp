// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/train/TrainArguments.h"

#include <climits>

#include <cerrno>
#include <cstddef>

namespace zt {

namespace {

std::string parentOf(const std::string &path) {
    return path.substr(0, path.rfind('/'));
}

} // namespace

bool isCanonicalPath(std::string_view path) {
    // The system counts the NUL at the end too.
    if (!path.starts_with('/') || path.size() >= PATH_MAX || path.find('\0') != path.npos)
        return false;
    while (!path.empty()) {
        path.remove_prefix(1);
        const std::string_view component = path.substr(0, path.find('/'));
        if (component.empty() || component == "." || component == ".." ||
            component.size() > NAME_MAX)
            return false;
        path.remove_prefix(component.size());
    }
    return true;
}

Result<InstallPaths> readTrainArguments(const std::vector<std::string> &arguments) {
    if (arguments.size() != 2 && arguments.size() != 3) {
        return Error{"read", "the arguments",
                     "there must be a source, a destination and at most a wrapper", EINVAL};
    }
    for (const std::string &path : arguments) {
        if (!isCanonicalPath(path))
            return Error{"use", path, "it is not a canonical absolute path", EINVAL};
    }
    InstallPaths paths{arguments[0], arguments[1]};
    if (arguments.size() < 3)
        return paths;
    // The same test by which the installer takes a wrapper or leaves it.
    if (!arguments[2].starts_with(parentOf(paths.source)))
        return Error{"use", arguments[2], "the wrapper does not lie beside the source", EINVAL};
    paths.wrapper = arguments[2];
    return paths;
}

} // namespace zt

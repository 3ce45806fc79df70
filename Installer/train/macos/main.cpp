// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// train on macOS: installs a product with root's rights, for the installer.

#include "Installer/train/ExitStatus.h"
#include "Installer/train/TrainArguments.h"
#include "Platform/macos/WorkspaceTrash.h"
#include "Platform/posix/LogLine.h"

#include <unistd.h>

#include <exception>
#include <string>
#include <vector>

namespace {

// Says why on the log and answers the status.
ExitStatus endWith(ExitStatus status, const zt::Error &cause) {
    zt::writeLogLine(cause.text());
    return status;
}

ExitStatus run(const std::vector<std::string> &arguments) {
    // The system gives the rights to the effective user alone; what is made is to be root's.
    if (::setgid(0) != 0 || ::setuid(0) != 0)
        return endWith(ExitStatus::NotPrivileged, zt::Error::fromErrno("become", "root"));
    const zt::Result<InstallPaths> paths = zt::readTrainArguments(arguments);
    if (!paths)
        return endWith(ExitStatus::Usage, paths.error());
    zt::writeLogLine("Installing " + paths->source + " as " + paths->destination);
    zt::WorkspaceTrash trash;
    return static_cast<ExitStatus>(
        InstallApplication(*paths, {.trash = trash, .log = zt::writeLogLine}));
}

} // namespace

int main(int argc, char **argv) {
    try {
        return static_cast<int>(run({argv + 1, argv + argc}));
    } catch (const std::exception &exception) {
        return static_cast<int>(
            endWith(ExitStatus::CopyFailed, {"install", "the product", exception.what(), 0}));
    }
}

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/ForeignApplications.h"

#include "Platform/linux/ProcPrograms.h"
#include "Platform/linux/ProcScript.h"

#include <QFile>

#include <array>
#include <optional>
#include <string>

#include <pwd.h> // getpwuid_r

namespace zt {

namespace {

// The program's path. Without a root directory in front, it would be looked for in a folder of the
// other user's that is not told either.
std::optional<std::string> programPathOf(const ProcFs &procFs, std::int32_t pid) {
    if (const std::optional<std::string> link = procFs.programLink(pid))
        return std::string(splitDeletedMark(*link).path);
    const std::vector<std::string> arguments = procFs.commandLine(pid);
    if (arguments.empty() || !arguments.front().starts_with('/'))
        return std::nullopt;
    return arguments.front();
}

std::optional<Bundle> bundleOf(const ProcFs &procFs, const Bundles &bundles, std::int32_t pid) {
    std::optional<std::string> path = programPathOf(procFs, pid);
    if (path && innermostBundlePath(*path).empty())
        path = bundledScriptOf(procFs, pid, *path).path;
    return path ? bundles.bundleEnclosing(QFile::decodeName(path->c_str())) : std::nullopt;
}

// The name by which the user logs in, else the number.
QString nameOfUser(uid_t user) {
    std::array<char, 16384> buffer;
    passwd entry = {};
    passwd *found = nullptr;
    if (::getpwuid_r(user, &entry, buffer.data(), buffer.size(), &found) == 0 && found)
        return QString::fromLocal8Bit(found->pw_name);
    return QString::number(user);
}

} // namespace

QList<ForeignApplication> applicationsOfOtherUsers(const ProcFs &procFs, const Bundles &bundles,
                                                   uid_t user) {
    QList<ForeignApplication> applications;
    for (const ProcFolderEntry &folder : procFs.processes()) {
        const std::optional<uid_t> owner = procFs.effectiveUser(folder.pid);
        if (!owner || *owner == user)
            continue;
        const std::optional<Bundle> bundle = bundleOf(procFs, bundles, folder.pid);
        if (!bundle)
            continue;
        const Program program = programOfBundle(*bundle);
        applications << ForeignApplication{.name = program.name,
                                           .signature = program.signature,
                                           .location = program.location,
                                           .userName = nameOfUser(*owner)};
    }
    return applications;
}

} // namespace zt

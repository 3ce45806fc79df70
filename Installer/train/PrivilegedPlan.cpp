// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/train/PrivilegedPlan.h"

#include "Installer/train/TrustedFolder.h"
#include "Platform/posix/SystemCalls.h"

#include <linux/openat2.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/sysmacros.h> // makedev
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <utility>

namespace zt {

namespace {

// Where the information dictionary lies in each layout of a bundle.
constexpr std::array dictionaries = {"Contents/Info.plist", "Info.plist",
                                     "Resources/Info-gnustep.plist"};

UniqueFd openResolving(int folder, const char *path, int flags, std::uint64_t resolve) {
    open_how how = {};
    how.flags = static_cast<decltype(how.flags)>(flags | O_CLOEXEC);
    how.resolve = resolve;
    // The kernel asks to repeat when something on the way was renamed meanwhile.
    for (;;) {
        const long descriptor = ::syscall(SYS_openat2, folder, path, &how, sizeof how);
        if (descriptor >= 0 || (errno != EINTR && errno != EAGAIN))
            return UniqueFd(static_cast<int>(descriptor));
    }
}

std::string parentOf(const std::string &path) {
    const std::size_t slash = path.rfind('/');
    return slash == 0 ? "/" : path.substr(0, slash);
}

std::string lastComponent(const std::string &path) {
    return path.substr(path.rfind('/') + 1);
}

Result<OpenFolder> openWithoutLinks(const std::string &path) {
    UniqueFd folder = openResolving(AT_FDCWD, path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW,
                                    RESOLVE_NO_SYMLINKS | RESOLVE_NO_MAGICLINKS);
    if (!folder)
        return Error::fromErrno("open", path);
    return OpenFolder{path, std::move(folder)};
}

// The dictionary may be a link, as long as it stays in the bundle.
bool isBundle(const OpenFolder &folder) {
    return std::any_of(dictionaries.begin(), dictionaries.end(), [&](const char *dictionary) {
        const UniqueFd file = openResolving(folder.descriptor.get(), dictionary, O_PATH,
                                            RESOLVE_BENEATH | RESOLVE_NO_MAGICLINKS);
        const std::optional<struct stat> status = file ? statusOf(file.get()) : std::nullopt;
        return status && S_ISREG(status->st_mode);
    });
}

// Both are on one volume when they are reached through one mount and, where a file system has
// volumes of its own within, lie on the same of these.
Result<bool> isOnVolumeOf(const OpenFolder &a, const OpenFolder &b) {
    std::array<struct statx, 2> status = {};
    for (std::size_t i = 0; i < status.size(); ++i) {
        const OpenFolder &folder = i == 0 ? a : b;
        if (::statx(folder.descriptor.get(), "", AT_EMPTY_PATH, STATX_MNT_ID, &status[i]) != 0)
            return Error::fromErrno("examine", folder.path);
    }
    const auto volume = [](const struct statx &folder) {
        return std::pair(folder.stx_mnt_id, ::makedev(folder.stx_dev_major, folder.stx_dev_minor));
    };
    return volume(status[0]) == volume(status[1]);
}

Result<void> openSource(InstallPlan &plan, const InstallPaths &paths) {
    const ActingAs reading(plan.readAs);
    Result<OpenFolder> source = openWithoutLinks(paths.source);
    if (!source)
        return source.error();
    if (!isBundle(*source))
        return Error{"install", paths.source, "it is not a bundle", EINVAL};
    plan.source = *std::move(source);
    plan.sourceName = std::string(1, '.'); // the folder itself
    plan.sourcePath = paths.source;
    if (!paths.wrapper)
        return {};
    Result<OpenFolder> wrapper = openWithoutLinks(*paths.wrapper);
    if (!wrapper)
        return wrapper.error();
    const Result<bool> isOnVolume = isOnVolumeOf(*wrapper, plan.source);
    if (!isOnVolume)
        return isOnVolume.error();
    if (!*isOnVolume)
        return Error{"use", wrapper->path, "it lies on another volume than the source", EXDEV};
    plan.wrapper = *std::move(wrapper);
    return {};
}

Result<void> openDestination(InstallPlan &plan, const std::string &destination,
                             const std::vector<std::string> &guaranteedFolders) {
    plan.destinationName = lastComponent(destination);
    plan.destinationFolderPath = parentOf(destination);
    const std::string &path = plan.destinationFolderPath;
    if (belongsToTheSystem(path))
        return Error{"install in", path, "the folder belongs to the system", EPERM};
    Result<UniqueFd> folder = openTrustedFolder(path);
    if (folder) {
        plan.destinationFolder = {path, *std::move(folder)};
        return {};
    }
    plan.makesGuaranteedFolder = std::find(guaranteedFolders.begin(), guaranteedFolders.end(),
                                           path) != guaranteedFolders.end();
    if (folder.error().code != ENOENT || (!plan.makesGuaranteedFolder && !plan.wrapper))
        return folder.error();
    Result<UniqueFd> above = openTrustedFolder(parentOf(path));
    if (!above)
        return above.error();
    plan.folderAbove = {parentOf(path), *std::move(above)};
    return {};
}

} // namespace

Result<InstallPlan> planPrivilegedInstallation(const InstallPaths &paths,
                                               const FileSystemIdentity &reader,
                                               const std::vector<std::string> &guaranteedFolders) {
    InstallPlan plan;
    plan.readAs = reader;
    if (Result<void> opened = openSource(plan, paths); !opened)
        return opened.error();
    if (Result<void> opened = openDestination(plan, paths.destination, guaranteedFolders); !opened)
        return opened.error();
    return plan;
}

} // namespace zt

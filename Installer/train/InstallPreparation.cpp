// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/train/InstallPreparation.h"

#include "Platform/posix/DirectoryReader.h"
#include "Platform/posix/SystemCalls.h"

#include <sys/stat.h>
#include <sys/sysmacros.h> // makedev
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <utility>

namespace zt {

namespace {

std::string withoutTrailingSlashes(const std::string &path) {
    const std::size_t end = path.find_last_not_of('/');
    return end == std::string::npos ? path.substr(0, 1) : path.substr(0, end + 1);
}

std::string parentOf(const std::string &path) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos)
        return ".";
    return slash == 0 ? "/" : withoutTrailingSlashes(path.substr(0, slash));
}

std::string lastComponent(const std::string &path) {
    return path.substr(path.rfind('/') + 1); // npos + 1 is 0
}

// A relative path counts from the working directory; the Trash and messages want absolute ones.
std::string absolutePath(const std::string &path) {
    if (path.starts_with('/'))
        return path;
    const std::unique_ptr<char, decltype(&std::free)> folder(::getcwd(nullptr, 0), &std::free);
    return folder ? std::string(folder.get()) + '/' + path : path;
}

Result<std::string> canonicalPath(const std::string &path) {
    const std::unique_ptr<char, decltype(&std::free)> resolved(::realpath(path.c_str(), nullptr),
                                                               &std::free);
    if (!resolved)
        return Error::fromErrno("find", path);
    return std::string(resolved.get());
}

// What tells a folder from all others, and one way to it from another: a folder may be mounted in
// several places.
struct Identity {
    std::uint64_t device = 0;
    std::uint64_t number = 0;
    std::uint64_t mount = 0;

    bool operator==(const Identity &) const = default;
};

std::optional<Identity> identityOf(int folder) {
    struct statx status = {};
    if (::statx(folder, "", AT_EMPTY_PATH, STATX_INO | STATX_MNT_ID, &status) != 0)
        return std::nullopt;
    return Identity{::makedev(status.stx_dev_major, status.stx_dev_minor), status.stx_ino,
                    status.stx_mnt_id};
}

// The folder and all folders above it, found by going up from it: what its path says by now does
// not matter.
Result<std::vector<Identity>> wayUp(const OpenFolder &folder) {
    std::vector<Identity> way;
    UniqueFd current = openAt(folder.descriptor.get(), ".", O_PATH | O_DIRECTORY);
    for (;;) {
        const std::optional<Identity> identity = current ? identityOf(current.get()) : std::nullopt;
        if (!identity)
            return Error::fromErrno("examine", folder.path);
        // Above the topmost folder there is only itself.
        if (!way.empty() && way.back() == *identity)
            return way;
        way.push_back(*identity);
        current = openAt(current.get(), "..", O_PATH | O_DIRECTORY);
    }
}

bool leadsThrough(const std::vector<Identity> &way, const struct stat &item) {
    return std::any_of(way.begin(), way.end(), [&](const Identity &folder) {
        return folder.device == item.st_dev && folder.number == item.st_ino;
    });
}

Error badPath(std::string path, std::string cause) {
    return {"use", std::move(path), std::move(cause), EINVAL};
}

Result<bool> hasEntries(const OpenFolder &folder) {
    const UniqueFd listing = openAt(folder.descriptor.get(), ".", O_RDONLY | O_DIRECTORY);
    if (!listing)
        return Error::fromErrno("open", folder.path);
    alignas(std::uint64_t) std::array<std::byte, DirectoryReader::minimumBufferSize> buffer;
    DirectoryReader reader(listing.get(), buffer);
    const bool hasAny = reader.next() != nullptr;
    if (reader.error() != 0)
        return Error::fromErrno("read", folder.path, reader.error());
    return hasAny;
}

// The source may be reached through a link: what the link leads to is installed.
Result<void> planSource(InstallPlan &plan, const std::string &path) {
    const Result<std::string> canonical = canonicalPath(path);
    if (!canonical)
        return canonical.error();
    const std::optional<struct stat> status = statusAt(AT_FDCWD, canonical->c_str());
    if (!status)
        return Error::fromErrno("find", path);
    const bool isFolder = S_ISDIR(status->st_mode);
    if (!isFolder && !S_ISREG(status->st_mode))
        return badPath(path, "it is neither a folder nor a file");
    Result<OpenFolder> folder = openFolder(isFolder ? *canonical : parentOf(*canonical));
    if (!folder)
        return folder.error();
    plan.source = *std::move(folder);
    plan.sourceName = isFolder ? "." : lastComponent(*canonical);
    plan.sourcePath = *canonical;
    return {};
}

Result<void> planDestination(InstallPlan &plan, const InstallPaths &paths,
                             const std::vector<std::string> &guaranteedFolders) {
    const std::string path = withoutTrailingSlashes(absolutePath(paths.destination));
    plan.destinationName = lastComponent(path);
    plan.destinationFolderPath = parentOf(path);
    if (plan.destinationName.empty() || plan.destinationName == "." || plan.destinationName == "..")
        return badPath(paths.destination, "it is not the path of an item in a folder");
    Result<OpenFolder> folder = openFolder(plan.destinationFolderPath);
    if (folder) {
        plan.destinationFolder = *std::move(folder);
        return {};
    }
    plan.makesGuaranteedFolder = std::find(guaranteedFolders.begin(), guaranteedFolders.end(),
                                           plan.destinationFolderPath) != guaranteedFolders.end();
    const bool canBeMade = plan.makesGuaranteedFolder || paths.wrapper;
    if (folder.error().code != ENOENT || !canBeMade ||
        statusAt(AT_FDCWD, plan.destinationFolderPath.c_str()))
        return folder.error();
    Result<OpenFolder> above = openFolder(parentOf(plan.destinationFolderPath));
    if (!above)
        return above.error();
    plan.folderAbove = *std::move(above);
    return {};
}

Result<void> checkHasContent(const InstallPlan &plan, const struct stat &source) {
    const ActingAs reading(plan.readAs);
    const bool isFolder = S_ISDIR(source.st_mode);
    const Result<bool> hasContent =
        isFolder ? hasEntries(plan.source) : Result<bool>(source.st_size > 0);
    if (!hasContent)
        return hasContent.error();
    if (!*hasContent)
        return badPath(plan.sourcePath, "it is empty");
    if (!isFolder &&
        !openAt(plan.source.descriptor.get(), plan.sourceName.c_str(), O_RDONLY | O_NONBLOCK))
        return Error::fromErrno("open", plan.sourcePath);
    return {};
}

// The folder that the destination lies in, or will lie in as soon as that is made.
const OpenFolder &lowestFolder(const InstallPlan &plan) {
    return plan.destinationFolder.descriptor ? plan.destinationFolder : plan.folderAbove;
}

// Whether anything is in the way of keeping source and destination apart.
Result<void> checkApart(const InstallPlan &plan, const struct stat &source) {
    const Result<std::vector<Identity>> toDestination = wayUp(lowestFolder(plan));
    if (!toDestination)
        return toDestination.error();
    if (leadsThrough(*toDestination, source))
        return badPath(plan.destinationPath(), "it lies within the source");
    if (!plan.destinationFolder.descriptor)
        return {};
    const std::optional<struct stat> existing =
        statusAt(plan.destinationFolder.descriptor.get(), plan.destinationName.c_str());
    if (!existing) {
        return errno == ENOENT ? Result<void>()
                               : Error::fromErrno("examine", plan.destinationPath());
    }
    if (isSameItem(*existing, source))
        return badPath(plan.destinationPath(), "it is the source itself");
    const Result<std::vector<Identity>> toSource = wayUp(plan.source);
    if (!toSource)
        return toSource.error();
    if (leadsThrough(*toSource, *existing))
        return badPath(plan.destinationPath(), "the source lies within it");
    return {};
}

// Whether an item of the wrapper would take the place of what is still to be copied.
Result<void> checkItemsApart(const InstallPlan &plan, const std::vector<std::string> &names) {
    const std::optional<struct stat> source =
        statusAt(plan.source.descriptor.get(), plan.sourceName.c_str());
    if (!source)
        return Error::fromErrno("find", plan.sourcePath);
    const Result<std::vector<Identity>> toSource = wayUp(plan.source);
    if (!toSource)
        return toSource.error();
    const Result<std::vector<Identity>> toWrapper = wayUp(*plan.wrapper);
    if (!toWrapper)
        return toWrapper.error();
    for (const std::string &name : names) {
        const ItemPlace item = plan.destinationFolder.item(name);
        const std::optional<struct stat> existing = statusAt(item.folder, name.c_str());
        if (existing && (leadsThrough(*toWrapper, *existing) || isSameItem(*source, *existing) ||
                         leadsThrough(*toSource, *existing)))
            return badPath(item.path, "it holds what is to be copied");
    }
    return {};
}

} // namespace

ItemPlace OpenFolder::item(const std::string &name) const {
    return {descriptor.get(), name, path == "/" ? '/' + name : path + '/' + name};
}

std::string InstallPlan::destinationPath() const {
    return destinationFolderPath == "/" ? '/' + destinationName
                                        : destinationFolderPath + '/' + destinationName;
}

ItemPlace InstallPlan::sourcePlace() const {
    return {source.descriptor.get(), sourceName, sourcePath};
}

Result<OpenFolder> openFolder(const std::string &path) {
    UniqueFd folder = openAt(AT_FDCWD, path.c_str(), O_RDONLY | O_DIRECTORY);
    if (!folder)
        return Error::fromErrno("open", path);
    return OpenFolder{path, std::move(folder)};
}

Result<std::vector<std::string>> namesInWrapper(const InstallPlan &plan) {
    const ActingAs reading(plan.readAs);
    const OpenFolder &folder = *plan.wrapper;
    const UniqueFd listing = openAt(folder.descriptor.get(), ".", O_RDONLY | O_DIRECTORY);
    if (!listing)
        return Error::fromErrno("open", folder.path);
    std::vector<std::string> names;
    alignas(std::uint64_t) std::array<std::byte, 16384> buffer;
    DirectoryReader reader(listing.get(), buffer);
    while (const DirectoryReader::Entry *entry = reader.next())
        names.emplace_back(entry->name);
    if (reader.error() != 0)
        return Error::fromErrno("read", folder.path, reader.error());
    return names;
}

Result<void> checkInstallation(const InstallPlan &plan) {
    const std::optional<struct stat> source =
        statusAt(plan.source.descriptor.get(), plan.sourceName.c_str());
    if (!source)
        return Error::fromErrno("find", plan.sourcePath);
    if (Result<void> hasContent = checkHasContent(plan, *source); !hasContent)
        return hasContent;
    return checkApart(plan, *source);
}

Result<void> checkWrapper(const InstallPlan &plan) {
    const std::optional<struct stat> status = statusOf(plan.wrapper->descriptor.get());
    if (!status)
        return Error::fromErrno("examine", plan.wrapper->path);
    const Result<std::vector<Identity>> toDestination = wayUp(lowestFolder(plan));
    if (!toDestination)
        return toDestination.error();
    if (leadsThrough(*toDestination, *status))
        return badPath(plan.wrapper->path, "the destination lies within it");
    const Result<std::vector<std::string>> names = namesInWrapper(plan);
    if (!names)
        return names.error();
    return plan.destinationFolder.descriptor ? checkItemsApart(plan, *names) : Result<void>();
}

Result<InstallPlan> planInstallation(const InstallPaths &paths,
                                     const std::vector<std::string> &guaranteedFolders) {
    if (paths.source.empty())
        return badPath("the source", "its path is empty");
    if (paths.destination.empty())
        return badPath("the destination", "its path is empty");
    InstallPlan plan;
    if (Result<void> planned = planSource(plan, paths.source); !planned)
        return planned.error();
    if (Result<void> planned = planDestination(plan, paths, guaranteedFolders); !planned)
        return planned.error();
    if (Result<void> checked = checkInstallation(plan); !checked)
        return checked.error();
    return plan;
}

Result<void> planWrapper(InstallPlan &plan, const std::string &wrapper) {
    const Result<std::string> canonical = canonicalPath(wrapper);
    if (!canonical)
        return canonical.error();
    Result<OpenFolder> folder = openFolder(*canonical);
    if (!folder)
        return folder.error();
    plan.wrapper = *std::move(folder);
    return checkWrapper(plan);
}

} // namespace zt

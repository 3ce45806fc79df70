// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/train/InstallPreparation.h"

#include "Platform/posix/DirectoryReader.h"
#include "Platform/posix/SystemCalls.h"

#include <sys/stat.h>
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

// Whether the item is what the canonical path names, or a folder on the way to it. Compared by
// identity, so that another way to the same folder, as by a second mount, does not deceive.
bool leadsThrough(const std::string &canonical, const struct stat &item) {
    for (std::string path = canonical;; path = parentOf(path)) {
        const std::optional<struct stat> status = statusAt(AT_FDCWD, path.c_str());
        if (status && isSameItem(*status, item))
            return true;
        if (path == "/")
            return false;
    }
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
Result<void> planSource(InstallPlan &plan, const std::string &path, const std::string &canonical) {
    const std::optional<struct stat> status = statusAt(AT_FDCWD, canonical.c_str());
    if (!status)
        return Error::fromErrno("find", path);
    const bool isFolder = S_ISDIR(status->st_mode);
    if (!isFolder && !S_ISREG(status->st_mode))
        return badPath(path, "it is neither a folder nor a file");
    Result<OpenFolder> folder = openFolder(isFolder ? canonical : parentOf(canonical));
    if (!folder)
        return folder.error();
    plan.source = *std::move(folder);
    plan.sourceName = isFolder ? "." : lastComponent(canonical);
    plan.sourcePath = canonical;
    const Result<bool> hasContent =
        isFolder ? hasEntries(plan.source) : Result<bool>(status->st_size > 0);
    if (!hasContent)
        return hasContent.error();
    if (!*hasContent)
        return badPath(path, "it is empty");
    if (!isFolder &&
        !openAt(plan.source.descriptor.get(), plan.sourceName.c_str(), O_RDONLY | O_NONBLOCK))
        return Error::fromErrno("open", path);
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
    const Result<OpenFolder> above = openFolder(parentOf(plan.destinationFolderPath));
    if (!above)
        return above.error();
    return {};
}

// Where the destination is, or will be: the canonical path of what exists of it.
Result<std::string> canonicalDestinationFolder(const InstallPlan &plan) {
    return canonicalPath(plan.destinationFolder.descriptor ? plan.destinationFolderPath
                                                           : parentOf(plan.destinationFolderPath));
}

// Whether anything is in the way of keeping source and destination apart.
Result<void> checkApart(const InstallPlan &plan, const std::string &canonicalSource) {
    const Result<std::string> folder = canonicalDestinationFolder(plan);
    if (!folder)
        return folder.error();
    const std::optional<struct stat> source = statusAt(AT_FDCWD, canonicalSource.c_str());
    if (!source)
        return Error::fromErrno("find", canonicalSource);
    const std::string destination = plan.destinationFolderPath + '/' + plan.destinationName;
    if (leadsThrough(*folder, *source))
        return badPath(destination, "it lies within the source");
    if (!plan.destinationFolder.descriptor)
        return {};
    const std::optional<struct stat> existing =
        statusAt(plan.destinationFolder.descriptor.get(), plan.destinationName.c_str());
    if (!existing)
        return errno == ENOENT ? Result<void>() : Error::fromErrno("examine", destination);
    if (isSameItem(*existing, *source))
        return badPath(destination, "it is the source itself");
    if (leadsThrough(canonicalSource, *existing))
        return badPath(destination, "the source lies within it");
    return {};
}

} // namespace

ItemPlace OpenFolder::item(const std::string &name) const {
    return {descriptor.get(), name, path == "/" ? '/' + name : path + '/' + name};
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

Result<std::vector<std::string>> namesInFolder(const OpenFolder &folder) {
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

Result<InstallPlan> planInstallation(const InstallPaths &paths,
                                     const std::vector<std::string> &guaranteedFolders) {
    if (paths.source.empty())
        return badPath("the source", "its path is empty");
    if (paths.destination.empty())
        return badPath("the destination", "its path is empty");
    InstallPlan plan;
    const Result<std::string> source = canonicalPath(paths.source);
    if (!source)
        return source.error();
    if (Result<void> planned = planSource(plan, paths.source, *source); !planned)
        return planned.error();
    if (Result<void> planned = planDestination(plan, paths, guaranteedFolders); !planned)
        return planned.error();
    if (Result<void> apart = checkApart(plan, *source); !apart)
        return apart.error();
    return plan;
}

Result<void> planWrapper(InstallPlan &plan, const std::string &wrapper) {
    const Result<std::string> canonical = canonicalPath(wrapper);
    if (!canonical)
        return canonical.error();
    Result<OpenFolder> folder = openFolder(*canonical);
    if (!folder)
        return folder.error();
    const std::optional<struct stat> status = statusOf(folder->descriptor.get());
    const Result<std::string> target = canonicalDestinationFolder(plan);
    if (!status || !target)
        return Error::fromErrno("examine", wrapper);
    if (leadsThrough(*target, *status))
        return badPath(wrapper, "the destination lies within it");
    const Result<std::vector<std::string>> names = namesInFolder(*folder);
    if (!names)
        return names.error();
    plan.wrapper = *std::move(folder);
    if (!plan.destinationFolder.descriptor)
        return {};
    for (const std::string &name : *names) {
        const ItemPlace item = plan.destinationFolder.item(name);
        const std::optional<struct stat> existing = statusAt(item.folder, name.c_str());
        if (existing &&
            (leadsThrough(*canonical, *existing) || leadsThrough(plan.sourcePath, *existing)))
            return badPath(item.path, "it holds what is to be copied");
    }
    return {};
}

} // namespace zt

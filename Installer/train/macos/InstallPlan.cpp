// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Installer/train/macos/InstallPlan.h"

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace zt {

namespace {

struct FolderDeleter {
    void operator()(DIR *folder) const { ::closedir(folder); }
};

std::string withoutSlashesAtTheEnd(std::string path) {
    while (path.size() > 1 && path.ends_with('/'))
        path.pop_back();
    return path;
}

std::string parentOf(const std::string &path) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos)
        return ".";
    return slash == 0 ? "/" : withoutSlashesAtTheEnd(path.substr(0, slash));
}

std::string nameOf(const std::string &path) {
    return path.substr(path.rfind('/') + 1);
}

Error refusal(const std::string &path, std::string cause, int code = EINVAL) {
    return {"install", path, std::move(cause), code};
}

// The path of the item itself, without links on the way.
Result<std::string> realPath(const std::string &path) {
    std::array<char, PATH_MAX> real = {};
    if (!::realpath(path.c_str(), real.data()))
        return Error::fromErrno("open", path);
    return std::string(real.data());
}

std::optional<struct stat> statusOfItem(const std::string &path) {
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0)
        return std::nullopt;
    return status;
}

bool areOneItem(const struct stat &a, const struct stat &b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

// Whether the item at the real path is the other one, or lies somewhere in it. By what the items
// are, since two names may differ in case alone.
bool isItemOrWithin(std::string path, const std::string &other) {
    const auto wanted = statusOfItem(other);
    if (!wanted)
        return false;
    for (;;) {
        const auto status = statusOfItem(path);
        if (status && areOneItem(*status, *wanted))
            return true;
        if (path == "/" || path == ".")
            return false;
        path = parentOf(path);
    }
}

bool isFolder(const std::string &path) {
    const auto status = statusOfItem(path);
    return status && S_ISDIR(status->st_mode);
}

Result<std::string> planSource(const std::string &path) {
    if (path.empty())
        return refusal(path, "its path is empty");
    Result<std::string> source = realPath(path);
    if (!source)
        return source;
    const auto status = statusOfItem(*source);
    if (!status || !(S_ISDIR(status->st_mode) || S_ISREG(status->st_mode)))
        return refusal(path, "neither a folder nor a file");
    if (::access(source->c_str(), S_ISDIR(status->st_mode) ? R_OK | X_OK : R_OK) != 0)
        return Error::fromErrno("open", path);
    bool isEmpty = S_ISREG(status->st_mode) && status->st_size == 0;
    if (S_ISDIR(status->st_mode)) {
        const auto names = namesInFolder(*source);
        if (!names)
            return names.error();
        isEmpty = names->empty();
    }
    if (isEmpty)
        return refusal(path, "it is empty");
    return source;
}

// The folder of the destination, which may be missing where something can become it.
Result<void> planFolder(PathPlan &plan, const std::string &destination,
                        const std::vector<std::string> &guaranteedFolders) {
    plan.name = nameOf(destination);
    if (destination.empty())
        return refusal(destination, "its path is empty");
    if (plan.name.empty() || plan.name == "." || plan.name == "..")
        return refusal(destination, "not the path of an item in a folder");
    if (plan.name.size() > NAME_MAX)
        return Error::fromErrno("install", destination, ENAMETOOLONG);
    const std::string folder = parentOf(destination);
    if (isFolder(folder)) {
        plan.folder = folder;
        return {};
    }
    const bool isGuaranteed =
        std::ranges::find(guaranteedFolders, folder) != guaranteedFolders.end();
    if (itemExists(folder) || !(isGuaranteed || plan.wrapper) || !isFolder(parentOf(folder))) {
        const Result<std::string> real = realPath(folder);
        return real ? Error::fromErrno("open", folder, ENOTDIR) : real.error();
    }
    plan.folder = folder;
    plan.folderIsMissing = true;
    return {};
}

// The destination without links on the way; it need not exist.
std::string realDestination(const PathPlan &plan) {
    const std::string existing = plan.folderIsMissing ? parentOf(plan.folder) : plan.folder;
    const Result<std::string> real = realPath(existing);
    const std::string top = real ? *real : existing;
    return plan.folderIsMissing ? top + '/' + nameOf(plan.folder) + '/' + plan.name
                                : top + '/' + plan.name;
}

Result<void> checkPlaces(const PathPlan &plan, const std::string &destination) {
    const std::string real = realDestination(plan);
    const bool isLink = [&] {
        struct stat status = {};
        return ::lstat(real.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
    }();
    const auto source = statusOfItem(plan.source);
    const auto target = isLink ? std::nullopt : statusOfItem(real);
    if (source && target && areOneItem(*source, *target))
        return refusal(destination, "it is the source itself");
    if (isItemOrWithin(parentOf(real), plan.source))
        return refusal(destination, "it lies within the source");
    if (!isLink && isItemOrWithin(plan.source, real))
        return refusal(destination, "the source lies within it");
    return {};
}

Result<void> checkWrapperItems(const PathPlan &plan) {
    const Result<std::vector<std::string>> names = namesInFolder(*plan.wrapper);
    if (!names)
        return names.error();
    const Result<std::string> wrapper = realPath(*plan.wrapper);
    if (!wrapper)
        return wrapper.error();
    if (isItemOrWithin(parentOf(realDestination(plan)), *wrapper))
        return refusal(*plan.wrapper, "the destination lies within it");
    for (const std::string &name : *names) {
        const std::string target = plan.folder + '/' + name;
        if (isItemOrWithin(*wrapper, target) || isItemOrWithin(plan.source, target))
            return refusal(target, "it holds what is to be copied");
    }
    return {};
}

} // namespace

Result<std::vector<std::string>> namesInFolder(const std::string &path) {
    const std::unique_ptr<DIR, FolderDeleter> folder(::opendir(path.c_str()));
    if (!folder)
        return Error::fromErrno("open", path);
    std::vector<std::string> names;
    errno = 0;
    while (const dirent *const entry = ::readdir(folder.get())) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..")
            names.emplace_back(name);
    }
    if (errno != 0)
        return Error::fromErrno("read", path);
    return names;
}

bool itemExists(const std::string &path) {
    struct stat status = {};
    return ::lstat(path.c_str(), &status) == 0;
}

std::variant<PathPlan, PlanFailure> planByPaths(const InstallPaths &paths,
                                                const std::vector<std::string> &guaranteedFolders) {
    PathPlan plan;
    const std::string destination = withoutSlashesAtTheEnd(paths.destination);
    if (paths.wrapper)
        plan.wrapper = withoutSlashesAtTheEnd(*paths.wrapper);
    Result<std::string> source = planSource(withoutSlashesAtTheEnd(paths.source));
    if (!source)
        return PlanFailure{source.error()};
    plan.source = *std::move(source);
    if (const auto planned = planFolder(plan, destination, guaranteedFolders); !planned)
        return PlanFailure{planned.error()};
    if (const auto checked = checkPlaces(plan, destination); !checked)
        return PlanFailure{checked.error()};
    if (!plan.wrapper)
        return plan;
    if (const auto checked = checkWrapperItems(plan); !checked) {
        const bool isGuaranteed =
            std::ranges::find(guaranteedFolders, plan.folder) != guaranteedFolders.end();
        return PlanFailure{checked.error(), plan.folderIsMissing && !isGuaranteed};
    }
    return plan;
}

} // namespace zt

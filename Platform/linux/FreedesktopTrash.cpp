// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/FreedesktopTrash.h"

#include "Platform/linux/FreedesktopTrashFolder.h"
#include "Platform/posix/StagedCopy.h"
#include "Platform/posix/SystemCalls.h"
#include "Platform/posix/TreeRemoval.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>
#include <utility>

namespace zt {

namespace {

std::optional<std::string> canonicalPath(const std::string &path) {
    const std::unique_ptr<char, decltype(&std::free)> resolved(::realpath(path.c_str(), nullptr),
                                                               &std::free);
    if (!resolved)
        return std::nullopt;
    return std::string(resolved.get());
}

std::string parentOf(const std::string &path) {
    const std::size_t slash = path.rfind('/');
    return slash == 0 ? "/" : path.substr(0, slash);
}

// What two folders share exactly when an item can be renamed from one to the other: the mount, and
// on file systems with subvolumes the device.
using Volume = std::pair<std::uint64_t, std::uint64_t>;

std::optional<Volume> volumeOf(const std::string &path) {
    struct statx status = {};
    if (::statx(AT_FDCWD, path.c_str(), AT_SYMLINK_NOFOLLOW, STATX_MNT_ID, &status) != 0)
        return std::nullopt;
    const std::uint64_t device =
        static_cast<std::uint64_t>(status.stx_dev_major) << 32U | status.stx_dev_minor;
    return Volume(status.stx_mnt_id, device);
}

std::string homeFolder() {
    if (const char *home = std::getenv("HOME"); home && home[0] == '/')
        return home;
    std::array<char, 16384> buffer = {};
    passwd entry = {};
    passwd *found = nullptr;
    if (::getpwuid_r(::geteuid(), &entry, buffer.data(), buffer.size(), &found) == 0 && found)
        return found->pw_dir;
    return "/";
}

} // namespace

Result<std::string> volumeTopDirectory(const std::string &folder) {
    const std::optional<Volume> volume = volumeOf(folder);
    if (!volume)
        return Error::fromErrno("examine", folder);
    std::string top = folder;
    while (top != "/") {
        const std::string parent = parentOf(top);
        if (volumeOf(parent) != volume)
            break;
        top = parent;
    }
    return top;
}

struct FreedesktopTrash::Item {
    std::string folder; // canonical, so that the record tells the true origin
    std::string name;
    std::string topDirectory;
    UniqueFd folderDescriptor;

    std::string path() const { return folder == "/" ? '/' + name : folder + '/' + name; }

    // The path as it stands in a record of this Trash.
    std::string recordedPath(const TrashFolder &trash) const {
        if (trash.topDirectory.empty())
            return path();
        return path().substr(topDirectory == "/" ? 1 : topDirectory.size() + 1);
    }
};

FreedesktopTrash::Roots FreedesktopTrash::rootsOfThisUser() {
    Roots roots;
    roots.user = ::geteuid();
    const char *dataHome = std::getenv("XDG_DATA_HOME");
    // A relative path there is invalid and counts as unset.
    roots.dataHome = dataHome && dataHome[0] == '/' ? dataHome : homeFolder() + "/.local/share";
    return roots;
}

FreedesktopTrash::FreedesktopTrash(Roots roots) : m_roots(std::move(roots)) {}

Result<FreedesktopTrash::Item> FreedesktopTrash::findItem(const std::string &path) const {
    const std::size_t end = path.find_last_not_of('/');
    if (path.empty() || path[0] != '/' || end == std::string::npos)
        return Error{"move to the Trash", path, "not the absolute path of an item", EINVAL};
    const std::string trimmed = path.substr(0, end + 1);
    Item item;
    item.name = trimmed.substr(trimmed.rfind('/') + 1);
    if (item.name == "." || item.name == "..")
        return Error{"move to the Trash", path, "not the name of an item", EINVAL};
    const std::optional<std::string> folder = canonicalPath(parentOf(trimmed));
    if (!folder)
        return Error::fromErrno("find", parentOf(trimmed));
    item.folder = *folder;
    item.folderDescriptor = openAt(AT_FDCWD, item.folder.c_str(), O_PATH | O_DIRECTORY);
    if (!item.folderDescriptor)
        return Error::fromErrno("open", item.folder);
    if (!statusAt(item.folderDescriptor.get(), item.name.c_str()))
        return Error::fromErrno("find", path);
    Result<std::string> top = m_roots.topDirectoryOf(item.folder);
    if (!top)
        return top.error();
    item.topDirectory = *std::move(top);
    return item;
}

bool FreedesktopTrash::isOnHomeVolume(const Item &item) const {
    // The data folder may still have to be made: its nearest existing parent tells the volume.
    for (std::string folder = m_roots.dataHome; !folder.empty(); folder = parentOf(folder)) {
        if (const std::optional<std::string> canonical = canonicalPath(folder)) {
            const Result<std::string> top = m_roots.topDirectoryOf(*canonical);
            return top && *top == item.topDirectory;
        }
        if (folder == "/")
            break;
    }
    return false;
}

Result<TrashFolder> FreedesktopTrash::openTrashOnVolumeOf(const Item &item) const {
    std::optional<Error> homeError;
    if (isOnHomeVolume(item)) {
        Result<TrashFolder> trash = openHomeTrash(m_roots.dataHome);
        if (trash)
            return trash;
        homeError = trash.error();
    }
    if (Result<TrashFolder> trash = openSharedVolumeTrash(item.topDirectory, m_roots.user))
        return trash;
    Result<TrashFolder> trash = openPrivateVolumeTrash(item.topDirectory, m_roots.user);
    // Where the home Trash should have served, its failure is the one that explains.
    if (!trash && homeError)
        return *homeError;
    return trash;
}

// Moves the item within its volume.
Result<std::string> FreedesktopTrash::moveInto(const TrashFolder &trash, const Item &item) {
    for (unsigned attempt = 1;; ++attempt) {
        Result<std::string> newName =
            trash.writeRecord(item.name, item.recordedPath(trash), attempt);
        if (!newName)
            return newName;
        if (moveWithoutReplacing(item.folderDescriptor.get(), item.name.c_str(), trash.files.get(),
                                 newName->c_str()))
            return trash.path + "/files/" + *newName;
        const int code = errno;
        trash.removeRecord(*newName);
        // A file without a record holds the name: another one is tried.
        if (code != EEXIST)
            return Error::fromErrno("move to the Trash", item.path(), code);
    }
}

// For a volume that can have no Trash. The item goes only when its copy is whole and on its medium.
Result<std::string> FreedesktopTrash::copyToHomeTrash(const Item &item) const {
    // Made first, because a folder in which nothing can be made gives up nothing either.
    Result<StagingFolder> leaving = StagingFolder::make(item.folderDescriptor.get(), item.folder);
    if (!leaving)
        return leaving.error();
    const Result<TrashFolder> trash = openHomeTrash(m_roots.dataHome);
    if (!trash)
        return trash.error();
    StagingFolder::sweep(trash->folder.get());
    const ItemPlace origin = {item.folderDescriptor.get(), item.name, item.path()};
    Result<StagedCopy> copy = StagedCopy::make(
        origin, {trash->folder.get(), item.name, trash->path + '/' + item.name}, {});
    if (!copy)
        return copy.error();
    for (unsigned attempt = 1;; ++attempt) {
        Result<std::string> newName = trash->writeRecord(item.name, item.path(), attempt);
        if (!newName)
            return newName;
        const std::string newPath = trash->path + "/files/" + *newName;
        const Result<void> placed = copy->place({trash->files.get(), *newName, newPath});
        if (placed &&
            moveWithoutReplacing(origin.folder, origin.name.c_str(), leaving->descriptor(), "item"))
            return newPath;
        const Error error =
            placed ? Error::fromErrno("move to the Trash", item.path()) : placed.error();
        if (placed)
            static_cast<void>(removeTree(trash->files.get(), newName->c_str()));
        trash->removeRecord(*newName);
        if (placed || error.code != EEXIST)
            return error;
    }
}

Result<std::string> FreedesktopTrash::moveToTrash(const std::string &path) {
    const Result<Item> item = findItem(path);
    if (!item)
        return item.error();
    const Result<TrashFolder> trash = openTrashOnVolumeOf(*item);
    Result<std::string> moved =
        trash ? moveInto(*trash, *item) : Result<std::string>(trash.error());
    // Either the volume has no place for a Trash, or what looks like one volume is not.
    const bool needsCopy = trash ? !moved && moved.error().code == EXDEV : !isOnHomeVolume(*item);
    if (!needsCopy)
        return moved;
    return copyToHomeTrash(*item);
}

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/FreedesktopTrash.h"

#include "Platform/linux/FreedesktopTrashFolder.h"
#include "Platform/posix/StagingFolder.h"
#include "Platform/posix/SystemCalls.h"

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
    std::string name = trimmed.substr(trimmed.rfind('/') + 1);
    if (name == "." || name == "..")
        return Error{"move to the Trash", path, "not the name of an item", EINVAL};
    const std::optional<std::string> folder = canonicalPath(parentOf(trimmed));
    if (!folder)
        return Error::fromErrno("find", parentOf(trimmed));
    UniqueFd descriptor = openAt(AT_FDCWD, folder->c_str(), O_PATH | O_DIRECTORY);
    if (!descriptor)
        return Error::fromErrno("open", *folder);
    return itemInFolder(std::move(descriptor), std::move(name), *folder);
}

Result<FreedesktopTrash::Item> FreedesktopTrash::itemInFolder(UniqueFd folder, std::string name,
                                                              std::string folderPath) const {
    Item item;
    item.folder = std::move(folderPath);
    item.name = std::move(name);
    item.folderDescriptor = std::move(folder);
    if (!statusAt(item.folderDescriptor.get(), item.name.c_str()))
        return Error::fromErrno("find", item.path());
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
            return trash.pathOf(*newName);
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
    const ItemPlace origin = {item.folderDescriptor.get(), item.name, item.path()};
    Result<std::string> newName = trash->addCopy(origin, item.path());
    if (!newName)
        return newName;
    if (moveWithoutReplacing(origin.folder, origin.name.c_str(), leaving->descriptor(), "item"))
        return trash->pathOf(*newName);
    const Error error = Error::fromErrno("move to the Trash", item.path());
    trash->removeCopy(*newName);
    return error;
}

Result<std::string> FreedesktopTrash::moveItem(const Item &item) const {
    const Result<TrashFolder> trash = openTrashOnVolumeOf(item);
    Result<std::string> moved = trash ? moveInto(*trash, item) : Result<std::string>(trash.error());
    // Either the volume has no place for a Trash, or what looks like one volume is not.
    const bool needsCopy = trash ? !moved && moved.error().code == EXDEV : !isOnHomeVolume(item);
    if (!needsCopy)
        return moved;
    return copyToHomeTrash(item);
}

Result<std::string> FreedesktopTrash::moveToTrash(const std::string &path) {
    const Result<Item> item = findItem(path);
    return item ? moveItem(*item) : item.error();
}

Result<std::string> FreedesktopTrash::moveItemToTrash(int folder, const std::string &name,
                                                      const std::string &path) {
    UniqueFd descriptor = openAt(folder, ".", O_PATH | O_DIRECTORY);
    if (!descriptor)
        return Error::fromErrno("open", parentOf(path));
    // The record tells the true origin, unless the path has come to lead elsewhere.
    const std::string given = parentOf(path);
    const std::string canonical = canonicalPath(given).value_or(given);
    const std::optional<struct stat> opened = statusOf(descriptor.get());
    const std::optional<struct stat> named = statusAt(AT_FDCWD, canonical.c_str());
    const bool isSame = opened && named && isSameItem(*opened, *named);
    const Result<Item> item = itemInFolder(std::move(descriptor), name, isSame ? canonical : given);
    return item ? moveItem(*item) : item.error();
}

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/FreedesktopTrashFolder.h"

#include "Platform/linux/FreedesktopTrashRecord.h"
#include "Platform/posix/StagedCopy.h"
#include "Platform/posix/SystemCalls.h"
#include "Platform/posix/TreeRemoval.h"

#include <sys/stat.h>

#include <ctime>
#include <optional>
#include <utility>

namespace zt {

namespace {

constexpr const char *recordSuffix = ".trashinfo";

constexpr int folderFlags = O_RDONLY | O_DIRECTORY;

// Makes the folder when it is missing and opens it; a link is not followed.
UniqueFd makeAndOpen(int parent, const char *name) {
    if (::mkdirat(parent, name, S_IRWXU) != 0 && errno != EEXIST)
        return {};
    return openAt(parent, name, folderFlags | O_NOFOLLOW);
}

// Makes the folder with all its missing parents.
Result<void> makeFolders(const std::string &path) {
    for (std::size_t end = path.find('/', 1);; end = path.find('/', end + 1)) {
        const std::string folder = path.substr(0, end);
        if (::mkdir(folder.c_str(), S_IRWXU) != 0 && errno != EEXIST)
            return Error::fromErrno("make folder", folder);
        if (end == std::string::npos)
            return {};
    }
}

// No value when the open folder is the user's.
std::optional<Error> reasonNotToUse(const UniqueFd &folder, const std::string &path, uid_t user) {
    const std::optional<struct stat> status = folder ? statusOf(folder.get()) : std::nullopt;
    if (!status)
        return Error::fromErrno("open", path);
    if (status->st_uid != user)
        return Error{"use", path, "it belongs to another user", EPERM};
    return std::nullopt;
}

Result<TrashFolder> openFoldersOfTrash(UniqueFd trash, std::string path, std::string topDirectory) {
    UniqueFd files = makeAndOpen(trash.get(), "files");
    if (!files)
        return Error::fromErrno("open", path + "/files");
    UniqueFd records = makeAndOpen(trash.get(), "info");
    if (!records)
        return Error::fromErrno("open", path + "/info");
    return TrashFolder{std::move(path), std::move(topDirectory), std::move(trash), std::move(files),
                       std::move(records)};
}

Result<TrashFolder> openOwnTrash(int parent, const std::string &name, std::string path,
                                 const std::string &topDirectory, uid_t user) {
    UniqueFd trash = makeAndOpen(parent, name.c_str());
    if (std::optional<Error> reason = reasonNotToUse(trash, path, user))
        return *std::move(reason);
    return openFoldersOfTrash(std::move(trash), std::move(path), topDirectory);
}

std::string joined(const std::string &folder, const std::string &name) {
    return folder.ends_with('/') ? folder + name : folder + '/' + name;
}

} // namespace

Result<std::string> TrashFolder::writeRecord(const std::string &name,
                                             const std::string &originalPath,
                                             unsigned &attempt) const {
    for (;; ++attempt) {
        std::string newName = nameInTrash(name, attempt);
        const std::string recordName = newName + recordSuffix;
        const std::string recordPath = path + "/info/" + recordName;
        const UniqueFd record = openAt(records.get(), recordName.c_str(),
                                       O_WRONLY | O_CREAT | O_EXCL, S_IRUSR | S_IWUSR);
        if (!record && errno == EEXIST)
            continue;
        if (!record)
            return Error::fromErrno("create", recordPath);
        if (writeFully(record.get(), trashRecord(originalPath, std::time(nullptr))) &&
            flushToMedium(record.get()) && flushToMedium(records.get()))
            return newName;
        const int code = errno;
        removeRecord(newName);
        return Error::fromErrno("write", recordPath, code);
    }
}

void TrashFolder::removeRecord(const std::string &nameInTrash) const {
    static_cast<void>(::unlinkat(records.get(), (nameInTrash + recordSuffix).c_str(), 0));
}

Result<std::string> TrashFolder::addCopy(const ItemPlace &item,
                                         const std::string &originalPath) const {
    StagingFolder::sweep(folder.get());
    Result<StagedCopy> copy =
        StagedCopy::make(item, {folder.get(), item.name, path + '/' + item.name}, {});
    if (!copy)
        return copy.error();
    for (unsigned attempt = 1;; ++attempt) {
        Result<std::string> newName = writeRecord(item.name, originalPath, attempt);
        if (!newName)
            return newName;
        const Result<void> placed = copy->place({files.get(), *newName, pathOf(*newName)});
        if (placed)
            return newName;
        removeRecord(*newName);
        // A file without a record holds the name: another one is tried.
        if (placed.error().code != EEXIST)
            return placed.error();
    }
}

void TrashFolder::removeCopy(const std::string &nameInTrash) const {
    static_cast<void>(removeTree(files.get(), nameInTrash.c_str()));
    removeRecord(nameInTrash);
}

Result<TrashFolder> openHomeTrash(const std::string &dataHome) {
    std::string path = joined(dataHome, "Trash");
    if (Result<void> made = makeFolders(path); !made)
        return made.error();
    UniqueFd trash = openAt(AT_FDCWD, path.c_str(), folderFlags);
    if (!trash)
        return Error::fromErrno("open", path);
    return openFoldersOfTrash(std::move(trash), std::move(path), {});
}

Result<TrashFolder> openOwnHomeTrash(const std::string &homeFolder, uid_t user) {
    // The way to the home folder is the administrator's; the user has no say in it.
    UniqueFd folder = openAt(AT_FDCWD, homeFolder.c_str(), folderFlags);
    std::string path = homeFolder;
    for (const char *name : {".local", "share", "Trash"}) {
        if (std::optional<Error> reason = reasonNotToUse(folder, path, user))
            return *std::move(reason);
        folder = makeAndOpen(folder.get(), name);
        path = joined(path, name);
    }
    if (std::optional<Error> reason = reasonNotToUse(folder, path, user))
        return *std::move(reason);
    Result<TrashFolder> trash = openFoldersOfTrash(std::move(folder), std::move(path), {});
    if (!trash)
        return trash;
    for (const UniqueFd *part : {&trash->files, &trash->records}) {
        if (std::optional<Error> reason = reasonNotToUse(*part, trash->path, user))
            return *std::move(reason);
    }
    return trash;
}

Result<TrashFolder> openSharedVolumeTrash(const std::string &topDirectory, uid_t user) {
    const std::string sharedPath = joined(topDirectory, ".Trash");
    const UniqueFd shared = openAt(AT_FDCWD, sharedPath.c_str(), folderFlags | O_NOFOLLOW);
    if (!shared)
        return Error::fromErrno("open", sharedPath);
    const std::optional<struct stat> status = statusOf(shared.get());
    if (!status)
        return Error::fromErrno("open", sharedPath);
    if ((status->st_mode & S_ISVTX) == 0)
        return Error{"use", sharedPath, "it lacks the sticky bit", EPERM};
    const std::string name = std::to_string(user);
    return openOwnTrash(shared.get(), name, joined(sharedPath, name), topDirectory, user);
}

Result<TrashFolder> openPrivateVolumeTrash(const std::string &topDirectory, uid_t user) {
    const UniqueFd top = openAt(AT_FDCWD, topDirectory.c_str(), folderFlags);
    if (!top)
        return Error::fromErrno("open", topDirectory);
    const std::string name = ".Trash-" + std::to_string(user);
    return openOwnTrash(top.get(), name, joined(topDirectory, name), topDirectory, user);
}

} // namespace zt

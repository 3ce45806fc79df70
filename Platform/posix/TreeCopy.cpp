// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/TreeCopy.h"

#include "Platform/posix/CopiedHardLinks.h"
#include "Platform/posix/CopiedMetadata.h"
#include "Platform/posix/CopyProgressMeter.h"
#include "Platform/posix/FileContentCopier.h"
#include "Platform/posix/SystemCalls.h"
#include "Platform/posix/TreeSize.h"
#include "Platform/posix/TreeWalk.h"

#include <climits>
#include <dirent.h>

#include <array>
#include <atomic>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>

namespace zt {

namespace {

class TreeCopier final : public TreeVisitor {
public:
    TreeCopier(const TreeCopyRequest &request, const FileSystemIdentity &writer,
               std::uint64_t bytesInAll)
        : m_request(request)
        , m_writer(request.readAs ? std::optional(writer) : std::nullopt)
        , m_meter(request.progress, bytesInAll)
        , m_links(request.target.folder, request.target.name + ".links", request.note) {
        for (auto &copier : m_contents)
            copier = std::make_unique<FileContentCopier>(m_abilities, m_meter, request.stop);
    }

    Result<void> run();

    Result<void> enterFolder(TreeFolder &folder) override;
    Result<void> visitItem(TreeFolder &folder, const char *name, unsigned char type,
                           unsigned worker) override;
    Result<void> leaveFolder(TreeFolder &folder) override;

    std::optional<FileSystemIdentity> writer() const override { return m_writer; }

private:
    // Where an item is and where its copy goes; the paths are put together only for messages.
    struct Item {
        int source;
        const char *sourceName;
        int target;
        const char *targetName;
        const TreeFolder *folder; // null for the root

        bool isRoot() const { return !folder; }
    };

    Result<void> copyItem(const Item &item, unsigned char type, unsigned worker);
    Result<void> copyFile(const Item &item, unsigned worker);
    Result<void> copyLink(const Item &item);
    Result<void> fillFile(const Item &item, int source, int target, const struct stat &status,
                          unsigned worker);
    Result<bool> linkedAlready(const Item &item, const struct stat &status);
    Result<void> remember(const Item &item, const struct stat &status);
    UniqueFd createFile(const Item &item, const struct stat &status) const;
    Result<void> createLink(const Item &item, const char *text);
    Error contentError(FileContentCopier::Outcome outcome, const Item &item) const;
    const CopiedMetadata &metadata(const struct stat &newItem);
    std::string sourcePath(const Item &item) const;
    std::string targetPath(const Item &item) const;
    std::string targetPath(const TreeFolder &folder) const;

    const TreeCopyRequest &m_request;
    const std::optional<FileSystemIdentity> m_writer; // set when it is not the reader
    CopyProgressMeter m_meter;
    CopyAbilities m_abilities;
    CopiedHardLinks m_links;
    std::array<std::unique_ptr<FileContentCopier>, treeWalkWorkers> m_contents;
    std::optional<CopiedMetadata> m_metadata; // set with the first new item, before all threads
};

Error withObject(Error error, std::string object) {
    error.object = std::move(object);
    return error;
}

std::string TreeCopier::sourcePath(const Item &item) const {
    return item.folder ? item.folder->path(item.sourceName) : m_request.source.path;
}

// The target's path is the source's with another beginning.
std::string TreeCopier::targetPath(const TreeFolder &folder) const {
    return m_request.target.path + folder.path().substr(m_request.source.path.size());
}

std::string TreeCopier::targetPath(const Item &item) const {
    return item.folder ? targetPath(*item.folder) + '/' + item.targetName : m_request.target.path;
}

const CopiedMetadata &TreeCopier::metadata(const struct stat &newItem) {
    if (!m_metadata)
        m_metadata.emplace(newItem, m_request.rights, m_writer, m_request.note);
    return *m_metadata;
}

Result<void> TreeCopier::enterFolder(TreeFolder &folder) {
    const ActingAs writing(m_writer);
    const int parent = folder.parent ? folder.parent->target.get() : m_request.target.folder;
    const std::string &name = folder.parent ? folder.name : m_request.target.name;
    const mode_t mode = CopiedMetadata::creationMode(folder.status, m_request.rights);
    if (::mkdirat(parent, name.c_str(), mode) != 0)
        return Error::fromErrno("make folder", targetPath(folder));
    folder.target = openAt(parent, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW);
    if (!folder.target)
        return Error::fromErrno("open", targetPath(folder));
    if (folder.parent)
        return {};
    const std::optional<struct stat> status = statusOf(folder.target.get());
    if (!status)
        return Error::fromErrno("examine", targetPath(folder));
    metadata(*status);
    return {};
}

Result<void> TreeCopier::leaveFolder(TreeFolder &folder) {
    Result<void> applied =
        m_metadata->apply(folder.source.get(), folder.target.get(), folder.status);
    if (!applied)
        return withObject(applied.error(), targetPath(folder));
    return {};
}

Result<void> TreeCopier::visitItem(TreeFolder &folder, const char *name, unsigned char type,
                                   unsigned worker) {
    return copyItem({folder.source.get(), name, folder.target.get(), name, &folder}, type, worker);
}

Result<void> TreeCopier::copyItem(const Item &item, unsigned char type, unsigned worker) {
    switch (type) {
    case DT_REG:
        return copyFile(item, worker);
    case DT_LNK:
        return copyLink(item);
    default:
        return Error{"copy", sourcePath(item), "it is neither a file nor a folder nor a link",
                     ENOTSUP};
    }
}

Result<bool> TreeCopier::linkedAlready(const Item &item, const struct stat &status) {
    if (status.st_nlink < 2 || item.isRoot())
        return false;
    const ActingAs writing(m_writer);
    switch (m_links.linkExistingCopy(status, item.target, item.targetName)) {
    case CopiedHardLinks::Outcome::Linked:
        m_meter.add(S_ISREG(status.st_mode) ? static_cast<std::uint64_t>(status.st_size) : 0);
        return true;
    case CopiedHardLinks::Outcome::NotCopiedYet:
        return false;
    case CopiedHardLinks::Outcome::Failed:
        break;
    }
    return Error::fromErrno("link", targetPath(item));
}

Result<void> TreeCopier::remember(const Item &item, const struct stat &status) {
    if (status.st_nlink < 2 || item.isRoot())
        return {};
    const ActingAs writing(m_writer);
    if (m_links.remember(status, item.target, item.targetName) == CopiedHardLinks::Outcome::Failed)
        return Error::fromErrno("link", targetPath(item));
    return {};
}

UniqueFd TreeCopier::createFile(const Item &item, const struct stat &status) const {
    const ActingAs writing(m_writer);
    return openAt(item.target, item.targetName, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_NOCTTY,
                  CopiedMetadata::creationMode(status, m_request.rights));
}

Result<void> TreeCopier::copyFile(const Item &item, unsigned worker) {
    // Not to block matters when the name has come to stand for a pipe meanwhile.
    const UniqueFd source =
        openAt(item.source, item.sourceName, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY);
    if (!source)
        return Error::fromErrno("open", sourcePath(item));
    const std::optional<struct stat> status = statusOf(source.get());
    if (!status)
        return Error::fromErrno("examine", sourcePath(item));
    if (!S_ISREG(status->st_mode))
        return changedError(sourcePath(item));
    const Result<bool> linked = linkedAlready(item, *status);
    if (!linked)
        return linked.error();
    if (*linked)
        return {};
    const UniqueFd target = createFile(item, *status);
    if (!target)
        return Error::fromErrno("create", targetPath(item));
    if (Result<void> filled = fillFile(item, source.get(), target.get(), *status, worker); !filled)
        return filled;
    return remember(item, *status);
}

Result<void> TreeCopier::fillFile(const Item &item, int source, int target,
                                  const struct stat &status, unsigned worker) {
    if (item.isRoot()) {
        const std::optional<struct stat> created = statusOf(target);
        if (!created)
            return Error::fromErrno("examine", targetPath(item));
        metadata(*created);
    }
    const FileContentCopier::Outcome outcome = m_contents[worker]->copy(source, target, status);
    if (outcome != FileContentCopier::Outcome::Copied)
        return contentError(outcome, item);
    if (Result<void> applied = m_metadata->apply(source, target, status); !applied)
        return withObject(applied.error(), targetPath(item));
    return {};
}

Error TreeCopier::contentError(FileContentCopier::Outcome outcome, const Item &item) const {
    const int code = errno;
    switch (outcome) {
    case FileContentCopier::Outcome::ReadFailed:
        return Error::fromErrno("read", sourcePath(item), code);
    case FileContentCopier::Outcome::SourceChanged:
        return changedError(sourcePath(item));
    case FileContentCopier::Outcome::Stopped:
        return stoppedError(sourcePath(item));
    default:
        return Error::fromErrno("write", targetPath(item), code);
    }
}

Result<void> TreeCopier::createLink(const Item &item, const char *text) {
    const ActingAs writing(m_writer);
    if (::symlinkat(text, item.target, item.targetName) != 0)
        return Error::fromErrno("create", targetPath(item));
    if (!item.isRoot())
        return {};
    const std::optional<struct stat> created = statusAt(item.target, item.targetName);
    if (!created)
        return Error::fromErrno("examine", targetPath(item));
    metadata(*created);
    return {};
}

Result<void> TreeCopier::copyLink(const Item &item) {
    const std::optional<struct stat> status = statusAt(item.source, item.sourceName);
    if (!status)
        return Error::fromErrno("examine", sourcePath(item));
    const Result<bool> linked = linkedAlready(item, *status);
    if (!linked)
        return linked.error();
    if (*linked)
        return {};
    std::array<char, PATH_MAX> text;
    const ssize_t size = ::readlinkat(item.source, item.sourceName, text.data(), text.size());
    if (size < 0)
        return Error::fromErrno("read", sourcePath(item));
    // The longest text of a link is shorter than the room, so that a full room means a torn text.
    if (static_cast<std::size_t>(size) == text.size())
        return Error::fromErrno("read", sourcePath(item), ENAMETOOLONG);
    text[static_cast<std::size_t>(size)] = '\0';
    if (Result<void> created = createLink(item, text.data()); !created)
        return created;
    if (Result<void> applied = m_metadata->applyToLink(item.target, item.targetName, *status);
        !applied)
        return withObject(applied.error(), targetPath(item));
    return remember(item, *status);
}

Result<void> TreeCopier::run() {
    const ItemPlace &source = m_request.source;
    const ItemPlace &target = m_request.target;
    const std::optional<struct stat> status = statusAt(source.folder, source.name.c_str());
    if (!status)
        return Error::fromErrno("find", source.path);
    if (!S_ISDIR(status->st_mode)) {
        const Item item{source.folder, source.name.c_str(), target.folder, target.name.c_str(),
                        nullptr};
        if (Result<void> copied =
                copyItem(item, static_cast<unsigned char>(IFTODT(status->st_mode)), 0);
            !copied)
            return copied;
    } else {
        UniqueFd folder =
            openAt(source.folder, source.name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW);
        if (!folder)
            return Error::fromErrno("open", source.path);
        if (Result<void> walked = walkTree(std::move(folder), source.path, *this, m_request.stop);
            !walked)
            return walked;
    }
    const ActingAs writing(m_writer);
    if (Result<void> removed = m_links.removeNames(); !removed)
        return removed;
    m_meter.finish();
    return {};
}

} // namespace

Result<void> copyTree(const TreeCopyRequest &request) {
    const FileSystemIdentity writer = FileSystemIdentity::current();
    // Reading is what a forgotten change of identity would fall back to: it fails then, rather than
    // give away what its reader may not see.
    const ActingAs reading(request.readAs);
    std::uint64_t bytesInAll = 0;
    if (request.progress) {
        const Result<std::uint64_t> size = treeSize(request.source, request.stop);
        if (!size)
            return size.error();
        bytesInAll = *size;
    }
    return TreeCopier(request, writer, bytesInAll).run();
}

} // namespace zt

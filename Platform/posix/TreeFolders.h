#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The folders that a walk through a tree has under way, and their descriptors.

#include "Platform/posix/FileSystemIdentity.h"
#include "Platform/posix/UniqueFd.h"

#include <sys/stat.h>

#include <atomic>
#include <list>
#include <mutex>
#include <optional>
#include <string>

namespace zt {

// One folder of the tree that is walked and, when the walk makes or compares a second tree, its
// counterpart there.
struct TreeFolder {
    TreeFolder *parent = nullptr; // null for the root
    std::string name;             // in the parent; for the root the path that messages name
    struct stat status = {};      // of the source, as it was when the walk came to it
    UniqueFd source;              // both open while the folder is in use; see TreeFolderUse
    UniqueFd target;

    // The folder's path, for messages; or that of an item in it.
    std::string path() const;

    std::string path(const char *itemName) const { return path() + '/' + itemName; }

private:
    friend class TreeFolders;
    friend class TreeWalk;

    bool m_hasTarget = false;
    unsigned m_users = 0;
    std::atomic<unsigned> m_unfinished = 1; // the listing, and what it has brought up so far
    std::list<TreeFolder>::iterator m_place;
    std::list<TreeFolder *>::iterator m_idlePlace;
};

// Keeps the descriptors of the folders that were used last, and closes and reopens others, so that
// a tree of any depth is walked with a bounded number of them. Thread: any.
class TreeFolders {
public:
    // Keeps about so many folders open, each with up to two descriptors. Targets are opened again
    // as `writer`, as the thread if there is none.
    TreeFolders(std::size_t limit, const std::optional<FileSystemIdentity> &writer)
        : m_limit(limit)
        , m_writer(writer) {}

    TreeFolders(const TreeFolders &) = delete;
    TreeFolders &operator=(const TreeFolders &) = delete;
    ~TreeFolders() = default;

    // The number of folders to keep open that suits the process's limit of descriptors.
    static std::size_t suitableLimit();

    // A folder that is not open yet.
    TreeFolder &add(TreeFolder *parent, std::string name);

    // Takes the folder over after its descriptors were opened. The root stays open from then on.
    void adopt(TreeFolder &folder);

    // Makes sure that the folder is open until release(). False with errno when it cannot be
    // reopened, ESTALE when another folder is in its place.
    bool acquire(TreeFolder &folder);
    void release(TreeFolder &folder);

    // Forgets a folder that nobody uses.
    void remove(TreeFolder &folder);

private:
    bool reopen(TreeFolder &folder);
    void close(TreeFolder &folder);
    void markUsed(TreeFolder &folder);
    void markUnused(TreeFolder &folder);

    const std::size_t m_limit;
    const std::optional<FileSystemIdentity> m_writer;
    std::mutex m_mutex;
    std::list<TreeFolder> m_folders;
    std::list<TreeFolder *> m_idle; // open and not in use, the one used last in front
    std::size_t m_openCount = 0;
};

// Keeps a folder open for a scope.
class TreeFolderUse {
public:
    TreeFolderUse(TreeFolders &folders, TreeFolder &folder)
        : m_folders(folders)
        , m_folder(folder)
        , m_isOpen(folders.acquire(folder)) {}

    TreeFolderUse(const TreeFolderUse &) = delete;
    TreeFolderUse &operator=(const TreeFolderUse &) = delete;

    ~TreeFolderUse() {
        if (m_isOpen)
            m_folders.release(m_folder);
    }

    // Whether the folder is open; when not, errno tells why.
    explicit operator bool() const { return m_isOpen; }

private:
    TreeFolders &m_folders;
    TreeFolder &m_folder;
    bool m_isOpen;
};

} // namespace zt

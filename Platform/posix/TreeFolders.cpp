// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/TreeFolders.h"

#include "Platform/posix/SystemCalls.h"

#include <sys/resource.h>

#include <algorithm>
#include <optional>
#include <vector>

namespace zt {

namespace {

// More than a walk of two workers needs at any usual depth.
constexpr std::size_t mostOpenFolders = 128;
constexpr std::size_t fewestOpenFolders = 4;

// Joins the names from the root downwards; the list holds them upwards.
std::string joinedUpwards(const std::vector<const std::string *> &names) {
    std::string path;
    for (auto name = names.rbegin(); name != names.rend(); ++name) {
        if (name != names.rbegin())
            path += '/';
        path += **name;
    }
    return path;
}

} // namespace

std::string TreeFolder::path() const {
    std::vector<const std::string *> names;
    for (const TreeFolder *folder = this; folder; folder = folder->parent)
        names.push_back(&folder->name);
    return joinedUpwards(names);
}

std::size_t TreeFolders::suitableLimit() {
    rlimit limit = {};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0)
        return fewestOpenFolders;
    // Half of the descriptors are left to the rest of the program.
    return std::clamp<std::size_t>(limit.rlim_cur / 4, fewestOpenFolders, mostOpenFolders);
}

TreeFolder &TreeFolders::add(TreeFolder *parent, std::string name) {
    const std::lock_guard lock(m_mutex);
    TreeFolder &folder = m_folders.emplace_front();
    folder.parent = parent;
    folder.name = std::move(name);
    folder.m_place = m_folders.begin();
    return folder;
}

void TreeFolders::adopt(TreeFolder &folder) {
    const std::lock_guard lock(m_mutex);
    folder.m_hasTarget = static_cast<bool>(folder.target);
    folder.m_users = 1;
    ++m_openCount;
    if (folder.parent)
        markUnused(folder);
}

bool TreeFolders::acquire(TreeFolder &folder) {
    const std::lock_guard lock(m_mutex);
    if (folder.source) {
        markUsed(folder);
        return true;
    }
    // The way up to a folder that is open; the root always is.
    std::vector<TreeFolder *> closed;
    TreeFolder *open = &folder;
    for (; !open->source; open = open->parent)
        closed.push_back(open);
    markUsed(*open);
    bool succeeded = true;
    for (auto next = closed.rbegin(); succeeded && next != closed.rend(); ++next) {
        succeeded = reopen(**next);
        const int saved = errno;
        markUnused(*open);
        errno = saved;
        open = *next;
    }
    return succeeded;
}

void TreeFolders::release(TreeFolder &folder) {
    const std::lock_guard lock(m_mutex);
    markUnused(folder);
}

void TreeFolders::remove(TreeFolder &folder) {
    const std::lock_guard lock(m_mutex);
    if (folder.source) {
        if (folder.m_users == 0)
            m_idle.erase(folder.m_idlePlace);
        close(folder);
    }
    m_folders.erase(folder.m_place);
}

// Opens the folder from its parent, which is open; it then counts as used.
bool TreeFolders::reopen(TreeFolder &folder) {
    constexpr int flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW;
    UniqueFd source = openAt(folder.parent->source.get(), folder.name.c_str(), flags);
    if (!source)
        return false;
    const std::optional<struct stat> status = statusOf(source.get());
    if (!status)
        return false;
    if (!isSameItem(*status, folder.status)) {
        errno = ESTALE;
        return false;
    }
    if (folder.m_hasTarget) {
        const ActingAs writing(m_writer);
        folder.target = openAt(folder.parent->target.get(), folder.name.c_str(), flags);
        if (!folder.target)
            return false;
    }
    folder.source = std::move(source);
    folder.m_users = 1;
    ++m_openCount;
    return true;
}

void TreeFolders::close(TreeFolder &folder) {
    folder.source.reset();
    folder.target.reset();
    --m_openCount;
}

void TreeFolders::markUsed(TreeFolder &folder) {
    if (folder.m_users++ == 0)
        m_idle.erase(folder.m_idlePlace);
}

void TreeFolders::markUnused(TreeFolder &folder) {
    if (--folder.m_users != 0)
        return;
    m_idle.push_front(&folder);
    folder.m_idlePlace = m_idle.begin();
    while (m_openCount > m_limit && !m_idle.empty()) {
        close(*m_idle.back());
        m_idle.pop_back();
    }
}

} // namespace zt

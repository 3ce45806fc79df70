// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/TreeWalk.h"

#include "Platform/posix/DirectoryReader.h"
#include "Platform/posix/SystemCalls.h"
#include "Platform/posix/TreeTaskQueue.h"

#include <dirent.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstring>
#include <exception>
#include <mutex>
#include <optional>
#include <span>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace zt {

namespace {

// How many entries one thread takes at a time. Fewer share a folder better between the threads,
// more cost less waiting.
constexpr unsigned entriesOfOneTask = 32;

// With more tasks than this waiting, folders are read in small steps, and what a step brings up is
// done before the next.
constexpr std::size_t manyTasks = 64;
constexpr std::size_t largeStep = std::size_t(32) * 1024;
constexpr std::size_t smallStep = std::size_t(4) * 1024;

struct ListingBuffer {
    alignas(std::uint64_t) std::array<std::byte, largeStep> bytes;
};

enum class Step { MoreToRead, LeftToAnotherTask, AllRead };

} // namespace

class TreeWalk {
public:
    TreeWalk(TreeVisitor &visitor, std::stop_token stop)
        : m_visitor(visitor)
        , m_stop(std::move(stop))
        , m_folders(TreeFolders::suitableLimit(), visitor.writer()) {}

    Result<void> run(UniqueFd folder, std::string path);

private:
    void work(unsigned worker);
    Result<void> perform(TreeTask task, unsigned worker, ListingBuffer &buffer);
    Result<void> list(TreeTask task, ListingBuffer &buffer);
    Result<void> enter(TreeFolder &folder);
    Result<Step> listStep(TreeTask &task, std::span<std::byte> buffer);
    Result<void> visitEntries(TreeTask task, unsigned worker);
    static void sortRest(TreeTask &task);
    void shareRest(TreeTask &task);
    Result<unsigned char> knownType(const TreeFolder &folder, const char *name,
                                    unsigned char type) const;
    Result<void> finish(TreeFolder *folder);
    void fail(Error error);

    bool mustEnd() const {
        return m_failed.load(std::memory_order_relaxed) || m_stop.stop_requested();
    }

    TreeVisitor &m_visitor;
    const std::stop_token m_stop;
    TreeFolders m_folders;
    TreeTaskQueue m_queue{treeWalkWorkers};
    std::atomic<bool> m_failed = false;
    std::mutex m_errorMutex;
    std::optional<Error> m_error;
};

Error stoppedError(std::string path) {
    return {"copy", std::move(path), "stopped on request", ECANCELED};
}

Error changedError(std::string path) {
    return {"read", std::move(path), "it changed while it was read", ESTALE};
}

Result<void> TreeWalk::enter(TreeFolder &folder) {
    std::optional<TreeFolderUse> parentUse;
    if (folder.parent) {
        parentUse.emplace(m_folders, *folder.parent);
        if (!*parentUse)
            return Error::fromErrno("open", folder.parent->path());
        folder.source = openAt(folder.parent->source.get(), folder.name.c_str(),
                               O_RDONLY | O_DIRECTORY | O_NOFOLLOW);
    }
    if (!folder.source)
        return Error::fromErrno("open", folder.path());
    const std::optional<struct stat> status = statusOf(folder.source.get());
    if (!status)
        return Error::fromErrno("examine", folder.path());
    folder.status = *status;
    if (Result<void> entered = m_visitor.enterFolder(folder); !entered)
        return entered;
    m_folders.adopt(folder);
    return {};
}

// Reads one step and adds what it brings up to the tasks.
Result<Step> TreeWalk::listStep(TreeTask &task, std::span<std::byte> buffer) {
    TreeFolder &folder = *task.folder;
    DirectoryReader reader(folder.source.get(), buffer);
    std::vector<TreeTask> found;
    unsigned count = 0;
    const DirectoryReader::Entry *entry = nullptr;
    do {
        entry = reader.next();
        if (!entry)
            break;
        if (count++ % entriesOfOneTask == 0)
            found.emplace_back().folder = &folder;
        std::string &entries = found.back().entries;
        entries += static_cast<char>(entry->type);
        entries.append(entry->name, std::strlen(entry->name) + 1);
        task.position = entry->nextPosition;
    } while (reader.hasBufferedEntries());
    if (reader.error() != 0)
        return Error::fromErrno("read", folder.path(), reader.error());

    folder.m_unfinished += static_cast<unsigned>(found.size());
    const bool isLeft = entry && m_queue.size() + found.size() > manyTasks;
    // The rest of the listing is added first, so that it comes after what this step brought up. It
    // is a part of its own: this thread still uses the folder.
    if (isLeft) {
        ++folder.m_unfinished;
        m_queue.add(task);
    }
    for (TreeTask &visiting : found)
        m_queue.add(std::move(visiting));
    if (isLeft)
        return Step::LeftToAnotherTask;
    return entry ? Step::MoreToRead : Step::AllRead;
}

Result<void> TreeWalk::list(TreeTask task, ListingBuffer &buffer) {
    TreeFolder &folder = *task.folder;
    if (!task.isEntered) {
        if (Result<void> entered = enter(folder); !entered)
            return entered;
        task.isEntered = true;
    }
    {
        const TreeFolderUse use(m_folders, folder);
        // The folder may have been closed and opened again since the last step.
        if (!use || ::lseek(folder.source.get(), task.position, SEEK_SET) < 0)
            return Error::fromErrno("read", folder.path());
        Result<Step> step = Step::MoreToRead;
        while (step && *step == Step::MoreToRead) {
            if (mustEnd())
                return stoppedError(folder.path());
            const bool isBusy = m_queue.size() > manyTasks;
            step = listStep(task, std::span(buffer.bytes).first(isBusy ? smallStep : largeStep));
        }
        if (!step)
            return step.error();
        if (*step == Step::AllRead) {
            const std::optional<struct stat> status = statusOf(folder.source.get());
            if (!status)
                return Error::fromErrno("examine", folder.path());
            if (!hasSameModificationTime(*status, folder.status))
                return changedError(folder.path());
        }
    }
    return finish(&folder);
}

// Some file systems do not tell the type while they list.
Result<unsigned char> TreeWalk::knownType(const TreeFolder &folder, const char *name,
                                          unsigned char type) const {
    if (type != DT_UNKNOWN)
        return type;
    const std::optional<struct stat> status = statusAt(folder.source.get(), name);
    if (!status)
        return Error::fromErrno("examine", folder.path(name));
    return static_cast<unsigned char>(IFTODT(status->st_mode));
}

// Puts the entries that are still to be visited in order, the largest first: when each thread takes
// the next one as it gets free, they end at about the same time.
void TreeWalk::sortRest(TreeTask &task) {
    using Entry = std::pair<off_t, std::string>;
    std::vector<Entry> rest;
    for (std::size_t place = task.offset; place < task.entries.size();) {
        const std::size_t end = task.entries.find('\0', place + 1) + 1;
        const char *name = task.entries.c_str() + place + 1;
        const std::optional<struct stat> status = statusAt(task.folder->source.get(), name);
        rest.emplace_back(status ? status->st_size : 0, task.entries.substr(place, end - place));
        place = end;
    }
    std::stable_sort(rest.begin(), rest.end(),
                     [](const Entry &a, const Entry &b) { return a.first > b.first; });
    task.entries.resize(task.offset);
    for (const Entry &entry : rest)
        task.entries += entry.second;
    task.isSorted = true;
}

// Leaves all but the next entry to whichever thread is free first. A few large files so keep all
// threads busy, and near the end of a walk nobody waits long for another.
void TreeWalk::shareRest(TreeTask &task) {
    if (!task.isSorted)
        sortRest(task);
    const std::size_t end = task.entries.find('\0', task.offset + 1) + 1;
    if (end == task.entries.size())
        return;
    ++task.folder->m_unfinished;
    TreeTask rest;
    rest.folder = task.folder;
    rest.entries = task.entries.substr(end);
    rest.isSorted = true;
    task.entries.resize(end);
    m_queue.add(std::move(rest));
}

Result<void> TreeWalk::visitEntries(TreeTask task, unsigned worker) {
    TreeFolder &folder = *task.folder;
    {
        const TreeFolderUse use(m_folders, folder);
        if (!use)
            return Error::fromErrno("open", folder.path());
        while (task.offset < task.entries.size()) {
            if (mustEnd())
                return stoppedError(folder.path());
            if (task.isSorted || m_queue.isAwaited())
                shareRest(task);
            const char *name = task.entries.c_str() + task.offset + 1;
            const Result<unsigned char> type =
                knownType(folder, name, static_cast<unsigned char>(task.entries[task.offset]));
            if (!type)
                return type.error();
            task.offset += 1 + std::strlen(name) + 1;
            if (*type == DT_DIR) {
                // The other thread may go on with the rest, while this one goes down. Each is a
                // part of its own: this thread still uses the folder.
                TreeTask listing;
                listing.folder = &m_folders.add(&folder, name);
                listing.isListing = true;
                folder.m_unfinished += 2;
                m_queue.add(std::move(task));
                m_queue.add(std::move(listing));
                break;
            }
            if (Result<void> visited = m_visitor.visitItem(folder, name, *type, worker); !visited)
                return visited;
        }
    }
    return finish(&folder);
}

// One part of the folder is done; with the last one the folder is left, which is a part of its
// parent.
Result<void> TreeWalk::finish(TreeFolder *folder) {
    while (folder && --folder->m_unfinished == 0) {
        {
            const TreeFolderUse use(m_folders, *folder);
            if (!use)
                return Error::fromErrno("open", folder->path());
            if (Result<void> left = m_visitor.leaveFolder(*folder); !left)
                return left;
        }
        TreeFolder *parent = folder->parent;
        m_folders.remove(*folder);
        folder = parent;
    }
    return {};
}

Result<void> TreeWalk::perform(TreeTask task, unsigned worker, ListingBuffer &buffer) {
    return task.isListing ? list(std::move(task), buffer) : visitEntries(std::move(task), worker);
}

void TreeWalk::fail(Error error) {
    {
        const std::lock_guard lock(m_errorMutex);
        if (!m_error)
            m_error = std::move(error);
    }
    m_failed = true;
    m_queue.abandon();
}

void TreeWalk::work(unsigned worker) {
    try {
        ListingBuffer buffer;
        m_queue.enter();
        while (std::optional<TreeTask> task = m_queue.take()) {
            if (Result<void> performed = perform(*std::move(task), worker, buffer); !performed)
                fail(performed.error());
        }
    } catch (const std::exception &exception) {
        fail({"walk through", "a folder", exception.what(), ENOMEM});
    }
}

Result<void> TreeWalk::run(UniqueFd folder, std::string path) {
    TreeFolder &root = m_folders.add(nullptr, std::move(path));
    root.source = std::move(folder);
    TreeTask listing;
    listing.folder = &root;
    listing.isListing = true;
    m_queue.add(std::move(listing));

    std::vector<std::thread> threads;
    for (unsigned worker = 1; worker < treeWalkWorkers; ++worker) {
        try {
            threads.emplace_back([this, worker] { work(worker); });
        } catch (const std::system_error &) {
            // Without a further thread the walk takes longer, but it can be done.
            m_queue.leave();
        }
    }
    work(0);
    for (std::thread &thread : threads)
        thread.join();
    if (m_error)
        return *std::move(m_error);
    return {};
}

Result<void> walkTree(UniqueFd folder, std::string path, TreeVisitor &visitor,
                      const std::stop_token &stop) {
    return TreeWalk(visitor, stop).run(std::move(folder), std::move(path));
}

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The tasks of a walk through a tree, and the threads' waiting for them.

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace zt {

struct TreeFolder;

// Reading a folder on from a position, or visiting some of its entries.
struct TreeTask {
    TreeFolder *folder = nullptr;
    bool isListing = false;
    bool isEntered = false;    // whether the listing has begun
    std::int64_t position = 0; // where the listing goes on, as lseek understands it
    std::string entries;       // each one its type as a character, its name and a NUL
    std::size_t offset = 0;    // where the entries that are still to be visited begin
    bool isSorted = false;     // whether these come by their sizes, the largest first
};

// The task added last is taken first: this keeps a walk deep rather than broad, and so small.
// Thread: any.
class TreeTaskQueue {
public:
    // The number of threads that take tasks.
    explicit TreeTaskQueue(unsigned workers) : m_busy(workers), m_idle(workers) {}

    void add(TreeTask task);

    // Waits for a task. No value when there will be none any more: all threads wait for one, or the
    // queue was abandoned.
    std::optional<TreeTask> take();

    // Each thread tells that it has come, before it takes tasks.
    void enter() { --m_idle; }

    // Tells that one of the threads never came.
    void leave();

    // Drops all tasks and lets every thread go.
    void abandon();

    std::size_t size() const;

    // Whether a thread is without a task, or still to come; as far as can be told without waiting
    // for anyone.
    bool isAwaited() const { return m_idle.load(std::memory_order_relaxed) > 0; }

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<TreeTask> m_tasks;
    unsigned m_busy;
    std::atomic<unsigned> m_idle;
    bool m_ended = false;
};

} // namespace zt

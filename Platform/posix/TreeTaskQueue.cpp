// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/TreeTaskQueue.h"

#include <utility>

namespace zt {

void TreeTaskQueue::add(TreeTask task) {
    {
        const std::lock_guard lock(m_mutex);
        if (m_ended)
            return;
        m_tasks.push_back(std::move(task));
    }
    m_changed.notify_one();
}

std::optional<TreeTask> TreeTaskQueue::take() {
    std::unique_lock lock(m_mutex);
    if (m_tasks.empty() && !m_ended) {
        // Only a thread at work can add a task: when none is, the walk is over.
        if (--m_busy == 0) {
            m_ended = true;
            m_changed.notify_all();
        }
        ++m_idle;
        m_changed.wait(lock, [&] { return m_ended || !m_tasks.empty(); });
        --m_idle;
        ++m_busy;
    }
    if (m_ended)
        return std::nullopt;
    TreeTask task = std::move(m_tasks.back());
    m_tasks.pop_back();
    return task;
}

void TreeTaskQueue::leave() {
    --m_idle;
    const std::lock_guard lock(m_mutex);
    if (--m_busy == 0 && m_tasks.empty()) {
        m_ended = true;
        m_changed.notify_all();
    }
}

void TreeTaskQueue::abandon() {
    const std::lock_guard lock(m_mutex);
    m_ended = true;
    m_tasks.clear();
    m_changed.notify_all();
}

std::size_t TreeTaskQueue::size() const {
    const std::lock_guard lock(m_mutex);
    return m_tasks.size();
}

} // namespace zt

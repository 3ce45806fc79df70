// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTProcessCache.h"

#include "ZTStuff/ZTClasses/ZTProcess.h"

#include <algorithm>
#include <iterator>

namespace {

std::uint64_t keyOf(zt::ProcessSerialNumber serialNumber) {
    return std::uint64_t(serialNumber.high) << 32 | serialNumber.low;
}

} // namespace

ZTProcessCache &ZTProcessCache::shared() {
    static auto &cache = *new ZTProcessCache;
    return cache;
}

ZTProcessCache::Pointer ZTProcessCache::find(zt::ProcessSerialNumber serialNumber) {
    const std::scoped_lock lock(m_mutex);
    const auto place = m_places.find(keyOf(serialNumber));
    if (place == m_places.end())
        return nullptr;
    m_processes.splice(m_processes.begin(), m_processes, place->second);
    return m_processes.front();
}

ZTProcessCache::Pointer ZTProcessCache::findOrMake(zt::ProcessSerialNumber serialNumber,
                                                   const std::function<Pointer()> &make) {
    if (Pointer cached = find(serialNumber))
        return cached;
    const Pointer made = make();
    const std::scoped_lock lock(m_mutex);
    // Another thread may have been faster; then its object is the one.
    const auto place = m_places.find(keyOf(serialNumber));
    if (place != m_places.end())
        return *place->second;
    insertAtFront(made);
    return made;
}

void ZTProcessCache::addToFront(const Pointer &process) {
    Pointer replaced; // let go of after the lock
    const std::scoped_lock lock(m_mutex);
    const auto place = m_places.find(keyOf(process->serialNumber()));
    if (place != m_places.end()) {
        replaced = *place->second;
        m_processes.erase(place->second);
        m_places.erase(place);
    }
    insertAtFront(process);
}

// The caller holds the mutex.
void ZTProcessCache::insertAtFront(const Pointer &process) {
    m_wasUsed = true;
    m_processes.push_front(process);
    m_places.emplace(keyOf(process->serialNumber()), m_processes.begin());
}

std::optional<std::uint64_t> ZTProcessCache::indexOf(zt::ProcessSerialNumber serialNumber) const {
    const std::scoped_lock lock(m_mutex);
    const auto found = std::ranges::find_if(
        m_processes, [&](const Pointer &process) { return process->isSameProcess(serialNumber); });
    if (found == m_processes.end())
        return std::nullopt;
    return static_cast<std::uint64_t>(std::distance(m_processes.begin(), found));
}

std::optional<QList<ZTProcessCache::Pointer>> ZTProcessCache::contents() const {
    const std::scoped_lock lock(m_mutex);
    if (!m_wasUsed)
        return std::nullopt;
    return QList<Pointer>(m_processes.begin(), m_processes.end());
}

void ZTProcessCache::remove(const QList<Pointer> &processes) {
    const std::scoped_lock lock(m_mutex);
    for (const Pointer &process : processes) {
        const auto place = m_places.find(keyOf(process->serialNumber()));
        if (place == m_places.end() || *place->second != process)
            continue;
        m_processes.erase(place->second);
        m_places.erase(place);
    }
}

ZTProcessCache::Pointer ZTProcessCache::currentProcess() const {
    const std::scoped_lock lock(m_mutex);
    return m_currentProcess;
}

ZTProcessCache::Pointer ZTProcessCache::keepCurrentProcess(const Pointer &process) {
    const std::scoped_lock lock(m_mutex);
    if (!m_currentProcess)
        m_currentProcess = process;
    return m_currentProcess;
}

void ZTProcessCache::clear() {
    Processes processes; // let go of after the lock
    Pointer current;
    const std::scoped_lock lock(m_mutex);
    processes.swap(m_processes);
    current.swap(m_currentProcess);
    m_places.clear();
    m_wasUsed = false;
}

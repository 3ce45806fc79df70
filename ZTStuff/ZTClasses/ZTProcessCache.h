#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The process objects that are shared, the one that was looked up last in front.

#include "Platform/ProcessManager.h"

#include <QList>

#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <mutex>
#include <optional>
#include <unordered_map>

class ZTProcess;

// Thread: any. The objects themselves are never asked anything while the cache is locked.
class ZTProcessCache {
public:
    using Pointer = std::shared_ptr<ZTProcess>;

    // The one that the whole program shares. It lives until the program has ended, so that objects
    // are not torn down after the services that they use.
    static ZTProcessCache &shared();

    // The object for the process, which moves to the front; null when there is none.
    Pointer find(zt::ProcessSerialNumber serialNumber);

    // The same, but one that is not there is made and put at the front.
    Pointer findOrMake(zt::ProcessSerialNumber serialNumber, const std::function<Pointer()> &make);

    // Puts the object at the front, in the place of another one for the same process.
    void addToFront(const Pointer &process);

    // How many objects stand before that of the process; no value when there is none.
    std::optional<std::uint64_t> indexOf(zt::ProcessSerialNumber serialNumber) const;

    // The objects from front to back; no value as long as there has never been one.
    std::optional<QList<Pointer>> contents() const;

    void remove(const QList<Pointer> &processes);

    // This very program's object, once it is known.
    Pointer currentProcess() const;
    // Keeps the object, unless there is one already. The one that is kept.
    Pointer keepCurrentProcess(const Pointer &process);

    // As if nothing had ever been cached.
    void clear();

private:
    using Processes = std::list<Pointer>;

    void insertAtFront(const Pointer &process);

    mutable std::mutex m_mutex;
    Processes m_processes;
    std::unordered_map<std::uint64_t, Processes::iterator> m_places;
    bool m_wasUsed = false;
    Pointer m_currentProcess;
};

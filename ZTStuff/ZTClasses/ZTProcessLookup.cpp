// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTProcess.h"

#include "Platform/Accessibility.h"

#include "ZTStuff/ZTClasses/ZTProcessCache.h"

#include <algorithm>

namespace {

zt::ProcessManager &processManager() {
    return zt::currentPlatform().processManager;
}

ZTProcess::Pointer processOrNull(std::optional<zt::ProcessSerialNumber> serialNumber) {
    return serialNumber ? ZTProcess::processWithSerialNumber(*serialNumber) : nullptr;
}

} // namespace

ZTProcess::Pointer ZTProcess::processWithSerialNumber(zt::ProcessSerialNumber serialNumber) {
    return ZTProcessCache::shared().findOrMake(serialNumber, [serialNumber] {
        return std::make_shared<ZTProcess>(CreationKey(), serialNumber);
    });
}

ZTProcess::Pointer ZTProcess::processWithPID(std::int32_t pid) {
    return processOrNull(processManager().processWithPid(pid));
}

ZTProcess::Pointer ZTProcess::processWithSignature(FourCharCode signature) {
    installNotifications();
    const zt::ProcessManager &manager = processManager();
    for (const zt::ProcessSerialNumber candidate : manager.runningApplications()) {
        const std::optional<zt::ProcessInformation> known = manager.information(candidate);
        if (known && known->signature == signature)
            return processWithSerialNumber(candidate);
    }
    return nullptr;
}

ZTProcess::Pointer ZTProcess::processWithIdentifier(const QString &identifier) {
    for (const Pointer &process : allProcesses()) {
        if (process->identifier() == identifier)
            return process;
    }
    return nullptr;
}

QList<ZTProcess::Pointer> ZTProcess::allProcesses() {
    installNotifications();
    QList<Pointer> processes;
    for (const zt::ProcessSerialNumber serialNumber : processManager().runningApplications())
        processes << processWithSerialNumber(serialNumber);
    return processes;
}

ZTProcess::Pointer ZTProcess::currentProcess() {
    installNotifications();
    ZTProcessCache &cache = ZTProcessCache::shared();
    if (Pointer known = cache.currentProcess())
        return known;
    const Pointer found = processOrNull(processManager().currentProcess());
    return found ? cache.keepCurrentProcess(found) : nullptr;
}

ZTProcess::Pointer ZTProcess::frontProcess() {
    return processOrNull(processManager().frontProcess());
}

std::uint64_t
ZTProcess::indexOfCachedProcessWithSerialNumber(zt::ProcessSerialNumber serialNumber) {
    return ZTProcessCache::shared().indexOf(serialNumber).value_or(notFound);
}

ZTProcess::Pointer ZTProcess::cachedProcessWithSerialNumber(zt::ProcessSerialNumber serialNumber) {
    return ZTProcessCache::shared().find(serialNumber);
}

void ZTProcess::cleanupCache() {
    ZTProcessCache &cache = ZTProcessCache::shared();
    // Asked outside of the cache's lock, since the system takes its time to answer.
    QList<Pointer> ended = cache.contents().value_or(QList<Pointer>());
    ended.removeIf([](const Pointer &process) { return process->isStillRunning(); });
    cache.remove(ended);
}

std::optional<QList<ZTProcess::Pointer>> ZTProcess::cachedProcessesEnumerator() {
    return ZTProcessCache::shared().contents();
}

void ZTProcess::addToCache() {
    ZTProcessCache::shared().addToFront(shared_from_this());
}

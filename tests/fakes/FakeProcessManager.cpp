// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/fakes/FakeProcessManager.h"

#include <QCoreApplication>
#include <QThread>

#include <algorithm>

using zt::ProcessSerialNumber;

ProcessSerialNumber FakeProcessManager::start(std::int32_t pid, const FakeProcess &process) {
    ProcessSerialNumber serialNumber;
    {
        const std::scoped_lock lock(m_mutex);
        Q_ASSERT(!find(pid));
        serialNumber = {.high = static_cast<std::uint32_t>(pid), .low = ++m_starts};
        m_running.push_back({pid, serialNumber, process});
    }
    if (process.isApplication)
        tell(Event::Launched);
    return serialNumber;
}

void FakeProcessManager::end(std::int32_t pid) {
    bool wasApplication = false;
    {
        const std::scoped_lock lock(m_mutex);
        wasApplication = find(pid) && find(pid)->process.isApplication;
        std::erase_if(m_running, [pid](const Running &running) { return running.pid == pid; });
    }
    if (wasApplication)
        tell(Event::Terminated);
}

void FakeProcessManager::bringToFront(std::int32_t pid) {
    {
        const std::scoped_lock lock(m_mutex);
        m_front = pid;
    }
    tell(Event::FrontSwitched);
}

void FakeProcessManager::setCurrent(std::int32_t pid) {
    const std::scoped_lock lock(m_mutex);
    m_current = pid;
}

void FakeProcessManager::change(std::int32_t pid, const FakeProcess &process) {
    const std::scoped_lock lock(m_mutex);
    for (Running &running : m_running) {
        if (running.pid == pid)
            running.process = process;
    }
}

void FakeProcessManager::tell(Event event) {
    std::function<void(Event)> listener;
    {
        const std::scoped_lock lock(m_mutex);
        listener = m_listener;
    }
    if (!listener)
        return;
    QCoreApplication *const application = QCoreApplication::instance();
    if (!application || QThread::currentThread() == application->thread())
        listener(event);
    else
        QMetaObject::invokeMethod(
            application, [listener, event] { listener(event); }, Qt::QueuedConnection);
}

bool FakeProcessManager::hasListener() const {
    const std::scoped_lock lock(m_mutex);
    return m_listener != nullptr;
}

QList<std::int32_t> FakeProcessManager::wokenUp() const {
    const std::scoped_lock lock(m_mutex);
    return m_wokenUp;
}

int FakeProcessManager::listenerChanges() const {
    const std::scoped_lock lock(m_mutex);
    return m_listenerChanges;
}

// The caller holds the mutex.
const FakeProcessManager::Running *FakeProcessManager::find(std::int32_t pid) const {
    const auto found = std::ranges::find(m_running, pid, &Running::pid);
    return found == m_running.end() ? nullptr : &*found;
}

std::optional<FakeProcess> FakeProcessManager::runningProcess(ProcessSerialNumber process) const {
    const std::scoped_lock lock(m_mutex);
    const auto found = std::ranges::find(m_running, process, &Running::serialNumber);
    return found == m_running.end() ? std::nullopt : std::optional(found->process);
}

QList<ProcessSerialNumber> FakeProcessManager::runningApplications() const {
    const std::scoped_lock lock(m_mutex);
    QList<ProcessSerialNumber> applications;
    for (const Running &running : m_running) {
        if (running.process.isApplication)
            applications << running.serialNumber;
    }
    return applications;
}

void FakeProcessManager::setApplicationsOfOtherUsers(
    const QList<zt::ForeignApplication> &applications) {
    const std::scoped_lock lock(m_mutex);
    m_ofOtherUsers = applications;
}

QList<zt::ForeignApplication> FakeProcessManager::applicationsOfOtherUsers() const {
    const std::scoped_lock lock(m_mutex);
    return m_ofOtherUsers;
}

std::optional<ProcessSerialNumber> FakeProcessManager::currentProcess() const {
    const std::scoped_lock lock(m_mutex);
    const Running *running = m_current ? find(*m_current) : nullptr;
    return running ? std::optional(running->serialNumber) : std::nullopt;
}

std::optional<ProcessSerialNumber> FakeProcessManager::frontProcess() const {
    const std::scoped_lock lock(m_mutex);
    const Running *running = m_front ? find(*m_front) : nullptr;
    return running ? std::optional(running->serialNumber) : std::nullopt;
}

std::optional<ProcessSerialNumber> FakeProcessManager::processWithPid(std::int32_t pid) const {
    const std::scoped_lock lock(m_mutex);
    const Running *running = find(pid);
    return running ? std::optional(running->serialNumber) : std::nullopt;
}

std::optional<std::int32_t> FakeProcessManager::pidOf(ProcessSerialNumber process) const {
    if (!runningProcess(process))
        return std::nullopt;
    return static_cast<std::int32_t>(process.high);
}

std::optional<zt::ProcessInformation>
FakeProcessManager::information(ProcessSerialNumber process) const {
    const std::optional<FakeProcess> running = runningProcess(process);
    if (!running)
        return std::nullopt;
    return zt::ProcessInformation{.name = running->name, .signature = running->signature};
}

std::optional<QString> FakeProcessManager::displayName(ProcessSerialNumber process) const {
    const std::optional<FakeProcess> running = runningProcess(process);
    return running ? running->displayName : std::nullopt;
}

std::optional<QString> FakeProcessManager::bundleLocation(ProcessSerialNumber process) const {
    const std::optional<FakeProcess> running = runningProcess(process);
    return running ? running->location : std::nullopt;
}

QVariantMap FakeProcessManager::informationDictionary(ProcessSerialNumber process) const {
    const std::optional<FakeProcess> running = runningProcess(process);
    return running ? running->informationDictionary : QVariantMap();
}

QVariantMap FakeProcessManager::launcherInformation(ProcessSerialNumber process) const {
    const std::optional<FakeProcess> running = runningProcess(process);
    return running ? running->launcherInformation : QVariantMap();
}

bool FakeProcessManager::isBeingDebugged(ProcessSerialNumber process) const {
    const std::optional<FakeProcess> running = runningProcess(process);
    return running && running->isBeingDebugged;
}

std::optional<std::chrono::system_clock::time_point>
FakeProcessManager::startTime(std::int32_t pid) const {
    const std::scoped_lock lock(m_mutex);
    const Running *running = find(pid);
    return running ? std::optional(running->process.start) : std::nullopt;
}

std::optional<double> FakeProcessManager::userProcessorTime(std::int32_t pid) const {
    const std::scoped_lock lock(m_mutex);
    const Running *running = find(pid);
    return running ? std::optional(running->process.processorTime) : std::nullopt;
}

void FakeProcessManager::wakeUp(ProcessSerialNumber process) {
    if (const std::optional<std::int32_t> pid = pidOf(process)) {
        const std::scoped_lock lock(m_mutex);
        m_wokenUp << *pid;
    }
}

void FakeProcessManager::setEventListener(std::function<void(Event)> listener) {
    const std::scoped_lock lock(m_mutex);
    m_listener = std::move(listener);
    ++m_listenerChanges;
}

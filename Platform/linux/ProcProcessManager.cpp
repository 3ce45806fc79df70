// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/ProcProcessManager.h"

#include "Platform/MacRoman.h"
#include "Platform/linux/ForeignApplications.h"
#include "Platform/linux/LoginItemLaunch.h"
#include "Platform/linux/ProcSerialNumber.h"
#include "Platform/linux/ProcessDescriptor.h"

#include <QCoreApplication>
#include <QThread>

#include <signal.h> // SIGCONT
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <tuple>
#include <unordered_set>
#include <vector>

namespace zt {

using namespace Qt::StringLiterals;

namespace {

std::chrono::nanoseconds timeOf(clockid_t clock) {
    timespec time = {};
    ::clock_gettime(clock, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

// The kernel counts the times of processes in ticks, of which there are 100 to the second.
std::chrono::nanoseconds durationOf(std::uint64_t ticks) {
    static const auto ticksPerSecond = static_cast<std::uint64_t>(::sysconf(_SC_CLK_TCK));
    constexpr std::uint64_t nanosecondsPerSecond = 1'000'000'000;
    const std::uint64_t seconds = ticks / ticksPerSecond;
    const std::uint64_t rest = ticks % ticksPerSecond;
    return std::chrono::seconds(seconds) +
           std::chrono::nanoseconds(rest * nanosecondsPerSecond / ticksPerSecond);
}

QString signatureText(std::uint32_t signature) {
    const std::array<char, 4> bytes = {
        static_cast<char>(signature >> 24), static_cast<char>(signature >> 16),
        static_cast<char>(signature >> 8), static_cast<char>(signature)};
    return stringFromMacRoman(bytes);
}

} // namespace

ProcProcessManager::ProcProcessManager(const Bundles &bundles, WindowSystem &windowSystem,
                                       const std::string &procRoot)
    : m_procFs(procRoot)
    , m_bundles(bundles)
    , m_windowSystem(windowSystem)
    , m_heldProcesses(m_procFs, HeldProcesses::reasonableCount())
    , m_programs(m_procFs, bundles) {}

ProcProcessManager::~ProcProcessManager() = default;

QList<ProcessSerialNumber> ProcProcessManager::runningApplications() const {
    const QList<std::int32_t> owners = m_windowSystem.processesWithWindows();
    const std::unordered_set<std::int32_t> windowOwners(owners.begin(), owners.end());
    ProcPrograms::Memory memory;
    std::vector<std::tuple<std::uint64_t, std::int32_t, ProcessSerialNumber>> found;
    const uid_t user = ::geteuid();
    for (const ProcFolderEntry &folder : m_procFs.processes()) {
        const std::int32_t pid = folder.pid;
        const bool ownsWindow = windowOwners.contains(pid);
        const std::optional<std::string> link = m_procFs.programLink(pid);
        // Threads of the kernel have no program, and those of other users do not show it.
        if (!link && !ownsWindow)
            continue;
        const auto process = m_programs.observe(folder, link, &memory);
        if (!process)
            continue;
        if (!process->program->isInBundle && !ownsWindow && !process->isKnownApplication)
            continue;
        // Another user's process may have put off that user's rights since it was looked at.
        if (process->user != user && m_procFs.effectiveUser(pid) != user)
            continue;
        if (!process->isKnownApplication)
            m_programs.noteApplication(*process);
        found.emplace_back(process->startTicks, pid, serialNumberOf(pid, process->startTicks));
    }
    std::ranges::sort(found, {}, [](const auto &entry) {
        return std::pair(std::get<0>(entry), std::get<1>(entry));
    });
    QList<ProcessSerialNumber> applications;
    applications.reserve(static_cast<qsizetype>(found.size()));
    for (const auto &entry : found)
        applications << std::get<2>(entry);
    return applications;
}

QList<ForeignApplication> ProcProcessManager::applicationsOfOtherUsers() const {
    return zt::applicationsOfOtherUsers(m_procFs, m_bundles, ::geteuid());
}

std::optional<ProcessSerialNumber> ProcProcessManager::currentProcess() const {
    const std::optional<std::int32_t> pid = m_procFs.ownProcessId();
    return pid ? processWithPid(*pid) : std::nullopt;
}

std::optional<ProcessSerialNumber> ProcProcessManager::frontProcess() const {
    const std::optional<std::int32_t> pid = m_windowSystem.frontProcess();
    return pid ? processWithPid(*pid) : std::nullopt;
}

std::optional<ProcessSerialNumber> ProcProcessManager::processWithPid(std::int32_t pid) const {
    if (pid <= 0)
        return std::nullopt;
    if (const auto held = m_heldProcesses.runningProcessWithPid(pid))
        return held;
    const std::optional<ProcStat> stat = m_procFs.stat(pid);
    if (!stat || !stat->isRunning())
        return std::nullopt;
    return serialNumberOf(*stat);
}

std::optional<std::int32_t> ProcProcessManager::pidOf(ProcessSerialNumber process) const {
    const std::int32_t pid = processIdIn(process);
    return processWithPid(pid) == process ? std::optional(pid) : std::nullopt;
}

ProcPrograms::Pointer ProcProcessManager::programOf(ProcessSerialNumber process) const {
    const std::int32_t pid = processIdIn(process);
    if (pid <= 0)
        return nullptr;
    const auto observed = m_programs.observe(pid);
    if (!observed || serialNumberOf(pid, observed->startTicks) != process)
        return nullptr;
    return observed->program;
}

std::optional<ProcessInformation>
ProcProcessManager::information(ProcessSerialNumber process) const {
    const ProcPrograms::Pointer program = programOf(process);
    if (!program)
        return std::nullopt;
    return ProcessInformation{.name = program->name, .signature = program->signature};
}

std::optional<QString> ProcProcessManager::displayName(ProcessSerialNumber process) const {
    const ProcPrograms::Pointer program = programOf(process);
    if (!program)
        return std::nullopt;
    const QString shown = program->information.value(u"CFBundleDisplayName"_s).toString();
    return shown.isEmpty() ? program->name : shown;
}

std::optional<QString> ProcProcessManager::bundleLocation(ProcessSerialNumber process) const {
    const ProcPrograms::Pointer program = programOf(process);
    if (!program || program->location.isEmpty())
        return std::nullopt;
    return program->location;
}

QVariantMap ProcProcessManager::informationDictionary(ProcessSerialNumber process) const {
    const ProcPrograms::Pointer program = programOf(process);
    if (!program)
        return {};
    QVariantMap dictionary = program->information;
    dictionary.insert(u"pid"_s, processIdIn(process));
    dictionary.insert(u"FileCreator"_s, signatureText(program->signature));
    if (program->isInBundle)
        dictionary.insert(u"BundlePath"_s, program->location);
    if (!dictionary.contains(u"CFBundleName"_s))
        dictionary.insert(u"CFBundleName"_s, program->name);
    return dictionary;
}

QVariantMap ProcProcessManager::launcherInformation(ProcessSerialNumber process) const {
    const std::optional<ProcStat> stat = m_procFs.stat(processIdIn(process));
    if (!stat || serialNumberOf(*stat) != process)
        return {};
    const std::optional<ProcessSerialNumber> parent = processWithPid(stat->parent);
    const ProcPrograms::Pointer launcher = parent ? programOf(*parent) : nullptr;
    if (!launcher)
        return {};
    QVariantMap dictionary = informationDictionary(*parent);
    if (isLaunchOfLoginItem(launcher->name, m_procFs.controlGroups(stat->pid)))
        dictionary.insert(u"FileCreator"_s, u"lgnw"_s);
    return dictionary;
}

bool ProcProcessManager::isBeingDebugged(ProcessSerialNumber process) const {
    const std::int32_t pid = processIdIn(process);
    const std::optional<std::int32_t> tracer = m_procFs.tracer(pid);
    return tracer.value_or(0) != 0 && processWithPid(pid) == process;
}

std::optional<std::chrono::system_clock::time_point>
ProcProcessManager::startTime(std::int32_t pid) const {
    const std::optional<ProcStat> stat = pid > 0 ? m_procFs.stat(pid) : std::nullopt;
    if (!stat)
        return std::nullopt;
    const auto boot = timeOf(CLOCK_REALTIME) - timeOf(CLOCK_BOOTTIME);
    return std::chrono::system_clock::time_point(
        std::chrono::duration_cast<std::chrono::system_clock::duration>(
            boot + durationOf(stat->startTicks)));
}

std::optional<double> ProcProcessManager::userProcessorTime(std::int32_t pid) const {
    const std::optional<ProcStat> stat = pid > 0 ? m_procFs.stat(pid) : std::nullopt;
    if (!stat)
        return std::nullopt;
    return std::chrono::duration<double>(durationOf(stat->userTicks)).count();
}

void ProcProcessManager::wakeUp(ProcessSerialNumber process) {
    const std::int32_t pid = processIdIn(process);
    // Opened before the process is looked at, so that the signal can reach no other.
    const Result<ProcessDescriptor> descriptor = ProcessDescriptor::open(pid);
    const std::optional<ProcStat> stat = m_procFs.stat(pid);
    if (!descriptor || !stat || serialNumberOf(*stat) != process || stat->state != 'T')
        return;
    // It may have ended by now, which is as good.
    static_cast<void>(descriptor->sendSignal(SIGCONT));
}

void ProcProcessManager::setEventListener(std::function<void(Event)> listener) {
    Q_ASSERT(!QCoreApplication::instance() ||
             QThread::currentThread() == QCoreApplication::instance()->thread());
    m_watch.reset();
    if (!listener)
        return;
    m_watch = std::make_unique<ApplicationWatch>(
        ApplicationWatch::Environment{
            .procFs = m_procFs,
            .heldProcesses = m_heldProcesses,
            .windowSystem = m_windowSystem,
            .runningApplications = [this] { return runningApplications(); },
            .isRunning =
                [this](ProcessSerialNumber process) { return pidOf(process).has_value(); }},
        std::move(listener));
}

} // namespace zt

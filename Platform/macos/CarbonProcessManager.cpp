// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/CarbonProcessManager.h"

#include "Platform/Bundles.h"
#include "Platform/ChildProcesses.h"
#include "Platform/MacRoman.h"
#include "Platform/macos/CFText.h"
#include "Platform/macos/CFValues.h"
#include "Platform/macos/FileReference.h"
#include "Platform/macos/ProcessRecord.h"

#include <ApplicationServices/ApplicationServices.h>
#include <Carbon/Carbon.h>

#include <QFileInfo>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace zt {

namespace {

using NativeNumber = ::ProcessSerialNumber;

constexpr std::uint32_t noSignature = 0x3F3F3F3F; // "????"

NativeNumber nativeOf(ProcessSerialNumber process) {
    return {process.high, process.low};
}

ProcessSerialNumber ownOf(NativeNumber process) {
    return {.high = process.highLongOfPSN, .low = process.lowLongOfPSN};
}

bool areSame(NativeNumber one, NativeNumber other) {
    Boolean result = 0;
    return SameProcess(&one, &other, &result) == noErr && result != 0;
}

// The system's record of a process, with the name that it points to.
struct InformationRecord {
    std::array<unsigned char, 256> name = {}; // its length, then the characters
    ProcessInfoRec record = {};
};

// What the length in the record has always been on this kind of processor.
static_assert(sizeof(ProcessInfoRec) == 72);

bool readInformation(ProcessSerialNumber process, InformationRecord &information) {
    information.record.processInfoLength = sizeof information.record;
    information.record.processName = information.name.data();
    const NativeNumber native = nativeOf(process);
    return GetProcessInformation(&native, &information.record) == noErr;
}

QVariantMap dictionaryOf(NativeNumber process) {
    const CFOwner dictionary(
        ProcessInformationCopyDictionary(&process, kProcessDictionaryIncludeAllInformationMask));
    return mapOf(dictionary.get());
}

ForeignApplication foreignApplication(const Bundle &bundle, const QString &userName) {
    const QString code = bundle.stringForKey(u"CFBundleSignature"_s).value_or(QString());
    return {.name = bundle.stringForKey(u"CFBundleName"_s)
                        .value_or(QFileInfo(bundle.path()).completeBaseName()),
            .signature = fourCharacterCode(code).value_or(noSignature),
            .location = bundle.path(),
            .userName = userName};
}

ProcessManager::Event eventOf(std::uint32_t kind) {
    switch (kind) {
    case kEventAppLaunched:
        return ProcessManager::Event::Launched;
    case kEventAppTerminated:
        return ProcessManager::Event::Terminated;
    default:
        return ProcessManager::Event::FrontSwitched;
    }
}

} // namespace

CarbonProcessManager::CarbonProcessManager(ChildProcesses &childProcesses, const Bundles &bundles)
    : m_childProcesses(childProcesses)
    , m_bundles(bundles) {}

QList<ProcessSerialNumber> CarbonProcessManager::runningApplications() const {
    QList<ProcessSerialNumber> processes;
    NativeNumber process = {0, kNoProcess};
    while (GetNextProcess(&process) == noErr)
        processes << ownOf(process);
    return processes;
}

// The Process Manager knows the applications of this session only.
QList<ForeignApplication> CarbonProcessManager::applicationsOfOtherUsers() const {
    QList<ForeignApplication> applications;
    const Result<QByteArray> listed =
        m_childProcesses.standardOutputOfShell(u"id -un; ps -axo user=,comm="_s);
    if (!listed)
        return applications;
    const QString ownName = QString::fromUtf8(listed->first(listed->indexOf('\n') + 1)).trimmed();
    for (const ListedProcess &process : parseProcessList(*listed)) {
        if (process.userName == ownName)
            continue;
        if (const std::optional<Bundle> bundle = m_bundles.bundleEnclosing(process.programPath))
            applications << foreignApplication(*bundle, process.userName);
    }
    return applications;
}

// The system may answer with a number that stands for whoever asks. Numbers are compared here as
// they are, so it is replaced by the one in the list of processes.
std::optional<ProcessSerialNumber> CarbonProcessManager::currentProcess() const {
    NativeNumber current = {};
    if (GetCurrentProcess(&current) != noErr)
        return std::nullopt;
    for (const ProcessSerialNumber process : runningApplications()) {
        if (areSame(nativeOf(process), current))
            return process;
    }
    return ownOf(current);
}

std::optional<ProcessSerialNumber> CarbonProcessManager::frontProcess() const {
    NativeNumber front = {};
    if (GetFrontProcess(&front) != noErr)
        return std::nullopt;
    return ownOf(front);
}

std::optional<ProcessSerialNumber> CarbonProcessManager::processWithPid(std::int32_t pid) const {
    NativeNumber process = {};
    if (GetProcessForPID(pid, &process) != noErr)
        return std::nullopt;
    return ownOf(process);
}

std::optional<std::int32_t> CarbonProcessManager::pidOf(ProcessSerialNumber process) const {
    const NativeNumber native = nativeOf(process);
    pid_t pid = 0;
    if (GetProcessPID(&native, &pid) != noErr)
        return std::nullopt;
    return pid;
}

std::optional<ProcessInformation>
CarbonProcessManager::information(ProcessSerialNumber process) const {
    InformationRecord information;
    if (!readInformation(process, information))
        return std::nullopt;
    const QByteArrayView name(information.name.data() + 1, information.name.front());
    const OSType signature = information.record.processSignature;
    return ProcessInformation{.name = stringFromMacRoman(name),
                              .signature = signature != 0 ? signature : noSignature};
}

std::optional<QString> CarbonProcessManager::displayName(ProcessSerialNumber process) const {
    const NativeNumber native = nativeOf(process);
    CFOwner<CFStringRef> name;
    if (CopyProcessName(&native, name.receive()) != noErr || !name)
        return std::nullopt;
    return textOf(name.get());
}

std::optional<QString> CarbonProcessManager::bundleLocation(ProcessSerialNumber process) const {
    const NativeNumber native = nativeOf(process);
    FSRef location = {};
    if (GetProcessBundleLocation(&native, &location) != noErr)
        return std::nullopt;
    return pathOf(location);
}

QVariantMap CarbonProcessManager::informationDictionary(ProcessSerialNumber process) const {
    return dictionaryOf(nativeOf(process));
}

QVariantMap CarbonProcessManager::launcherInformation(ProcessSerialNumber process) const {
    InformationRecord information;
    if (!readInformation(process, information))
        return {};
    return dictionaryOf(information.record.processLauncher);
}

bool CarbonProcessManager::isBeingDebugged(ProcessSerialNumber process) const {
    const std::optional<std::int32_t> pid = pidOf(process);
    const std::optional<ProcessRecord> record = pid ? recordOfProcess(*pid) : std::nullopt;
    return record && record->isTraced;
}

std::optional<std::chrono::system_clock::time_point>
CarbonProcessManager::startTime(std::int32_t pid) const {
    const std::optional<ProcessRecord> record = recordOfProcess(pid);
    return record ? std::optional(record->start) : std::nullopt;
}

// What the tool prints is read from it directly: a file of a fixed name in a folder where everybody
// may write could be somebody else's.
std::optional<double> CarbonProcessManager::userProcessorTime(std::int32_t pid) const {
    const Result<QByteArray> printed =
        m_childProcesses.standardOutputOfShell(u"ps -o utime= -p %1"_s.arg(pid));
    return printed ? parseProcessorTime(*printed) : std::nullopt;
}

void CarbonProcessManager::wakeUp(ProcessSerialNumber process) {
    const NativeNumber native = nativeOf(process);
    WakeUpProcess(&native);
}

void CarbonProcessManager::setEventListener(std::function<void(Event)> listener) {
    m_events.reset();
    if (!listener)
        return;
    constexpr std::array<CarbonEventType, 3> wanted = {{
        {kEventClassApplication, kEventAppLaunched},
        {kEventClassApplication, kEventAppTerminated},
        {kEventClassApplication, kEventAppFrontSwitched},
    }};
    m_events = CarbonEventHandler::install(CarbonEventHandler::Target::Application, wanted,
                                           [listener = std::move(listener)](CarbonEventType event) {
                                               listener(eventOf(event.eventKind));
                                               return noErr;
                                           });
}

} // namespace zt

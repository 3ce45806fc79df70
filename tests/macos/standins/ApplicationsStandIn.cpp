// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/macos/standins/ApplicationsStandIn.h"

#include "tests/macos/standins/CoreFoundationStandIn.h"
#include "tests/macos/standins/FileReferences.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <deque>

#include <sys/sysctl.h>

using standin::Application;
using standin::referenceTo;

namespace standin {

Session session;
EventHandlers eventHandlers;

namespace {

struct Event {
    OSType eventClass;
    UInt32 eventKind;
};

ProcessSerialNumber numberOf(const Application &application) {
    return {0, application.serialNumber};
}

} // namespace

void Session::start(Application application) {
    application.serialNumber = ++m_lastSerialNumber;
    applications.push_back(std::move(application));
    eventHandlers.send(kEventClassApplication, kEventAppLaunched);
}

void Session::end(pid_t pid) {
    std::erase_if(applications, [pid](const Application &one) { return one.pid == pid; });
    eventHandlers.send(kEventClassApplication, kEventAppTerminated);
}

void Session::bringToFront(pid_t pid) {
    front = pid;
    eventHandlers.send(kEventClassApplication, kEventAppFrontSwitched);
}

const Application *Session::withSerialNumber(const ProcessSerialNumber &process) const {
    if (process.highLongOfPSN == 0 && process.lowLongOfPSN == kCurrentProcess)
        return withPid(current);
    const auto found = std::ranges::find_if(applications, [&](const Application &one) {
        return process.highLongOfPSN == 0 && one.serialNumber == process.lowLongOfPSN;
    });
    return found == applications.end() ? nullptr : &*found;
}

const Application *Session::withPid(pid_t pid) const {
    const auto found = std::ranges::find(applications, pid, &Application::pid);
    return found == applications.end() ? nullptr : &*found;
}

OSStatus EventHandlers::send(OSType eventClass, UInt32 eventKind) {
    Event event = {eventClass, eventKind};
    std::vector<Installed> handlers = installed;
    std::ranges::reverse(handlers);
    std::stable_partition(handlers.begin(), handlers.end(), [](const Installed &one) {
        return one.target == GetEventDispatcherTarget();
    });
    OSStatus answer = eventNotHandledErr;
    for (const Installed &one : handlers) {
        if (std::ranges::find(one.types, std::pair(eventClass, eventKind)) == one.types.end())
            continue;
        answer = one.handler(nullptr, reinterpret_cast<EventRef>(&event), one.context);
        if (answer != eventNotHandledErr)
            break;
    }
    return answer;
}

void resetSession() {
    session = {};
    eventHandlers = {};
}

} // namespace standin

using standin::session;

extern "C" {

const CFStringRef kCGWindowOwnerPID = CFSTR("kCGWindowOwnerPID");
const CFStringRef kCGWindowLayer = CFSTR("kCGWindowLayer");

OSErr GetCurrentProcess(ProcessSerialNumber *process) {
    const Application *const application = session.withPid(session.current);
    if (!application)
        return procNotFound;
    *process = session.answersWithCurrentProcess ? ProcessSerialNumber{0, kCurrentProcess}
                                                 : standin::numberOf(*application);
    return noErr;
}

OSErr GetFrontProcess(ProcessSerialNumber *process) {
    const Application *const application = session.withPid(session.front);
    if (!application)
        return procNotFound;
    *process = standin::numberOf(*application);
    return noErr;
}

OSErr GetNextProcess(ProcessSerialNumber *process) {
    const auto &all = session.applications;
    auto next = all.begin();
    if (process->lowLongOfPSN != kNoProcess) {
        next = std::ranges::find(all, process->lowLongOfPSN, &Application::serialNumber);
        if (next != all.end())
            ++next;
    }
    if (next == all.end())
        return procNotFound;
    *process = standin::numberOf(*next);
    return noErr;
}

OSErr GetProcessInformation(const ProcessSerialNumber *process, ProcessInfoRec *information) {
    const Application *const application = session.withSerialNumber(*process);
    if (!application)
        return procNotFound;
    if (information->processInfoLength != 72 || information->processAppRef)
        return paramErr;
    information->processName[0] = static_cast<unsigned char>(application->name.size());
    std::memcpy(information->processName + 1, application->name.data(), application->name.size());
    information->processSignature = application->signature;
    const Application *const launcher = session.withPid(application->launcher);
    information->processLauncher =
        launcher ? standin::numberOf(*launcher) : ProcessSerialNumber{0, kNoProcess};
    return noErr;
}

CFDictionaryRef ProcessInformationCopyDictionary(const ProcessSerialNumber *process, UInt32 mask) {
    const Application *const application = session.withSerialNumber(*process);
    return application && mask == kProcessDictionaryIncludeAllInformationMask
               ? referenceTo<CFDictionaryRef>(standin::make(application->information))
               : nullptr;
}

OSStatus CopyProcessName(const ProcessSerialNumber *process, CFStringRef *name) {
    const Application *const application = session.withSerialNumber(*process);
    if (!application || application->displayName.isEmpty())
        return procNotFound;
    *name = referenceTo<CFStringRef>(standin::make(application->displayName));
    return noErr;
}

OSStatus GetProcessBundleLocation(const ProcessSerialNumber *process, FSRef *location) {
    const Application *const application = session.withSerialNumber(*process);
    if (!application || application->location.isEmpty())
        return procNotFound;
    *location = standin::referenceToFile(application->location);
    return noErr;
}

OSStatus GetProcessForPID(pid_t pid, ProcessSerialNumber *process) {
    const Application *const application = session.withPid(pid);
    if (!application)
        return procNotFound;
    *process = standin::numberOf(*application);
    return noErr;
}

OSStatus GetProcessPID(const ProcessSerialNumber *process, pid_t *pid) {
    const Application *const application = session.withSerialNumber(*process);
    if (!application)
        return procNotFound;
    *pid = application->pid;
    return noErr;
}

OSErr SameProcess(const ProcessSerialNumber *one, const ProcessSerialNumber *other,
                  Boolean *result) {
    const Application *const first = session.withSerialNumber(*one);
    const Application *const second = session.withSerialNumber(*other);
    if (!first || !second)
        return procNotFound;
    *result = first == second;
    return noErr;
}

static OSErr request(const char *verb, const ProcessSerialNumber *process) {
    const Application *const application = session.withSerialNumber(*process);
    if (!application)
        return procNotFound;
    session.requests.emplace_back(verb, application->pid);
    return noErr;
}

OSErr SetFrontProcess(const ProcessSerialNumber *process) {
    return request("front", process);
}

OSStatus SetFrontProcessWithOptions(const ProcessSerialNumber *process, UInt32 options) {
    return options == kSetFrontProcessFrontWindowOnly ? request("front window", process)
                                                      : OSErr(paramErr);
}

OSErr ShowHideProcess(const ProcessSerialNumber *process, Boolean visible) {
    return request(visible != 0 ? "show" : "hide", process);
}

OSErr WakeUpProcess(const ProcessSerialNumber *process) {
    return request("wake up", process);
}

CFArrayRef CGWindowListCopyWindowInfo(CGWindowListOption /*option*/,
                                      CGWindowID /*relativeToWindow*/) {
    QVariantList windows;
    for (const Application &application : session.applications) {
        for (const int layer : {0, 25, 0}) { // two windows, and an item of the menu bar between
            if (application.hasWindow || layer != 0) {
                windows << QVariantMap{{QStringLiteral("kCGWindowOwnerPID"), application.pid},
                                       {QStringLiteral("kCGWindowLayer"), layer}};
            }
        }
    }
    return referenceTo<CFArrayRef>(standin::make(windows));
}

EventTargetRef GetApplicationEventTarget() {
    static int target;
    return reinterpret_cast<EventTargetRef>(&target);
}

EventTargetRef GetEventDispatcherTarget() {
    static int target;
    return reinterpret_cast<EventTargetRef>(&target);
}

OSStatus InstallEventHandler(EventTargetRef target, EventHandlerUPP handler, ItemCount count,
                             const EventTypeSpec *types, void *context,
                             EventHandlerRef *installed) {
    static std::deque<char> references; // each stands for a handler by where it is
    if (standin::eventHandlers.isRefusing)
        return paramErr;
    standin::EventHandlers::Installed added = {
        .target = target, .types = {}, .handler = handler, .context = context, .reference = {}};
    for (ItemCount index = 0; index < count; ++index)
        added.types.emplace_back(types[index].eventClass, types[index].eventKind);
    added.reference = reinterpret_cast<EventHandlerRef>(&references.emplace_back());
    *installed = added.reference;
    standin::eventHandlers.installed.push_back(std::move(added));
    return noErr;
}

OSStatus RemoveEventHandler(EventHandlerRef handler) {
    std::erase_if(standin::eventHandlers.installed,
                  [handler](const auto &one) { return one.reference == handler; });
    return noErr;
}

OSType GetEventClass(EventRef event) {
    return reinterpret_cast<const standin::Event *>(event)->eventClass;
}

UInt32 GetEventKind(EventRef event) {
    return reinterpret_cast<const standin::Event *>(event)->eventKind;
}

int sysctl(int *name, unsigned int nameLength, void *old, std::size_t *oldSize, void * /*changed*/,
           std::size_t /*changedSize*/) {
    if (nameLength != 4 || name[0] != CTL_KERN || name[1] != KERN_PROC ||
        name[2] != KERN_PROC_PID) {
        errno = EINVAL;
        return -1;
    }
    const Application *const application = session.withPid(name[3]);
    if (!old) {
        *oldSize = sizeof(kinfo_proc); // the kernel's guess, whether there is such a process or not
        return 0;
    }
    if (!application) {
        *oldSize = 0;
        return 0;
    }
    kinfo_proc record = {};
    record.kp_proc.p_starttime = {.tv_sec = application->startSeconds,
                                  .tv_usec = application->startMicroseconds};
    record.kp_proc.p_flag = application->isTraced ? P_TRACED : 0;
    if (*oldSize < sizeof record) {
        errno = ENOMEM;
        return -1;
    }
    std::memcpy(old, &record, sizeof record);
    *oldSize = sizeof record;
    return 0;
}

} // extern "C"

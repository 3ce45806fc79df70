// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include "Platform/Clock.h"
#include "Platform/Pasteboard.h"
#include "Platform/Platform.h"

#include "ZTStuff/ZTClasses/ZTProcess.h"
#include "ZTStuff/ZTClasses/ZTUtilitiesState.h"

namespace {

constexpr std::chrono::milliseconds watcherDelay{1000};

std::optional<std::int32_t> pasteboardChangeCount() {
    const auto count = zt::currentPlatform().pasteboard.changeCount();
    if (!count) {
        ZTUtilitiesState::shared().noteUnknown(
            ZTUtilitiesState::ClipboardChanges,
            "The desktop does not tell who changes the clipboard.");
    }
    return count;
}

// Nobody in front is the same as nobody.
bool isSameProcess(const ZTProcess::Pointer &a, const ZTProcess::Pointer &b) {
    return a ? a->isEqual(b.get()) : !b;
}

} // namespace

void ZTUtilities::initialize() {
    ZTUtilitiesState &state = ZTUtilitiesState::shared();
    const std::scoped_lock lock(state.classLock);
    if (state.initialized)
        return;
    zt::currentPlatform().clock.callAfter(watcherDelay, installProcessWatcher);
    state.initialized = true;
}

void ZTUtilities::installProcessWatcher() {
    ZTUtilitiesState::shared().processObservation = NotificationCenter::defaultCenter().addObserver(
        ZTProcessChangeNotification, processSwitched);
    // Nobody may have looked for a process so far.
    ZTProcess::installNotifications();
}

void ZTUtilities::processSwitched(const Notification & /*notification*/) {
    ZTUtilitiesState &state = ZTUtilitiesState::shared();
    const ZTProcess::Pointer front = ZTProcess::frontProcess();
    if (isSameProcess(front, state.activeProcess))
        return;
    const std::optional<std::int32_t> count = pasteboardChangeCount();
    const std::optional<std::int32_t> before = state.clipboardChangeCountAtStartOfActiveProcess;
    if (state.activeProcess && count && before && *count != *before)
        state.clipboardPublisherProcess = state.activeProcess;
    state.activeProcess = front;
    state.clipboardChangeCountAtStartOfActiveProcess = count;
}

ZTProcess::Pointer ZTUtilities::clipboardPublisherProcess() {
    initialize();
    ZTUtilitiesState &state = ZTUtilitiesState::shared();
    // The watcher may not have caught up yet.
    processSwitched({});
    const std::optional<std::int32_t> count = pasteboardChangeCount();
    const std::optional<std::int32_t> before = state.clipboardChangeCountAtStartOfActiveProcess;
    if (!count || (state.activeProcess && !before))
        return nullptr;
    return count == before ? state.clipboardPublisherProcess : state.activeProcess;
}

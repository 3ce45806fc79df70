// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The helper that comes to the front for a moment.

#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include "Platform/Bundles.h"
#include "Platform/Clock.h"
#include "Platform/Platform.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"
#include "ZTStuff/ZTClasses/ZTProcess.h"

#include <exception>

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

constexpr int mostRounds = 500;

// Null where no application is in front, or nobody can tell.
bool isInFront(const ZTProcess::Pointer &process) {
    const ZTProcess::Pointer front = ZTProcess::frontProcess();
    return front ? front->isEqual(process.get()) : !process;
}

// Sleeps in rounds until the process is in front, or is no more; for half a second at most. Answers
// how many rounds that took.
int roundsUntil(bool wantsFront, const ZTProcess::Pointer &process) {
    zt::Clock &clock = zt::currentPlatform().clock;
    int rounds = 0;
    while (rounds < mostRounds && isInFront(process) != wantsFront) {
        clock.sleepFor(1000us);
        ++rounds;
    }
    return rounds;
}

// Puts a process back into the front when it goes, whatever happened before.
class ReturnToFront {
public:
    explicit ReturnToFront(const ZTProcess::Pointer &process) : m_process(process) {}
    ReturnToFront(const ReturnToFront &) = delete;
    ReturnToFront &operator=(const ReturnToFront &) = delete;
    ~ReturnToFront() {
        if (!m_process)
            return;
        m_process->setFrontProcessFrontWindowOnly();
        m_process->wakeUp();
    }

private:
    const ZTProcess::Pointer &m_process;
};

void switchToMicroAndBack(const ZTProcess::Pointer &before, bool leavesItInFront) {
    const zt::Platform &platform = zt::currentPlatform();
    const auto micro = platform.bundles.mainBundle().pathForResource(u"Micro"_s, u"app"_s);
    ZTUtilities::openFile(micro.value_or(QString()));
    ZTLog("wait count (Micro) = %d", roundsUntil(false, before));
    if (before) {
        before->wakeUp();
        platform.clock.sleepFor(1us);
        before->wakeUp();
        if (!leavesItInFront)
            before->setFrontProcessFrontWindowOnly();
    }
    roundsUntil(true, before);
}

} // namespace

void ZTUtilities::launchMicro(bool leavesItInFront) {
    if (fullScreenMode())
        return;
    const ZTProcess::Pointer before = ZTProcess::frontProcess();
    const ReturnToFront atTheEnd(before);
    try {
        switchToMicroAndBack(before, leavesItInFront);
    } catch (const std::exception &failure) {
        ZTLog("** Error while running Micro: %@", failure.what());
    }
}

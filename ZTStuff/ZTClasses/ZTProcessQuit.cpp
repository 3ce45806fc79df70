// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "ZTStuff/ZTClasses/ZTProcess.h"

#include "Platform/ApplicationEvents.h"
#include "Platform/Clock.h"
#include "Platform/RunningApplications.h"

#include "ZTStuff/ZTClasses/ZTCompatibility/ZTLog.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using namespace std::chrono_literals;

constexpr float timeoutOfQuit = 4.0F; // seconds, once for asking and once for forcing
constexpr auto pollInterval = 1000us;
constexpr double ticksPerSecond = 60.0;

// One of the two ways to end an application, and what is logged about its success.
struct Phase {
    bool (zt::RunningApplication::*request)();
    const char *logWhenStopped;
    const char *logWhenTerminated;
};

constexpr Phase polite = {
    .request = &zt::RunningApplication::terminate,
    .logWhenStopped = "quit %@: process stopped after %1.3fs (%d attempts)",
    .logWhenTerminated = "quit %@: terminated after %1.3fs (%d attempts)",
};

// People search their logs for these very words, and the first one has always been written so.
constexpr Phase forced = {
    .request = &zt::RunningApplication::forceTerminate,
    .logWhenStopped = "foce-quit %@: process stopped after %1.3fs (%d attempts)",
    .logWhenTerminated = "force-quit %@: terminated after %1.3fs (%d attempts)",
};

// Repeats the request until the application has ended, at most for `timeout` seconds. Whether it
// has ended.
bool endApplication(zt::RunningApplication &application, const std::optional<QString> &name,
                    const Phase &phase, float timeout, zt::Clock &clock) {
    const auto start = clock.steadyNow();
    const auto elapsed = [&] {
        return std::chrono::duration<double>(clock.steadyNow() - start).count();
    };
    for (int attempts = 1; elapsed() < double(timeout); ++attempts) {
        if (!(application.*phase.request)()) {
            ZTLog(phase.logWhenStopped, name, elapsed(), attempts);
            return true;
        }
        clock.sleepFor(pollInterval);
        if (application.isTerminated()) {
            ZTLog(phase.logWhenTerminated, name, elapsed(), attempts);
            return true;
        }
    }
    return false;
}

void sendQuitEvent(zt::ApplicationEvents &events, std::int32_t pid,
                   const std::optional<QString> &name) {
    const zt::ApplicationEvents::Event event = {
        .eventClass = fourCharCode("aevt"), .eventId = fourCharCode("quit"), .targetPid = pid};
    std::int32_t error = events.checkAddress(pid);
    if (error != zt::ApplicationEvents::noError) {
        ZTLog("quitting %@ failed (%d; could not create descriptor)", name, error);
        return;
    }
    error = events.checkEvent(event);
    if (error != zt::ApplicationEvents::noError) {
        ZTLog("quitting %@ failed (%d; could not create event)", name, error);
        return;
    }
    error = events.sendWithoutReply(event);
    if (error != zt::ApplicationEvents::noError)
        ZTLog("quitting %@ failed (%d; could not send event)", name, error);
}

// Whole sixtieths of a second, towards zero; a span beyond all counting is the longest one.
std::int32_t ticksOf(float seconds) {
    const double ticks = double(seconds) * ticksPerSecond;
    if (std::isnan(ticks))
        return 0;
    return static_cast<std::int32_t>(std::clamp(ticks,
                                                double(std::numeric_limits<std::int32_t>::min()),
                                                double(std::numeric_limits<std::int32_t>::max())));
}

} // namespace

void ZTProcess::quit() {
    if (!quitRunningApplicationWithTimeout(timeoutOfQuit))
        sendQuitEvent(m_platform.applicationEvents, unixPID(), name());
}

bool ZTProcess::quitRunningApplicationWithTimeout(float timeout) {
    // Asked first: once the process has ended nobody could tell any more.
    const std::optional<QString> processName = name();
    if (!m_platform.runningApplications.isAvailable()) {
        ZTLog("cannot quit %@: NSRunningApplication not available", processName);
        return false;
    }
    const std::int32_t pid = unixPID();
    if (pid == 0) {
        ZTLog("cannot quit %@: no pid", processName);
        return false;
    }
    const std::unique_ptr<zt::RunningApplication> application =
        m_platform.runningApplications.applicationWithPid(pid);
    // The process may have ended and its id may have been given to another one before it was held.
    // As long as this one runs, the id is its own, and so is what is held.
    if (!application || !isStillRunning()) {
        ZTLog("cannot quit %@: no process found", processName);
        return false;
    }
    if (endApplication(*application, processName, polite, timeout, m_platform.clock) ||
        endApplication(*application, processName, forced, timeout, m_platform.clock))
        return true;
    ZTLog("quitting %@ failed", processName);
    return false;
}

void ZTProcess::sendAppleEventClass(FourCharCode eventClass, FourCharCode eventID,
                                    float timeout) const {
    zt::ApplicationEvents &events = m_platform.applicationEvents;
    const zt::ApplicationEvents::Event event = {
        .eventClass = eventClass, .eventId = eventID, .targetPid = unixPID()};
    if (events.checkEvent(event) != zt::ApplicationEvents::noError)
        return;
    const std::int32_t error = events.sendAndWait(event, ticksOf(timeout));
    if (error != zt::ApplicationEvents::noError)
        ZTLog("*** event error: %d", error);
}

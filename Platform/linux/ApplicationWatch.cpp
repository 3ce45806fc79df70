// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/ApplicationWatch.h"

#include "Platform/linux/ProcSerialNumber.h"

#include <algorithm>
#include <vector>

namespace zt {

using namespace std::chrono_literals;

namespace {

constexpr auto shortestPause = 1000ms;
constexpr auto longestPause = 4000ms;
// A process that loads another program takes no new number. Those that go unnoticed otherwise are
// found by a look from time to time.
constexpr auto longestTrust = 30s;
// At most this part of the time is spent looking on a machine that starts processes all the time.
constexpr int lookingShare = 50;
// A program opens several windows at a time, and its window is there before its process is named.
constexpr auto windowDelay = 100ms;

} // namespace

ApplicationWatch::ApplicationWatch(Environment environment,
                                   std::function<void(ProcessManager::Event)> listener)
    : m_environment(std::move(environment))
    , m_listener(std::move(listener))
    , m_pause(shortestPause)
    , m_endNotifier(m_environment.heldProcesses.eventDescriptor(), QSocketNotifier::Read) {
    m_timer.setSingleShot(true);
    m_windowTimer.setSingleShot(true);
    QObject::connect(&m_timer, &QTimer::timeout, [this] { timeHasPassed(); });
    QObject::connect(&m_windowTimer, &QTimer::timeout, [this] { lookForChanges(); });
    QObject::connect(&m_endNotifier, &QSocketNotifier::activated, [this] { processesHaveEnded(); });
    m_environment.windowSystem.setChangeListeners(
        [this] { m_listener(ProcessManager::Event::FrontSwitched); },
        [this] {
            if (!m_windowTimer.isActive())
                m_windowTimer.start(windowDelay);
        });
    m_lastProcessId = m_environment.procFs.lastProcessId();
    learnApplications(false);
    m_timer.start(m_pause);
}

ApplicationWatch::~ApplicationWatch() {
    m_environment.windowSystem.setChangeListeners({}, {});
    for (const auto &[number, process] : m_known)
        m_environment.heldProcesses.release(process);
}

void ApplicationWatch::tell(ProcessManager::Event event, int count) {
    for (; count > 0; --count)
        m_listener(event);
}

void ApplicationWatch::processesHaveEnded() {
    int ends = 0;
    for (const ProcessSerialNumber process : m_environment.heldProcesses.takeEnded())
        ends += static_cast<int>(m_known.erase(combined(process)));
    tell(ProcessManager::Event::Terminated, ends);
}

void ApplicationWatch::timeHasPassed() {
    // Read before the look, so that whatever starts during it is noticed the next time.
    const std::optional<std::int32_t> last = m_environment.procFs.lastProcessId();
    const bool somethingStarted = !last || last != m_lastProcessId;
    m_lastProcessId = last;
    const auto before = std::chrono::steady_clock::now();
    if (somethingStarted || m_looksAgain || before - m_lastLook >= longestTrust)
        lookForChanges();
    else
        noticeEnds();
    m_looksAgain = somethingStarted;

    const auto cost = std::chrono::steady_clock::now() - before;
    const auto fairPause =
        std::chrono::duration_cast<std::chrono::milliseconds>(cost * lookingShare);
    m_pause = somethingStarted ? shortestPause : std::min(2 * m_pause, longestPause);
    m_timer.start(std::max(m_pause, fairPause));
}

void ApplicationWatch::lookForChanges() {
    noticeEnds();
    learnApplications(true);
}

void ApplicationWatch::learnApplications(bool areNew) {
    m_lastLook = std::chrono::steady_clock::now();
    int starts = 0;
    for (const ProcessSerialNumber process : m_environment.runningApplications()) {
        if (!m_known.emplace(combined(process), process).second)
            continue;
        m_environment.heldProcesses.hold(process);
        ++starts;
    }
    if (areNew)
        tell(ProcessManager::Event::Launched, starts);
}

// Ends of processes that are not held; there are such where very many run.
void ApplicationWatch::noticeEnds() {
    std::vector<std::uint64_t> ended;
    for (const auto &[number, process] : m_known) {
        if (m_environment.heldProcesses.state(process) == HeldProcesses::State::NotHeld &&
            !m_environment.isRunning(process))
            ended.push_back(number);
    }
    for (const std::uint64_t number : ended)
        m_known.erase(number);
    tell(ProcessManager::Event::Terminated, static_cast<int>(ended.size()));
}

} // namespace zt

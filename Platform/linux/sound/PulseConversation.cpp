// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/sound/PulseConversation.h"

#include "Platform/linux/sound/PulseSession.h"
#include "Platform/posix/BlockedSignals.h"

#include <system_error>
#include <thread>
#include <utility>

namespace zt {

namespace {

struct LoopOwner {
    void operator()(pa_mainloop *loop) const { pulseLibrary()->pa_mainloop_free(loop); }
};

} // namespace

PulseConversation::PulseConversation(std::string programName)
    : m_programName(std::move(programName)) {}

std::shared_ptr<PulseConversation> PulseConversation::begin(std::string programName) {
    const std::shared_ptr<PulseConversation> conversation(
        new PulseConversation(std::move(programName)));
    try {
        const BlockedSignals blocked; // also in the thread, which begins with the same
        // Detached, because nobody may wait for it without a limit; see end().
        std::thread([conversation] { conversation->run(); }).detach();
    } catch (const std::system_error &) {
        conversation->finish();
    }
    return conversation;
}

void PulseConversation::add(std::shared_ptr<PulseRequest> request) {
    {
        const std::scoped_lock lock(m_mutex);
        if (!m_hasEnded) {
            m_inbox.requests.push_back(std::move(request));
            wakeUp();
            return;
        }
    }
    request->fail();
}

void PulseConversation::post(std::function<void()> action) {
    const std::scoped_lock lock(m_mutex);
    if (m_hasEnded)
        return;
    m_inbox.actions.push_back(std::move(action));
    wakeUp();
}

void PulseConversation::end(std::chrono::milliseconds patience) {
    std::unique_lock lock(m_mutex);
    m_inbox.isToEnd = true;
    wakeUp();
    m_ended.wait_for(lock, patience, [this] { return m_hasEnded; });
}

void PulseConversation::wakeUp() {
    if (m_loop != nullptr)
        pulseLibrary()->pa_mainloop_wakeup(m_loop);
}

bool PulseConversation::hasMail() {
    const std::scoped_lock lock(m_mutex);
    return !m_inbox.isEmpty();
}

PulseConversation::Inbox PulseConversation::takeInbox() {
    const std::scoped_lock lock(m_mutex);
    if (m_inbox.isToEnd)
        return {.requests = {}, .actions = {}, .isToEnd = true}; // finish() fails the rest
    return std::exchange(m_inbox, {});
}

void PulseConversation::run() {
    if (const PulseLibrary *const library = pulseLibrary()) {
        const std::unique_ptr<pa_mainloop, LoopOwner> loop(library->pa_mainloop_new());
        if (loop)
            talk(*library, *loop);
    }
    finish();
}

void PulseConversation::talk(const PulseLibrary &library, pa_mainloop &loop) {
    {
        const std::scoped_lock lock(m_mutex);
        m_loop = &loop;
    }
    {
        PulseSession session(library, loop, m_programName);
        for (Inbox inbox = takeInbox(); !inbox.isToEnd; inbox = takeInbox()) {
            for (const auto &action : inbox.actions)
                action();
            for (auto &request : inbox.requests)
                session.add(std::move(request));
            if (!session.handleEvents([this] { return hasMail(); }))
                break;
        }
    }
    const std::scoped_lock lock(m_mutex);
    m_loop = nullptr;
}

void PulseConversation::finish() {
    Inbox left;
    {
        const std::scoped_lock lock(m_mutex);
        m_hasEnded = true;
        left = std::exchange(m_inbox, {});
        m_ended.notify_all();
    }
    for (const auto &request : left.requests)
        request->fail();
}

} // namespace zt

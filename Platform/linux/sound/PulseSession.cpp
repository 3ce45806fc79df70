// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/sound/PulseSession.h"

#include <utility>

namespace zt {

PulseSession::PulseSession(const PulseLibrary &library, pa_mainloop &loop, std::string programName)
    : m_library(library)
    , m_loop(loop)
    , m_programName(std::move(programName)) {}

PulseSession::~PulseSession() {
    for (const Entry &entry : m_running)
        entry.request->release();
    disconnect();
    for (const Entry &entry : m_running)
        entry.request->fail();
    for (const Entry &entry : m_waiting)
        entry.request->fail();
}

void PulseSession::add(std::shared_ptr<PulseRequest> request) {
    m_waiting.push_back({std::move(request)});
    connect();
    lookAtConnection();
}

bool PulseSession::handleEvents(const std::function<bool()> &isWanted) {
    forgetDone();
    // Preparing forgets earlier wake-ups, so what they were for is looked at only then.
    constexpr int endlessly = -1;
    if (m_library.pa_mainloop_prepare(&m_loop, endlessly) < 0)
        return false;
    if (isWanted())
        m_library.pa_mainloop_wakeup(&m_loop);
    if (m_library.pa_mainloop_poll(&m_loop) < 0 || m_library.pa_mainloop_dispatch(&m_loop) < 0)
        return false;
    lookAtConnection();
    forgetDone();
    return true;
}

void PulseSession::connect() {
    if (m_context != nullptr)
        return;
    m_wasReady = false;
    m_context =
        m_library.pa_context_new(m_library.pa_mainloop_get_api(&m_loop), m_programName.c_str());
    // A user without a server does not want one for the sake of a sound.
    if (m_context != nullptr)
        m_library.pa_context_connect(m_context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr);
}

void PulseSession::disconnect() {
    if (m_context == nullptr)
        return;
    m_library.pa_context_disconnect(m_context);
    m_library.pa_context_unref(std::exchange(m_context, nullptr));
}

// Not by a callback: a context must not go while it calls.
void PulseSession::lookAtConnection() {
    const pa_context_state_t state =
        m_context != nullptr ? m_library.pa_context_get_state(m_context) : PA_CONTEXT_FAILED;
    if (state == PA_CONTEXT_READY)
        beginWaiting();
    else if (!PA_CONTEXT_IS_GOOD(state))
        connectionFailed();
}

void PulseSession::beginWaiting() {
    m_wasReady = true;
    for (Entry &entry : std::exchange(m_waiting, {})) {
        ++entry.beginnings;
        entry.request->begin({m_library, m_context});
        m_running.push_back(std::move(entry));
    }
}

void PulseSession::connectionFailed() {
    for (const Entry &entry : m_running)
        entry.request->release();
    disconnect();
    std::vector<Entry> given = std::exchange(m_waiting, {});
    // A server that was restarted is noticed only when it is talked to; the new one gets a chance.
    for (Entry &entry : std::exchange(m_running, {})) {
        if (entry.request->isDone())
            continue;
        if (m_wasReady && entry.beginnings == 1 && entry.request->canBeginAgain())
            m_waiting.push_back(std::move(entry));
        else
            entry.request->fail();
    }
    for (Entry &entry : given) {
        if (m_wasReady)
            m_waiting.push_back(std::move(entry));
        else
            entry.request->fail();
    }
    m_wasReady = false;
    if (!m_waiting.empty()) {
        connect();
        if (m_context == nullptr || !PA_CONTEXT_IS_GOOD(m_library.pa_context_get_state(m_context)))
            connectionFailed();
    }
}

void PulseSession::forgetDone() {
    std::erase_if(m_running, [](const Entry &entry) {
        if (entry.request->isDone())
            entry.request->release();
        return entry.request->isDone();
    });
}

} // namespace zt

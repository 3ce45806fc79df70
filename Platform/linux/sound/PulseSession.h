#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The connection to the sound server: made when it is wanted, made anew when it broke.

#include "Platform/linux/sound/PulseRequest.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace zt {

// Thread: one, that of the conversation.
class PulseSession {
public:
    PulseSession(const PulseLibrary &library, pa_mainloop &loop, std::string programName);
    // Fails all requests that are not done.
    ~PulseSession();
    PulseSession(const PulseSession &) = delete;
    PulseSession &operator=(const PulseSession &) = delete;

    // Begins the request as soon as there is a connection.
    void add(std::shared_ptr<PulseRequest> request);

    // Waits for the server, or for a wake-up of the loop, and handles what has come. It does not
    // wait when `isWanted` says that there is something else to do; a wake-up after that is heeded.
    // False when the loop is of no use any more.
    bool handleEvents(const std::function<bool()> &isWanted);

private:
    struct Entry {
        std::shared_ptr<PulseRequest> request;
        int beginnings = 0;
    };

    void connect();
    void disconnect();
    void beginWaiting();
    void lookAtConnection();
    void connectionFailed();
    void forgetDone();

    const PulseLibrary &m_library;
    pa_mainloop &m_loop;
    std::string m_programName;
    pa_context *m_context = nullptr;
    bool m_wasReady = false;
    std::vector<Entry> m_waiting;
    std::vector<Entry> m_running;
};

} // namespace zt

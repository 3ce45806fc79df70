#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The thread on which the sound server is talked to. Nobody else ever waits for the server's
// library, whatever that is doing.

#include "Platform/linux/sound/PulseRequest.h"

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace zt {

// Lives as long as its thread, or somebody who wants something of it. Thread: any.
class PulseConversation : public std::enable_shared_from_this<PulseConversation> {
public:
    // Starts the thread. When there are no threads left, every request fails.
    static std::shared_ptr<PulseConversation> begin(std::string programName);

    PulseConversation(const PulseConversation &) = delete;
    PulseConversation &operator=(const PulseConversation &) = delete;

    // Hands a request to the server; it fails at once when the conversation has ended.
    void add(std::shared_ptr<PulseRequest> request);

    // Runs an action on the conversation's thread, or never when that has ended.
    void post(std::function<void()> action);

    // Ends the conversation and fails what is not done. Waits for its thread, but not longer than
    // this: a thread that hangs is left alone.
    void end(std::chrono::milliseconds patience);

private:
    struct Inbox {
        std::vector<std::shared_ptr<PulseRequest>> requests;
        std::vector<std::function<void()>> actions;
        bool isToEnd = false;

        bool isEmpty() const { return requests.empty() && actions.empty() && !isToEnd; }
    };

    explicit PulseConversation(std::string programName);
    void run();
    void talk(const PulseLibrary &library, pa_mainloop &loop);
    bool hasMail();
    Inbox takeInbox();
    void wakeUp();
    void finish();

    const std::string m_programName;
    std::mutex m_mutex;
    std::condition_variable m_ended;
    Inbox m_inbox;
    pa_mainloop *m_loop = nullptr; // while it can be woken up
    bool m_hasEnded = false;
};

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Events sent to other applications: activate, open, quit.

#include <cstdint>

namespace zt {

// Error numbers are the reference platform's; 0 is success. Thread: any, not the main thread of the
// receiver.
class ApplicationEvents {
public:
    // What is sent, and to whom.
    struct Event {
        std::uint32_t eventClass = 0; // four-character codes, as 'aevt'
        std::uint32_t eventId = 0;    // as 'quit'
        std::int32_t targetPid = 0;
    };

    static constexpr std::int32_t noError = 0;
    static constexpr std::int32_t processNotFound = -600;   // procNotFound
    static constexpr std::int32_t eventNotHandled = -1708;  // errAEEventNotHandled
    static constexpr std::int32_t eventTimedOut = -1712;    // errAETimeout
    static constexpr std::int32_t connectionInvalid = -609; // connectionInvalid

    virtual ~ApplicationEvents() = default;

    // Whether the target can be addressed at all: noError, or processNotFound.
    virtual std::int32_t checkAddress(std::int32_t targetPid) = 0;

    // Whether there is a way to send the event: noError, or connectionInvalid.
    virtual std::int32_t checkEvent(const Event &event) = 0;

    // Sends the event and does not wait for an answer. noError when it was sent; what becomes of it
    // is not known then.
    virtual std::int32_t sendWithoutReply(const Event &event) = 0;

    // Sends the event and waits for the answer, at most `timeoutTicks` sixtieths of a second, or a
    // minute when that is negative. noError when the target carried it out.
    virtual std::int32_t sendAndWait(const Event &event, std::int32_t timeoutTicks) = 0;

protected:
    ApplicationEvents() = default;
    ApplicationEvents(const ApplicationEvents &) = default;
    ApplicationEvents &operator=(const ApplicationEvents &) = default;
};

} // namespace zt

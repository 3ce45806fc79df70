// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/BusApplicationEvents.h"

#include "Platform/linux/BusConnections.h"
#include "Platform/linux/BusConversation.h"
#include "Platform/linux/ProcessDescriptor.h"

#include <QDBusConnection>
#include <QDeadlineTimer>

#include <chrono>
#include <optional>

#include <cerrno>

namespace zt {

namespace {

using namespace std::chrono_literals;

// How long the bus itself may take to tell where the target is, when no time was given.
constexpr auto patienceWithBus = 1s;
constexpr auto defaultPatience = 60s;

consteval std::uint32_t code(const char (&text)[5]) {
    std::uint32_t answer = 0;
    for (int index = 0; index < 4; ++index)
        answer = answer << 8 | static_cast<unsigned char>(text[index]);
    return answer;
}

struct Meaning {
    std::uint32_t eventClass;
    std::uint32_t eventId;
    BusRequest request;
};

constexpr Meaning meanings[] = {
    {code("aevt"), code("quit"), BusRequest::Quit},
    {code("aevt"), code("oapp"), BusRequest::Activate},
    {code("aevt"), code("rapp"), BusRequest::Activate},
    {code("aevt"), code("odoc"), BusRequest::Activate},
    {code("misc"), code("actv"), BusRequest::Activate},
};

std::optional<BusRequest> requestFor(const ApplicationEvents::Event &event) {
    for (const Meaning &meaning : meanings) {
        if (meaning.eventClass == event.eventClass && meaning.eventId == event.eventId)
            return meaning.request;
    }
    return std::nullopt;
}

QDeadlineTimer deadlineAfter(std::int32_t ticks) {
    if (ticks < 0)
        return QDeadlineTimer(defaultPatience);
    return QDeadlineTimer(std::chrono::milliseconds(std::int64_t(ticks) * 1000 / 60));
}

std::int32_t errorNumber(BusOutcome outcome) {
    switch (outcome) {
    case BusOutcome::Done:
        return ApplicationEvents::noError;
    case BusOutcome::TimedOut:
        return ApplicationEvents::eventTimedOut;
    case BusOutcome::Disconnected:
        return ApplicationEvents::connectionInvalid;
    case BusOutcome::NotOffered:
        break;
    }
    return ApplicationEvents::eventNotHandled;
}

} // namespace

std::int32_t BusApplicationEvents::checkAddress(std::int32_t targetPid) {
    const Result<ProcessDescriptor> target = ProcessDescriptor::open(targetPid);
    // Only the answer that there is no such process says so; others say that we cannot look.
    return !target && target.error().code == ESRCH ? processNotFound : noError;
}

std::int32_t BusApplicationEvents::checkEvent(const Event &) {
    return QDBusConnection::sessionBus().isConnected() ? noError : connectionInvalid;
}

std::int32_t BusApplicationEvents::sendWithoutReply(const Event &event) {
    if (const std::int32_t error = checkAddress(event.targetPid); error != noError)
        return error;
    if (const std::int32_t error = checkEvent(event); error != noError)
        return error;
    const std::optional<BusRequest> request = requestFor(event);
    if (!request)
        return eventNotHandled;
    const QDBusConnection bus = QDBusConnection::sessionBus();
    bool sent = false;
    for (const BusConnection &connection :
         busConnectionsOfProcess(bus, event.targetPid, QDeadlineTimer(patienceWithBus)))
        sent |= sendBusRequest(bus, connection, *request);
    return sent ? noError : eventNotHandled;
}

std::int32_t BusApplicationEvents::sendAndWait(const Event &event, std::int32_t timeoutTicks) {
    const QDeadlineTimer deadline = deadlineAfter(timeoutTicks);
    if (const std::int32_t error = checkAddress(event.targetPid); error != noError)
        return error;
    if (const std::int32_t error = checkEvent(event); error != noError)
        return error;
    const std::optional<BusRequest> request = requestFor(event);
    if (!request)
        return eventNotHandled;
    const QDBusConnection bus = QDBusConnection::sessionBus();
    BusOutcome outcome = BusOutcome::NotOffered;
    for (const BusConnection &connection :
         busConnectionsOfProcess(bus, event.targetPid, deadline)) {
        BusConversation conversation(bus, connection, deadline);
        outcome = conversation.make(*request);
        if (outcome != BusOutcome::NotOffered)
            break;
    }
    if (outcome == BusOutcome::NotOffered && deadline.hasExpired())
        outcome = BusOutcome::TimedOut;
    return errorNumber(outcome);
}

} // namespace zt

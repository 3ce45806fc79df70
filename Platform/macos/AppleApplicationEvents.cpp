// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/AppleApplicationEvents.h"

#include <Carbon/Carbon.h>

#include <cstddef>

namespace zt {

static_assert(ApplicationEvents::noError == noErr);
static_assert(ApplicationEvents::processNotFound == procNotFound);
static_assert(ApplicationEvents::connectionInvalid == connectionInvalid);

namespace {

// Disposes of its data when it goes.
class Descriptor {
public:
    Descriptor() = default;
    ~Descriptor() { AEDisposeDesc(&m_descriptor); }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    AEDesc *get() { return &m_descriptor; }
    const AEDesc *get() const { return &m_descriptor; }

private:
    AEDesc m_descriptor = {typeNull, nullptr};
};

constexpr AESendMode waitForReplyAlone =
    kAEWaitReply | kAENeverInteract | kAEDontReconnect | kAEDontRecord | kAEDontExecute;
static_assert(waitForReplyAlone == 0x3093);

std::int32_t makeAddress(std::int32_t pid, Descriptor &address) {
    ProcessSerialNumber process = {};
    if (const OSStatus status = GetProcessForPID(pid, &process); status != noErr)
        return status;
    return AECreateDesc(typeProcessSerialNumber, &process, Size(sizeof process), address.get());
}

std::int32_t makeEvent(const ApplicationEvents::Event &event, Descriptor &made) {
    Descriptor address;
    if (const std::int32_t status = makeAddress(event.targetPid, address); status != noErr)
        return status;
    return AECreateAppleEvent(event.eventClass, event.eventId, address.get(), kAutoGenerateReturnID,
                              kAnyTransactionID, made.get());
}

} // namespace

std::int32_t AppleApplicationEvents::checkAddress(std::int32_t targetPid) {
    Descriptor address;
    return makeAddress(targetPid, address) == noErr ? noError : processNotFound;
}

std::int32_t AppleApplicationEvents::checkEvent(const Event &event) {
    Descriptor made;
    return makeEvent(event, made);
}

std::int32_t AppleApplicationEvents::sendWithoutReply(const Event &event) {
    Descriptor made;
    if (const std::int32_t status = makeEvent(event, made); status != noErr)
        return status;
    return AESend(made.get(), nullptr, kAENoReply, kAEHighPriority, kAEDefaultTimeout, nullptr,
                  nullptr);
}

std::int32_t AppleApplicationEvents::sendAndWait(const Event &event, std::int32_t timeoutTicks) {
    const pid_t target = event.targetPid;
    Descriptor made;
    AEBuildError error = {};
    if (const OSStatus status = AEBuildAppleEvent(
            event.eventClass, event.eventId, typeKernelProcessID, &target, Size(sizeof target),
            kAutoGenerateReturnID, kAnyTransactionID, made.get(), &error, "");
        status != noErr)
        return status;
    Descriptor reply;
    return AESendMessage(made.get(), reply.get(), waitForReplyAlone, timeoutTicks);
}

} // namespace zt

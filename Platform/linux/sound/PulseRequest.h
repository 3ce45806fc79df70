#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Something that is wanted of the sound server.

#include "Platform/linux/sound/PulseLibrary.h"

namespace zt {

// A connection to the server, as requests see it.
struct PulseServer {
    const PulseLibrary &calls;
    pa_context *context;
};

// Thread: that of the conversation, for all operations.
class PulseRequest {
public:
    virtual ~PulseRequest() = default;
    PulseRequest(const PulseRequest &) = delete;
    PulseRequest &operator=(const PulseRequest &) = delete;

    // Starts, on a connection that stands. May be called a second time, on another connection, when
    // the first one broke while canBeginAgain().
    virtual void begin(const PulseServer &server) = 0;

    // Whether nothing is left to be done.
    virtual bool isDone() const = 0;

    // Whether it has had no effect yet.
    virtual bool canBeginAgain() const = 0;

    // Gives back what is held of the connection. Called before the connection goes, and when the
    // request is done.
    virtual void release() = 0;

    // There is no connection, and there will be none.
    virtual void fail() = 0;

protected:
    PulseRequest() = default;
};

} // namespace zt

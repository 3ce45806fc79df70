#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A sound server that does not do what it should.

#include "Platform/posix/UniqueFd.h"

#include <QTemporaryDir>

#include <thread>

// Clients find it as long as it lives.
class SilentServer {
public:
    enum class Manner {
        AcceptsAndIsSilent, // as one that hangs
        HangsUp,            // closes each connection at once
        TalksNonsense,      // sends bytes that are none of the protocol
    };

    explicit SilentServer(Manner manner);
    ~SilentServer();
    SilentServer(const SilentServer &) = delete;
    SilentServer &operator=(const SilentServer &) = delete;

private:
    void serve(Manner manner);

    QTemporaryDir m_folder;
    QByteArray m_before;
    zt::UniqueFd m_socket;
    std::jthread m_thread;
};

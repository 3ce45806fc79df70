#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Child processes on Linux.

#include "Platform/ChildProcesses.h"
#include "Platform/linux/LeftChildren.h"

namespace zt {

class SpawnedChildProcesses final : public ChildProcesses {
public:
    // How long programs that were asked to end have for it. Children that were started are let go
    // of before this goes.
    explicit SpawnedChildProcesses(
        std::chrono::milliseconds patience = std::chrono::milliseconds(1000));

    Result<std::unique_ptr<ChildProcess>> start(const Program &program) override;
    Result<QByteArray> standardOutputOfShell(const QString &commandLine) override;

private:
    LeftChildren m_leftChildren;
};

} // namespace zt

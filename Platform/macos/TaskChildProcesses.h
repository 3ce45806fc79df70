#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Child processes, as tasks of Foundation.

#include "Platform/ChildProcesses.h"

namespace zt {

class TaskChildProcesses final : public ChildProcesses {
public:
    Result<std::unique_ptr<ChildProcess>> start(const Program &program) override;
    Result<QByteArray> standardOutputOfShell(const QString &commandLine) override;
};

} // namespace zt

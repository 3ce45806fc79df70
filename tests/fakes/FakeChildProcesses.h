#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Child processes for unit tests.

#include "Platform/ChildProcesses.h"

#include <optional>
#include <vector>

// What a test says of the children that are started.
struct FakeChild {
    int questions = 0; // so many times it is found running; less than 0: until it is terminated
    QByteArray output;
    std::optional<zt::Error> startFailure = {};
    std::optional<zt::Error> outputFailure = {};
};

// Every child behaves as `child` says, and what is asked is recorded. Thread: one at a time.
class FakeChildProcesses final : public zt::ChildProcesses {
public:
    zt::Result<std::unique_ptr<zt::ChildProcess>> start(const Program &program) override;
    zt::Result<QByteArray> standardOutputOfShell(const QString &commandLine) override;

    FakeChild child;
    std::vector<Program> started;
    QStringList commandLines;
    int terminations = 0; // requests, also those to a child that had ended
    int released = 0;     // children that were let go of
};

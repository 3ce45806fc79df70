#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Running other programs as child processes, and what they print.

#include "Platform/Result.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <chrono>
#include <memory>

namespace zt {

// A program that was started, and the temporary file that it writes to. When this goes, the file is
// removed and the child, if it still runs, goes on by itself. Thread: one at a time.
class ChildProcess {
public:
    virtual ~ChildProcess() = default;

    // Whether the program runs. What it started itself does not count.
    virtual bool isRunning() = 0;

    // Blocks the calling thread until the program has ended, or the time is over.
    virtual void waitForEnd(std::chrono::microseconds atMost) = 0;

    // Asks the program and all that it started to end; what does not do so soon is forced to,
    // without waiting for it here. Only what has left for a process group of its own is spared.
    // Does nothing when the program has ended.
    virtual void terminate() = 0;

    // Everything that has been printed to both output streams, in the order written.
    virtual Result<QByteArray> output() = 0;

protected:
    ChildProcess() = default;
    ChildProcess(const ChildProcess &) = default;
    ChildProcess &operator=(const ChildProcess &) = default;
};

// Children get this process's environment, and no descriptors but the standard streams. None stays
// behind as a zombie, whenever it ends. Thread: any, for all operations.
class ChildProcesses {
public:
    // The program is run itself, no shell in front of it.
    struct Program {
        QString path;
        QStringList arguments;
        QString workingFolder;
    };

    virtual ~ChildProcesses() = default;

    // Starts the program with nothing to read; both its output streams go into one temporary file,
    // which only this user can read and whose name cannot be guessed. When the program cannot be
    // started, a file that was made already stays.
    virtual Result<std::unique_ptr<ChildProcess>> start(const Program &program) = 0;

    // Runs the line by the system's shell and answers what it has written to its standard output
    // until everybody has closed that; the shell may live on. Standard input and error are this
    // process's. Fails only when the shell could not be started or listened to.
    virtual Result<QByteArray> standardOutputOfShell(const QString &commandLine) = 0;

protected:
    ChildProcesses() = default;
    ChildProcesses(const ChildProcesses &) = default;
    ChildProcesses &operator=(const ChildProcesses &) = default;
};

} // namespace zt

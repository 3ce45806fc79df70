// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/linux/SpawnedChildProcesses.h"

#include "Platform/linux/CollectedChild.h"
#include "Platform/linux/ProgramStart.h"
#include "Platform/posix/SystemCalls.h"

#include <QFile>

#include <array>
#include <new>

namespace zt {

namespace {

constexpr auto shell = "/bin/sh";

Result<QByteArray> everythingFrom(int pipe) try {
    QByteArray bytes;
    std::array<char, 65536> some; // NOLINT(cppcoreguidelines-pro-type-member-init): read into
    for (;;) {
        const ssize_t count = readSome(pipe, some.data(), some.size());
        if (count < 0)
            return Error::fromErrno("read output of", shell);
        if (count == 0)
            return bytes;
        bytes.append(some.data(), count);
    }
} catch (const std::bad_alloc &) {
    return Error::fromErrno("read output of", shell, ENOMEM);
}

// Closing its output is the last thing but one that a program does, so its end is hardly ever more
// than a moment away.
constexpr std::chrono::milliseconds moment(1);

} // namespace

SpawnedChildProcesses::SpawnedChildProcesses(std::chrono::milliseconds patience)
    : m_leftChildren(patience) {}

Result<std::unique_ptr<ChildProcess>> SpawnedChildProcesses::start(const Program &program) {
    return CollectedChild::start(program, m_leftChildren);
}

Result<QByteArray> SpawnedChildProcesses::standardOutputOfShell(const QString &commandLine) {
    std::array<int, 2> ends = {-1, -1};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        return Error::fromErrno("make pipe to", shell);
    UniqueFd output(ends[0]);
    UniqueFd input(ends[1]);
    Result<OwnedChild> child =
        startProgram({.program = shell,
                      .arguments = {"-c", QFile::encodeName(commandLine).toStdString()},
                      .workingFolder = {},
                      .output = input.get()});
    if (!child)
        return child.error();
    input.reset();
    Result<QByteArray> bytes = everythingFrom(output.get());
    output.reset();
    child->waitForEnd(moment);
    if (!child->hasEnded())
        m_leftChildren.take(std::move(*child), LeftChildren::Fate::MayGoOn);
    return bytes;
}

} // namespace zt

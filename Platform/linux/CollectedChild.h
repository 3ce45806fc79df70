#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// A child process whose output goes into a temporary file.

#include "Platform/ChildProcesses.h"
#include "Platform/linux/LeftChildren.h"
#include "Platform/linux/OwnedChild.h"
#include "Platform/posix/UniqueFd.h"

#include <string>

namespace zt {

class CollectedChild final : public ChildProcess {
public:
    // Starts the program. `leftChildren` outlives the result.
    static Result<std::unique_ptr<ChildProcess>> start(const ChildProcesses::Program &program,
                                                       LeftChildren &leftChildren);

    CollectedChild(const CollectedChild &) = delete;
    CollectedChild &operator=(const CollectedChild &) = delete;
    ~CollectedChild() override;

    bool isRunning() override;
    void waitForEnd(std::chrono::microseconds atMost) override { m_child.waitForEnd(atMost); }
    void terminate() override;
    Result<QByteArray> output() override;

private:
    CollectedChild(OwnedChild child, UniqueFd file, std::string path, LeftChildren &leftChildren);

    OwnedChild m_child;
    UniqueFd m_file;
    std::string m_path;
    LeftChildren &m_leftChildren;
    bool m_isTerminated = false;
};

} // namespace zt

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Processes that run from bundles and do nothing.

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <sys/types.h>

#include <vector>

// Ends what it has started when it goes. Thread: one at a time.
class ManyProcesses {
public:
    // Makes so many bundles, in a folder of its own.
    explicit ManyProcesses(int bundleCount);
    ~ManyProcesses();
    ManyProcesses(const ManyProcesses &) = delete;
    ManyProcesses &operator=(const ManyProcesses &) = delete;

    // Starts so many more processes, of the bundles in turn. Ends the program when that fails.
    void start(int count);

    // Starts one that this does not look after any more.
    pid_t startOne();

    // Ends all of them and waits until they have gone.
    void endAll();

    const std::vector<pid_t> &pids() const { return m_pids; }

private:
    QTemporaryDir m_folder;
    std::vector<QByteArray> m_programs;
    std::vector<pid_t> m_pids;
    std::size_t m_starts = 0;
};

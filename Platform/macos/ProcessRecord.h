#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What the kernel and the process tool know of a process.

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>

#include <chrono>
#include <cstdint>
#include <optional>

namespace zt {

// The kernel's own record.
struct ProcessRecord {
    std::chrono::system_clock::time_point start;
    bool isTraced = false; // by a debugger
};

// No value when there is no such process. Thread: any.
std::optional<ProcessRecord> recordOfProcess(std::int32_t pid);

// The seconds in a text of minutes and seconds, as "ps -o utime=" prints it: 62.5 for "1:02.50".
// No value when there is no colon in it. Thread: any.
std::optional<double> parseProcessorTime(QByteArrayView text);

// A process of the list that "ps -axo user=,comm=" prints.
struct ListedProcess {
    QString userName;
    QString programPath;

    bool operator==(const ListedProcess &) const = default;
};

// The processes in such a list whose programs are told by their paths. Thread: any.
QList<ListedProcess> parseProcessList(const QByteArray &text);

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/macos/ProcessRecord.h"

#include <sys/sysctl.h>

#include <array>
#include <cstring>
#include <vector>

namespace zt {

std::optional<ProcessRecord> recordOfProcess(std::int32_t pid) {
    std::array<int, 4> name = {CTL_KERN, KERN_PROC, KERN_PROC_PID, pid};
    std::size_t size = 0;
    if (::sysctl(name.data(), name.size(), nullptr, &size, nullptr, 0) != 0)
        return std::nullopt;
    std::vector<char> bytes(size);
    if (::sysctl(name.data(), name.size(), bytes.data(), &size, nullptr, 0) != 0)
        return std::nullopt;
    // For a process that there is not, nothing is written and nothing fails.
    kinfo_proc record = {};
    if (size < sizeof record)
        return std::nullopt;
    std::memcpy(&record, bytes.data(), sizeof record);
    const timeval &start = record.kp_proc.p_starttime;
    return ProcessRecord{
        .start = std::chrono::system_clock::time_point(
            std::chrono::duration_cast<std::chrono::system_clock::duration>(
                std::chrono::seconds(start.tv_sec) + std::chrono::microseconds(start.tv_usec))),
        .isTraced = (record.kp_proc.p_flag & P_TRACED) != 0};
}

std::optional<double> parseProcessorTime(QByteArrayView text) {
    const qsizetype colon = text.indexOf(':');
    if (colon < 0)
        return std::nullopt;
    constexpr float secondsOfMinute = 60;
    const float minutes = float(text.first(colon).trimmed().toInt());
    return double(minutes * secondsOfMinute + text.sliced(colon + 1).trimmed().toFloat());
}

QList<ListedProcess> parseProcessList(const QByteArray &text) {
    QList<ListedProcess> processes;
    for (const QByteArray &line : text.split('\n')) {
        // A name of a user has no blanks, a path may have many.
        const qsizetype nameEnd = line.indexOf(' ');
        const QByteArray path = line.mid(nameEnd + 1).trimmed();
        if (nameEnd > 0 && path.startsWith('/'))
            processes << ListedProcess{QString::fromUtf8(line.first(nameEnd)),
                                       QString::fromUtf8(path)};
    }
    return processes;
}

} // namespace zt

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "Platform/posix/CopyProgressMeter.h"

#include <algorithm>

namespace zt {

namespace {

// A little more than a sixtieth of a second.
constexpr std::chrono::milliseconds interval(17);

} // namespace

void CopyProgressMeter::add(std::uint64_t bytes) {
    if (!m_listener)
        return;
    m_bytesDone += bytes;
    // While one thread tells, the others go on with their work.
    const std::unique_lock lock(m_mutex, std::try_to_lock);
    if (!lock)
        return;
    const auto now = std::chrono::steady_clock::now();
    if (now - m_lastTold < interval)
        return;
    m_lastTold = now;
    m_listener({std::min(m_bytesDone.load(), m_bytesInAll), m_bytesInAll});
}

void CopyProgressMeter::finish() {
    if (m_listener)
        m_listener({m_bytesInAll, m_bytesInAll});
}

} // namespace zt

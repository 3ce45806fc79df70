#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Telling the progress of a copy, neither too often nor backwards.

#include "Platform/posix/TreeCopy.h"

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <mutex>

namespace zt {

// Thread: any.
class CopyProgressMeter {
public:
    // `listener` may be empty.
    CopyProgressMeter(std::function<void(const CopyProgress &)> listener, std::uint64_t bytesInAll)
        : m_listener(std::move(listener))
        , m_bytesInAll(bytesInAll) {}

    // Counts further bytes and tells of them, unless that was done a moment ago.
    void add(std::uint64_t bytes);

    // Tells that everything is done.
    void finish();

private:
    const std::function<void(const CopyProgress &)> m_listener;
    const std::uint64_t m_bytesInAll;
    std::atomic<std::uint64_t> m_bytesDone = 0;
    std::mutex m_mutex;
    std::chrono::steady_clock::time_point m_lastTold;
};

} // namespace zt

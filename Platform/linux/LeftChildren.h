#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Children that nobody waits for any more.

#include "Platform/linux/OwnedChild.h"
#include "Platform/posix/UniqueFd.h"

#include <chrono>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace zt {

// Takes note of their ends, on a thread of its own that begins with the first of them. When this
// goes, those that must end are ended, and the others go on. Thread: any.
class LeftChildren {
public:
    enum class Fate { MayGoOn, MustEnd };

    // How long children that must end, and what they have started, have for it.
    explicit LeftChildren(std::chrono::milliseconds patience);
    ~LeftChildren();
    LeftChildren(const LeftChildren &) = delete;
    LeftChildren &operator=(const LeftChildren &) = delete;

    // A child that must end leads a group of its own, and was asked to end.
    void take(OwnedChild child, Fate fate);

private:
    using Time = std::chrono::steady_clock::time_point;

    struct Child {
        OwnedChild process;
        std::optional<Time> deadline; // when its group is ended
    };

    void start();
    void run();
    static void forgetEnded(std::vector<Child> &children);
    void waitForNews(std::vector<Child> &children) const;

    const std::chrono::milliseconds m_patience;
    UniqueFd m_wake; // readable when there is something new
    std::mutex m_mutex;
    std::vector<Child> m_arrivals;
    bool m_isEnding = false;
    std::thread m_thread;
};

} // namespace zt

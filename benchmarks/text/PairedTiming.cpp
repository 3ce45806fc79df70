// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "benchmarks/text/PairedTiming.h"

#include <algorithm>
#include <chrono>
#include <limits>

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

volatile std::size_t lookedAt = 0;

std::chrono::duration<double, std::nano> timeFor(const TimedWork &work, int runs) {
    const auto start = Clock::now();
    for (int run = 0; run < runs; ++run)
        lookedAt = lookedAt + work();
    return Clock::now() - start;
}

} // namespace

std::vector<double> shortestTimes(const std::vector<TimedWork> &works) {
    constexpr int rounds = 9;
    constexpr auto leastSample = 2ms;
    constexpr auto mostForOne = 4s;
    std::vector<int> runs;
    for (const TimedWork &work : works) {
        int count = 1;
        while (timeFor(work, count) < leastSample)
            count *= 2;
        runs.push_back(count);
    }
    std::vector<double> shortest(works.size(), std::numeric_limits<double>::infinity());
    const auto start = Clock::now();
    for (int round = 0; round < rounds; ++round) {
        // Slow ones get fewer rounds, but two at least.
        if (round >= 2 && Clock::now() - start > mostForOne)
            break;
        for (std::size_t index = 0; index < works.size(); ++index) {
            const auto time = timeFor(works[index], runs[index]);
            shortest[index] = std::min(shortest[index], time.count() / runs[index]);
        }
    }
    return shortest;
}

#pragma once

// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The line of a figure that a benchmark found, which other programs read.

#include <cstdio>

namespace zt {

// Prints "BENCH <area>.<case> <metric> <number>". The two names have no blanks.
inline void printBenchLine(const char *areaAndCase, const char *metric, double number) {
    std::printf("BENCH %s %s %.4g\n", areaAndCase, metric, number);
    std::fflush(stdout);
}

} // namespace zt

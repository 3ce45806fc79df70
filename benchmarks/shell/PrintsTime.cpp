// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Sleeps for so many microseconds, prints the steady time in nanoseconds, and ends.

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

int main(int argc, char **argv) {
    std::this_thread::sleep_for(std::chrono::microseconds(argc > 1 ? std::atol(argv[1]) : 0));
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    std::printf("%lld\n", static_cast<long long>(
                              std::chrono::duration_cast<std::chrono::nanoseconds>(now).count()));
    std::fflush(stdout);
    std::_Exit(EXIT_SUCCESS);
}

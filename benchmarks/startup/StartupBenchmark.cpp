// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// How much longer the installer takes to its first painted window, and to the read-me in it, than
// an empty window does. Both are started in turn, so that what else the machine does touches both
// alike.

#include "benchmarks/BenchLine.h"
#include "benchmarks/Median.h"
#include "benchmarks/startup/PaintWatch.h"

#include <QByteArray>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace {

constexpr int warmUps = 3;
constexpr int runs = 31;

const std::string product = PRODUCT;
const std::string resources = product + "/Contents/Resources";
const std::string installer = resources + "/VelmoraInstaller.app/Contents/Linux/VelmoraInstaller";

// As the product itself starts it.
std::vector<std::string> installerArguments() {
    return {"-productName",       "Sample Notes",
            "-readMePath",        resources + "/ReadMe.rtf",
            "-documentationPath", resources + "/Documentation.html",
            "-destinationPath",   qgetenv("HOME").toStdString() + "/Sample Notes.app"};
}

void printSpread(const char *name, std::vector<double> values) {
    std::sort(values.begin(), values.end());
    std::printf("# %s: median %.1f ms, from %.1f to %.1f, %zu runs\n", name, zt::median(values),
                values.front(), values.back(), values.size());
}

} // namespace

int main() {
    auto watch = zt::PaintWatch::connect();
    if (!watch) {
        std::fputs("There is no X server that tells of drawing.\n", stderr);
        return 1;
    }
    std::vector<double> empty;
    std::vector<double> installing;
    std::vector<double> complete;
    for (int run = -warmUps; run < runs; ++run) {
        const auto emptyTime = watch->measure(EMPTY_WINDOW, {});
        const auto installerTime = watch->measure(installer, installerArguments());
        if (!emptyTime || !installerTime) {
            std::fprintf(stderr, "No window of %s was painted.\n",
                         emptyTime ? installer.c_str() : EMPTY_WINDOW);
            return 1;
        }
        if (run < 0)
            continue;
        empty.push_back(emptyTime->first.count());
        installing.push_back(installerTime->first.count());
        complete.push_back(installerTime->last.count());
    }
    printSpread("empty window", empty);
    printSpread("installer", installing);
    printSpread("installer with all of it painted", complete);
    zt::printBenchLine("startup.first_window", "empty_window_ms", zt::median(empty));
    zt::printBenchLine("startup.first_window", "installer_ms", zt::median(installing));
    zt::printBenchLine("startup.first_window", "ratio_to_empty_window",
                       zt::median(installing) / zt::median(empty));
    zt::printBenchLine("startup.complete_window", "installer_ms", zt::median(complete));
    zt::printBenchLine("startup.complete_window", "ratio_to_empty_window",
                       zt::median(complete) / zt::median(empty));
    return 0;
}

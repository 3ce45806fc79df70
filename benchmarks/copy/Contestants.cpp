// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

#include "benchmarks/copy/Contestants.h"

#include "benchmarks/Median.h"
#include "benchmarks/tool/MeasuredProcess.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace zt {

namespace {

constexpr const char *targetName = "copy.app";

Contestant ofCopyOnce(std::string name, const std::string &way) {
    return {std::move(name), [way](const std::string &source, const std::string &target) {
                return timeOf(COPY_ONCE, {way, source, target});
            }};
}

// `script` finds the source as $1 and the target, which does not exist, as $2.
Contestant ofScript(std::string name, const std::string &script) {
    return {std::move(name), [script](const std::string &source, const std::string &target) {
                return timeOf("/bin/sh", {"-c", script, "sh", source, target});
            }};
}

bool isThere(const std::string &program) {
    return ::access(("/usr/bin/" + program).c_str(), X_OK) == 0;
}

} // namespace

Contestant ourCopy() {
    return ofCopyOnce("ours", "relaxed");
}

Contestant ourDurableCopy() {
    return ofCopyOnce("ours_durable", "durable");
}

Contestant cp() {
    return ofScript("cp", R"(exec cp -a "$1" "$2")");
}

Contestant cpAndSync() {
    return ofScript("cp_sync", R"(cp -a "$1" "$2" && exec sync -f "$2")");
}

Contestant cpWithClones() {
    return ofScript("cp_clones", R"(exec cp -a --reflink=auto "$1" "$2")");
}

Contestant rsync() {
    return ofScript("rsync", R"(exec rsync -a "$1/" "$2")");
}

Contestant tarToTar() {
    return ofScript("tar", R"(mkdir "$2" && tar -C "$1" -cf - . | tar -C "$2" -xpf -)");
}

Contestant standardLibrary() {
    return ofCopyOnce("std_filesystem", "standard");
}

Contestant python() {
    return ofScript("python_shutil",
                    R"(exec /usr/bin/python3 -c 'import shutil, sys
shutil.copytree(sys.argv[1], sys.argv[2], symlinks=True)' "$1" "$2")");
}

Contestant floorOf(const TreeList &list, const std::vector<std::string> &contents) {
    return {"floor",
            [&](const std::string & /*source*/,
                const std::string &target) -> std::optional<std::chrono::nanoseconds> {
                const auto begin = std::chrono::steady_clock::now();
                if (!writeSameBytes(list, contents, target))
                    return std::nullopt;
                return std::chrono::steady_clock::now() - begin;
            }};
}

Times race(const Volume &volume, const std::string &source,
           const std::vector<Contestant> &contestants, int rounds) {
    Times times;
    for (int round = -1; round < rounds; ++round) {
        for (std::size_t i = 0; i < contestants.size(); ++i) {
            const Contestant &contestant =
                contestants[(i + static_cast<std::size_t>(round + 1)) % contestants.size()];
            const bool needsProgram = contestant.name == "rsync" && !isThere("rsync");
            if (needsProgram)
                continue;
            const auto time = contestant.copy(source, volume.path(targetName));
            if (!time) {
                std::fprintf(stderr, "%s could not copy %s.\n", contestant.name.c_str(),
                             source.c_str());
                std::exit(EXIT_FAILURE); // NOLINT(concurrency-mt-unsafe)
            }
            volume.removeAndSettle(targetName);
            if (round >= 0) {
                times[contestant.name].push_back(
                    std::chrono::duration<double, std::milli>(*time).count());
            }
        }
    }
    return times;
}

double ratio(const Times &times, const Contestant &one, const Contestant &other) {
    const std::vector<double> &ones = times.at(one.name);
    const std::vector<double> &others = times.at(other.name);
    std::vector<double> ratios(ones.size());
    std::transform(ones.begin(), ones.end(), others.begin(), ratios.begin(),
                   [](double a, double b) { return a / b; });
    return median(std::move(ratios));
}

std::optional<std::size_t> memoryOfOurCopy(const Volume &volume, const std::string &source) {
    const auto bytes = residentMemoryOf(COPY_ONCE, {"relaxed", source, volume.path(targetName)});
    volume.removeAndSettle(targetName);
    return bytes;
}

} // namespace zt

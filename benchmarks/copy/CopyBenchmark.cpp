// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// The copy beside its peers: many small files, a few large ones and a tree that is really
// installed, on the disk, in memory and on file systems that share what is the same.
//
// By default the large files are a fifth of what they are meant to be, and rounds are few, so that
// it takes some minutes. VELMORA_COPY_BENCH=full takes the full sizes and three times the rounds.
// VELMORA_COPY_TREE names the installed tree.

#include "Platform/posix/SystemCalls.h"
#include "benchmarks/BenchLine.h"
#include "benchmarks/Median.h"
#include "benchmarks/copy/Contestants.h"
#include "benchmarks/copy/SampleTree.h"
#include "benchmarks/copy/Volumes.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace {

using zt::Contestant;
using zt::Times;
using zt::TreeList;
using zt::Volume;

constexpr const char *sourceName = "source.app";
constexpr std::uint64_t fullLargeSize = 300'000'000;

struct Scale {
    bool isFull;
    int rounds;              // of small trees
    int largeRounds;         // of trees of gigabytes
    std::uint64_t largeSize; // of the smallest large file
    std::string installed;   // the installed tree
};

// NOLINTBEGIN(concurrency-mt-unsafe)
Scale chosenScale() {
    const char *size = std::getenv("VELMORA_COPY_BENCH");
    const char *tree = std::getenv("VELMORA_COPY_TREE");
    const bool isFull = size && std::string(size) == "full";
    return {.isFull = isFull,
            .rounds = isFull ? 21 : 7,
            .largeRounds = isFull ? 9 : 5,
            .largeSize = isFull ? fullLargeSize : fullLargeSize / 5,
            .installed = tree ? tree : "/usr/lib/x86_64-linux-gnu"};
}
// NOLINTEND(concurrency-mt-unsafe)

void describe(const std::string &name, const TreeList &list, const Times &times) {
    std::printf("# %s: %zu files, %zu folders, %.0f MB; medians of %zu rounds in ms:", name.c_str(),
                list.files.size(), list.folders.size(), static_cast<double>(list.bytes) / 1e6,
                times.begin()->second.size());
    for (const auto &[contestant, values] : times)
        std::printf(" %s %.0f", contestant.c_str(), zt::median(values));
    std::puts("");
}

// Other sessions at work, a build for instance, would take a core from copies with two threads and
// none from the others. Only root can put this session before them.
void takePrecedence() {
    ::setsid();
    const zt::UniqueFd weight = zt::openAt(AT_FDCWD, "/proc/self/autogroup", O_WRONLY);
    if (!weight || !zt::writeFully(weight.get(), "-20"))
        std::puts("# other programs at work now make the ratios larger");
}

void print(const std::string &name, const char *metric, double number) {
    zt::printBenchLine(("copy." + name).c_str(), metric, number);
}

class CopyBenchmark {
public:
    explicit CopyBenchmark(Scale scale) : m_scale(std::move(scale)) {}

    void run();

private:
    void runPlain(const Volume &volume);
    void raceAll(const Volume &volume, const std::string &name, const std::string &source,
                 const std::vector<Contestant> &peers, int rounds);
    void raceDurable(const Volume &volume, const std::string &name, const std::string &source);
    void runClones(const char *kind);
    void noteMemory(const Volume &volume, const std::string &source);

    const Scale m_scale;
    std::size_t m_mostMemory = 0;
};

void CopyBenchmark::noteMemory(const Volume &volume, const std::string &source) {
    const std::optional<std::size_t> bytes = zt::memoryOfOurCopy(volume, source);
    m_mostMemory = std::max(m_mostMemory, bytes.value_or(0));
}

void CopyBenchmark::raceAll(const Volume &volume, const std::string &name,
                            const std::string &source, const std::vector<Contestant> &peers,
                            int rounds) {
    const TreeList list = zt::listTree(source);
    const std::vector<std::string> contents = zt::contentsOf(source, list);
    const Contestant floor = zt::floorOf(list, contents);
    std::vector<Contestant> all = {zt::ourCopy(), floor};
    all.insert(all.end(), peers.begin(), peers.end());
    const Times times = zt::race(volume, source, all, rounds);
    describe(name, list, times);
    for (const Contestant &peer : peers) {
        if (times.contains(peer.name))
            print(name, ("ratio_to_" + peer.name).c_str(), zt::ratio(times, zt::ourCopy(), peer));
    }
    print(name, "ratio_to_floor", zt::ratio(times, zt::ourCopy(), floor));
    noteMemory(volume, source);
}

void CopyBenchmark::raceDurable(const Volume &volume, const std::string &name,
                                const std::string &source) {
    const Times times =
        zt::race(volume, source, {zt::ourDurableCopy(), zt::cpAndSync()}, m_scale.rounds);
    describe(name + ", durable", zt::listTree(source), times);
    print(name, "durable_ratio_to_cp_sync",
          zt::ratio(times, zt::ourDurableCopy(), zt::cpAndSync()));
}

void CopyBenchmark::runPlain(const Volume &volume) {
    const std::string suffix = '_' + volume.fileSystem();
    const std::string source = volume.path(sourceName);
    const std::vector<Contestant> peers = {zt::cp(), zt::rsync(), zt::tarToTar(),
                                           zt::standardLibrary(), zt::python()};

    zt::makeSmallFiles(source);
    raceAll(volume, "small" + suffix, source, peers, m_scale.rounds);
    if (volume.fileSystem() != "tmpfs")
        raceDurable(volume, "small" + suffix, source);
    volume.removeAndSettle(sourceName);

    zt::makeLargeFiles(source, m_scale.largeSize);
    raceAll(volume, "large" + suffix, source, peers, m_scale.largeRounds);
    volume.removeAndSettle(sourceName);

    // From where it is installed to here, first copied here so that both are of one file system.
    if (!std::filesystem::is_directory(m_scale.installed) ||
        !zt::cp().copy(m_scale.installed, source)) {
        std::printf("# real%s: not run, for there is no readable %s\n", suffix.c_str(),
                    m_scale.installed.c_str());
        return;
    }
    raceAll(volume, "real" + suffix, source,
            m_scale.isFull ? peers : std::vector<Contestant>{zt::cp()}, m_scale.largeRounds);
    volume.removeAndSettle(sourceName);
}

void CopyBenchmark::runClones(const char *kind) {
    const std::optional<Volume> volume = Volume::inImage(kind);
    const std::string name = std::string("clones_") + kind;
    if (!volume) {
        std::printf("# %s: not run, for this machine cannot make or mount one\n", name.c_str());
        return;
    }
    const std::string source = volume->path(sourceName);
    zt::makeSmallFiles(source);
    const TreeList list = zt::listTree(source);
    const Times times =
        zt::race(*volume, source, {zt::ourCopy(), zt::cpWithClones()}, m_scale.rounds);
    describe(name, list, times);
    print(name, "ratio_to_cp", zt::ratio(times, zt::ourCopy(), zt::cpWithClones()));
    noteMemory(*volume, source);
    raceDurable(*volume, name, source);
}

void CopyBenchmark::run() {
    std::printf("# %s sizes; the installed tree is %s\n",
                m_scale.isFull ? "full" : "default (large files are a fifth of the full ones)",
                m_scale.installed.c_str());
    const bool canMount = zt::makeMountsPrivate();
    if (const std::optional<Volume> own = canMount ? Volume::inImage("ext4") : std::nullopt) {
        std::puts("# the disk: an ext4 file system of its own, in a file");
        runPlain(*own);
    } else if (const std::optional<Volume> disk = Volume::onDisk()) {
        std::puts("# the disk: the folder of the build");
        runPlain(*disk);
    }
    if (const std::optional<Volume> volume = Volume::inMemory()) {
        runPlain(*volume);
    } else {
        std::puts("# tmpfs: not run, for there is none here");
    }
    for (const char *kind : {"xfs", "btrfs"}) {
        if (canMount) {
            runClones(kind);
        } else {
            std::printf("# clones_%s: not run, for only root may mount\n", kind);
        }
    }
    print("memory", "peak_rss_mb", static_cast<double>(m_mostMemory) / (1024 * 1024));
}

} // namespace

int main() {
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    takePrecedence();
    try {
        CopyBenchmark(chosenScale()).run();
    } catch (const std::exception &exception) {
        std::fprintf(stderr, "%s\n", exception.what());
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}

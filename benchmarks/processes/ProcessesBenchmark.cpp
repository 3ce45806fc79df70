// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// Listing a thousand applications, looking one up, ending one, and what watching them costs.

#include "Platform/Log.h"
#include "Platform/NativePlatform.h"
#include "Platform/linux/LinuxBundles.h"
#include "Platform/linux/ProcProcessManager.h"

#include "ZTStuff/ZTClasses/ZTProcess.h"

#include "benchmarks/BenchLine.h"
#include "benchmarks/Median.h"
#include "benchmarks/processes/ManyProcesses.h"

#include <QAbstractEventDispatcher>
#include <QEventLoop>
#include <QGuiApplication>
#include <QProcess>
#include <QTimer>

#include <poll.h>
#include <sys/syscall.h> // pidfd_open
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <limits>
#include <optional>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Clock = std::chrono::steady_clock;

constexpr int processCount = 1000;
constexpr int bundleCount = 40; // about as many as a desktop has running
constexpr int rounds = 5;
constexpr int listings = 15; // in each round, after the first one

double milliseconds(Clock::duration duration) {
    return std::chrono::duration<double, std::milli>(duration).count();
}

class QuietLog final : public zt::Log {
public:
    void writeLine(std::string_view /*message*/) override {}
    void passOn(std::string_view /*lines*/) override {}
    std::vector<std::string> recentLines() const override { return {}; }
};

// The services of this system, without log lines, and with a process manager that knows nothing
// yet.
class FreshPlatform {
public:
    explicit FreshPlatform(const zt::Platform &native)
        : m_manager(native.bundles, native.windowSystem)
        , m_services{.log = m_log,
                     .clock = native.clock,
                     .childProcesses = native.childProcesses,
                     .bundles = native.bundles,
                     .userDefaults = native.userDefaults,
                     .systemVersion = native.systemVersion,
                     .loginItems = native.loginItems,
                     .workspace = native.workspace,
                     .appearance = native.appearance,
                     .trash = native.trash,
                     .windowSystem = native.windowSystem,
                     .processManager = m_manager,
                     .runningApplications = native.runningApplications,
                     .applicationEvents = native.applicationEvents,
                     .accessibility = native.accessibility,
                     .authorization = native.authorization,
                     .keyboardLayout = native.keyboardLayout,
                     .sounds = native.sounds,
                     .menuBarEvents = native.menuBarEvents,
                     .pasteboard = native.pasteboard,
                     .userInput = native.userInput,
                     .fileSystems = native.fileSystems,
                     .interruptions = native.interruptions}
        , m_current(m_services) {
        ZTProcess::platformChanged();
    }
    ~FreshPlatform() { ZTProcess::platformChanged(); }
    FreshPlatform(const FreshPlatform &) = delete;
    FreshPlatform &operator=(const FreshPlatform &) = delete;

private:
    QuietLog m_log;
    zt::ProcProcessManager m_manager;
    zt::Platform m_services;
    zt::ScopedPlatform m_current;
};

// Lists all applications with name, path and version; how long that took.
double listingTime(qsizetype &count) {
    const auto start = Clock::now();
    qsizetype characters = 0;
    const auto processes = ZTProcess::allProcesses();
    for (const ZTProcess::Pointer &process : processes)
        characters += process->name()->size() + process->path()->size() + process->version().size();
    const double time = milliseconds(Clock::now() - start);
    count = characters > 0 ? processes.size() : 0;
    return time;
}

// In milliseconds: the listing of a program that has just started, and those after it.
struct ListingTimes {
    double first = std::numeric_limits<double>::infinity();
    double later = std::numeric_limits<double>::infinity();
    qsizetype count = 0;
};

// Of several listings the best counts, on both sides: all that other programs on the machine can do
// is to make one slower.
ListingTimes ownListingTimes(const zt::Platform &native) {
    ListingTimes times;
    for (int round = 0; round < rounds; ++round) {
        const FreshPlatform fresh(native);
        times.first = std::min(times.first, listingTime(times.count));
        for (int listing = 0; listing < listings; ++listing)
            times.later = std::min(times.later, listingTime(times.count));
    }
    return times;
}

std::optional<ListingTimes> psutilListingTimes() {
    ListingTimes times;
    for (int round = 0; round < rounds; ++round) {
        QProcess python;
        python.start(u"/usr/bin/python3"_s,
                     {QStringLiteral(LIST_WITH_PSUTIL), QString::number(listings)});
        python.waitForFinished(-1);
        const QStringList words =
            QString::fromUtf8(python.readAllStandardOutput()).simplified().split(u' ');
        if (python.exitCode() != 0 || words.size() != 3)
            return std::nullopt;
        times.first = std::min(times.first, words[0].toDouble());
        times.later = std::min(times.later, words[1].toDouble());
        times.count = words[2].toInt();
    }
    return times;
}

void measureListings(const zt::Platform &native) {
    const ListingTimes own = ownListingTimes(native);
    std::printf(
        "# %d applications: beginning to watch and first listing %.1f ms, later ones %.1f ms\n",
        int(own.count), own.first, own.later);
    zt::printBenchLine("processes.list_1000_first", "best_ms", own.first);
    zt::printBenchLine("processes.list_1000", "best_ms", own.later);
    const std::optional<ListingTimes> psutil = psutilListingTimes();
    if (!psutil) {
        std::printf("# no comparison: python3-psutil is not there\n");
        return;
    }
    std::printf("# psutil, %d applications: first listing %.1f ms, later ones %.1f ms\n",
                int(psutil->count), psutil->first, psutil->later);
    zt::printBenchLine("processes.list_1000", "times_faster_than_psutil",
                       psutil->later / own.later);
}

void measureLookUps(const std::vector<pid_t> &pids) {
    constexpr int lookUps = 100'000;
    ZTProcess::allProcesses();
    const auto timeFor = [&](std::size_t from, std::size_t count) {
        std::vector<double> nanoseconds;
        for (int round = 0; round < 5; ++round) {
            const auto start = Clock::now();
            for (int lookUp = 0; lookUp < lookUps; ++lookUp)
                ZTProcess::processWithPID(pids[from + static_cast<std::size_t>(lookUp) % count]);
            nanoseconds.push_back(milliseconds(Clock::now() - start) * 1e6 / lookUps);
        }
        return *std::ranges::min_element(nanoseconds);
    };
    // The oldest are held by descriptors, of which a program has only so many.
    zt::printBenchLine("processes.cached_look_up", "ns", timeFor(0, 100));
    zt::printBenchLine("processes.cached_look_up_not_held", "ns", timeFor(pids.size() - 100, 100));
}

// From the end of a process to the return of the call that asked it to end.
void measureQuitting(ManyProcesses &processes) {
    std::vector<double> delays;
    for (int round = 0; round < 200; ++round) {
        const pid_t pid = processes.startOne();
        const auto process = ZTProcess::processWithPID(pid);
        const int descriptor = static_cast<int>(::syscall(SYS_pidfd_open, pid, 0));
        Clock::time_point end;
        std::thread watcher([&] {
            pollfd request = {.fd = descriptor, .events = POLLIN, .revents = 0};
            ::poll(&request, 1, -1);
            end = Clock::now();
        });
        const bool hasEnded = process->quitRunningApplicationWithTimeout(4.0F);
        const auto returned = Clock::now();
        watcher.join();
        ::close(descriptor);
        ::waitpid(pid, nullptr, 0);
        if (hasEnded)
            delays.push_back(std::max(0.0, milliseconds(returned - end)));
    }
    if (!delays.empty())
        zt::printBenchLine("processes.exit_to_return", "median_ms", zt::median(delays));
}

void measureWakeUps() {
    constexpr auto settling = 8s;
    constexpr auto duration = 30s;
    const auto runFor = [](std::chrono::milliseconds span) {
        QEventLoop loop;
        QTimer::singleShot(span, &loop, &QEventLoop::quit);
        loop.exec();
    };
    runFor(settling);
    int wakeUps = 0;
    const auto connection = QObject::connect(QAbstractEventDispatcher::instance(),
                                             &QAbstractEventDispatcher::awake, [&] { ++wakeUps; });
    runFor(duration);
    QObject::disconnect(connection);
    // One is that of the timer that ends the measurement.
    zt::printBenchLine("processes.watch", "wake_ups_per_minute",
                       std::max(0, wakeUps - 1) * double(60s / duration));
}

} // namespace

int main(int argc, char **argv) {
    const QGuiApplication application(argc, argv);
    const zt::NativePlatform native(QCoreApplication::arguments());
    ManyProcesses processes(bundleCount);
    processes.start(processCount);
    measureListings(native.services());
    const FreshPlatform platform(native.services());
    measureLookUps(processes.pids());
    processes.endAll();
    measureQuitting(processes);
    measureWakeUps();
    return 0;
}

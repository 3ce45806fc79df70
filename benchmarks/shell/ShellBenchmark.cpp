// SPDX-FileCopyrightText: 2026 The Velmora Installer authors
// SPDX-License-Identifier: Apache-2.0

// What it takes to run a trivial script or shell command and to collect its output, and how soon
// after the end of a script its caller goes on.

#include "Platform/NativePlatform.h"

#include "ZTStuff/ZTClasses/ZTUtilities.h"

#include "benchmarks/BenchLine.h"
#include "benchmarks/Median.h"
#include "benchmarks/shell/Contestants.h"

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <iterator>
#include <limits>
#include <map>
#include <random>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using Clock = std::chrono::steady_clock;
using Times = std::map<std::string, std::vector<double>>; // microseconds, by contestant

constexpr int rounds = 15;
constexpr int runsInRound = 40;
constexpr double timeout = 10;

double microseconds(Clock::duration duration) {
    return std::chrono::duration<double, std::micro>(duration).count();
}

struct Contest {
    std::string area; // of the printed lines
    QString expected;
    QStringList commandLine; // for those that take one
    std::map<std::string, std::function<QString()>> contestants;
};

// In turn, so that what else the machine does touches all alike; each is the first at times, for
// what one leaves to be tidied up falls to the next.
void addRound(const Contest &contest, Times &times) {
    std::vector<std::string> order;
    for (const auto &[name, output] : contest.contestants)
        order.push_back(name);
    for (int run = 0; run < runsInRound; ++run) {
        std::rotate(order.begin(), order.begin() + 1, order.end());
        if (run % 2 == 0)
            std::reverse(order.begin(), order.end());
        for (const std::string &name : order) {
            const auto start = Clock::now();
            const QString text = contest.contestants.at(name)();
            times[name].push_back(microseconds(Clock::now() - start));
            if (text.trimmed() != contest.expected) {
                std::fprintf(stderr, "%s printed something else.\n", name.c_str());
                std::exit(EXIT_FAILURE);
            }
        }
    }
    const auto python = timesOfSubprocess(runsInRound, contest.expected, contest.commandLine);
    if (python)
        std::ranges::copy(*python, std::back_inserter(times["subprocess"]));
}

void measure(const Contest &contest) {
    Times times;
    addRound(contest, times); // to warm up
    times.clear();
    for (int round = 0; round < rounds; ++round)
        addRound(contest, times);
    double best = std::numeric_limits<double>::infinity();
    for (const auto &[name, values] : times) {
        zt::printBenchLine(contest.area.c_str(), (name + "_us").c_str(), zt::median(values));
        if (name != "own")
            best = std::min(best, zt::median(values));
    }
    zt::printBenchLine(contest.area.c_str(), "ratio_to_best", zt::median(times["own"]) / best);
}

// From the moment in which the program has printed the time until its caller goes on.
void measureReturn() {
    std::mt19937 random(1); // NOLINT(cert-msc51-cpp): the same lengths in each run
    std::uniform_int_distribution<int> length(3000, 5000);
    const auto delay = [](const QString &printed) {
        const auto now = Clock::now().time_since_epoch();
        return microseconds(now - std::chrono::nanoseconds(printed.trimmed().toLongLong()));
    };
    std::vector<double> own;
    std::vector<double> qprocess;
    for (int run = 0; run < rounds * runsInRound; ++run) {
        const QString sleep = QString::number(length(random));
        const QString program = QStringLiteral(PRINTS_TIME);
        own.push_back(delay(
            ZTUtilities::runShellScript(program, QStringList{sleep}, timeout).value_or(QString())));
        qprocess.push_back(delay(outputByQProcess({program, sleep})));
    }
    zt::printBenchLine("shell.exit_to_return", "own_median_us", zt::median(own));
    zt::printBenchLine("shell.exit_to_return", "qprocess_median_us", zt::median(qprocess));
}

} // namespace

int main(int argc, char **argv) {
    const QGuiApplication application(argc, argv);
    const zt::NativePlatform native(QCoreApplication::arguments());
    const zt::ScopedPlatform current(native.services());

    const QTemporaryDir folder;
    const QString script = folder.filePath(u"trivial"_s);
    {
        QFile file(script);
        if (!file.open(QIODevice::WriteOnly) || file.write("#!/bin/sh\necho hi\n") < 0 ||
            !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner))
            return EXIT_FAILURE;
    }
    measure({.area = "shell.script",
             .expected = u"hi"_s,
             .commandLine = {script},
             .contestants = {
                 {"own",
                  [&] {
                      return ZTUtilities::runShellScript(script, std::nullopt, timeout)
                          .value_or(QString());
                  }},
                 {"qprocess", [&] { return outputByQProcess({script}); }},
                 {"popen", [&] { return outputByPopen(u"exec "_s + script + u" 2>&1"_s); }},
             }});
    const QString line = u"echo hi"_s;
    measure({.area = "shell.echo",
             .expected = u"hi"_s,
             .commandLine = {u"/bin/sh"_s, u"-c"_s, line},
             .contestants = {
                 {"own", [&] { return ZTUtilities::shellCommandResult(line).value_or(QString()); }},
                 {"qprocess",
                  [&] {
                      return outputByQProcess({u"/bin/sh"_s, u"-c"_s, line});
                  }},
                 {"popen", [&] { return outputByPopen(line); }},
             }});
    measureReturn();
    return EXIT_SUCCESS;
}
